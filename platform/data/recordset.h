#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/basic/column.h"

namespace qvzj::data {

/// The rows a statement answered: read completely when it is opened, kept as packed columns, so
/// that the count is exact and a grid can take a whole column over without touching its values.
/// A forward cursor stands on the first row at the start.
class Recordset {
 public:
  /// Columns of one length, each under its name; the cursor stands on the first row.
  Recordset(std::vector<std::string> names, std::vector<basic::Column> columns);

  /// Exact number of rows.
  int32_t RecordCount() const { return count_; }
  /// Fields of a row, 0-based everywhere.
  int FieldCount() const { return static_cast<int>(columns_.size()); }
  /// Name of a field as the statement gave it.
  const std::string& FieldName(int field) const { return names_[static_cast<size_t>(field)]; }
  /// Index of the field of that name, ASCII case ignored. Throws DataError when there is none.
  int FieldIndex(std::string_view name) const;

  /// True behind the last row, and at once when there is none.
  bool Eof() const { return row_ >= count_; }
  /// Goes to the next row.
  void MoveNext() { ++row_; }

  /// Field of the current row (0-based index). Each throws DataError past the last row.
  bool IsNull(int field) const;
  /// The value joined to the empty text: "" for null.
  std::string Text(int field) const;
  std::string Text(std::string_view name) const { return Text(FieldIndex(name)); }
  /// The value as a number; null is an error here (TypeMismatchError), as a calculation with a
  /// null is in the host's language.
  double Number(int field) const;

  /// A whole column, row by row.
  const basic::Column& ColumnAt(int field) const { return columns_[static_cast<size_t>(field)]; }
  /// Hands a whole column over; the record set must not be read at this field afterwards.
  basic::Column TakeColumn(int field);

 private:
  size_t CurrentRow() const;

  std::vector<std::string> names_;
  std::vector<basic::Column> columns_;
  int32_t count_ = 0;
  int32_t row_ = 0;
};

}  // namespace qvzj::data
