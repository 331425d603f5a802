#pragma once

#include <string>
#include <string_view>

namespace qvzj::basic {

/// Makes sort keys so that texts order as their reader expects (Chinese by pinyin or stroke).
class TextOrder {
 public:
  virtual ~TextOrder() = default;
  /// Bytes whose plain comparison is the order of the texts.
  virtual std::string SortKey(std::string_view text) const = 0;
};

}  // namespace qvzj::basic
