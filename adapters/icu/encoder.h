#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

struct UConverter;

namespace qvzj {

/// Writes text in a code page through ICU and counts what it cannot hold.
class IcuEncoder {
 public:
  /// `charset` as ICU names it, such as "GB18030" or "GBK". Throws Error when ICU has none.
  explicit IcuEncoder(const char* charset);
  ~IcuEncoder();

  /// Bytes of the text; a character outside the code page, and a malformed byte, becomes "?".
  std::string Encode(std::string_view utf8);
  /// How many characters became "?" so far.
  int64_t Lost() const { return lost_; }

 private:
  struct Closer {
    void operator()(UConverter* converter) const;
  };
  std::unique_ptr<UConverter, Closer> converter_;
  int64_t lost_ = 0;
};

}  // namespace qvzj
