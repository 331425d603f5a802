#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace qvzj::imports {

/// What a file of an import holds.
enum class Kind { Customers, Accounts, Entries };

/// How the text of a field becomes a value.
enum class FieldKind {
  Text,    ///< one line; quotes and line breaks are replaced
  Memo,    ///< several lines
  Number,  ///< ReadNumber
  Whole,   ///< ReadWholeNumber
  Date,    ///< ReadDate
  Type,    ///< customer type 0 to 3, or its name
  Side,    ///< direction 1 or 2, or its name
  Flag,    ///< 0 or 1
};

/// One column that an import fills.
struct Column {
  std::string_view name;  ///< as in the table
  FieldKind kind;
  int limit;                 ///< bytes of the Chinese code page, 0 = none
  bool required;             ///< an empty value refuses the row
  std::string_view heading;  ///< what the screens call it; files may use it as a header
};

/// The columns of a kind of import. Those of the entries begin with the three that name the
/// register record (fCompID, CompCode, compname), of which a row needs one.
std::span<const Column> ColumnsOf(Kind kind);

/// Index of the column called `name` (the table's name, ASCII case ignored, or the screen's); -1
/// when there is none.
int FindColumn(std::span<const Column> columns, std::string_view name);

}  // namespace qvzj::imports
