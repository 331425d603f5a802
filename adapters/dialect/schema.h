#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qvzj::dialect {

/// What the values of a column are, as far as a translation depends on it.
enum class ColumnType : uint8_t {
  Unknown,  ///< no such table or column
  Number,
  Text,
  Date,
};

/// Tells the translator what the columns of the database are. Names compare without ASCII case.
class Schema {
 public:
  virtual ~Schema() = default;
  /// Unknown when there is no such table or column.
  virtual ColumnType TypeOf(std::string_view table, std::string_view column) const = 0;
};

}  // namespace qvzj::dialect
