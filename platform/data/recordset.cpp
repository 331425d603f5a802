#include "platform/data/recordset.h"

#include <limits>

#include "platform/basic/errors.h"
#include "platform/basic/text.h"

namespace qvzj::data {

Recordset::Recordset(std::vector<std::string> names, std::vector<basic::Column> columns)
    : names_(std::move(names)), columns_(std::move(columns)) {
  const size_t rows = columns_.empty() ? 0 : columns_.front().Size();
  if (rows > static_cast<size_t>(std::numeric_limits<int32_t>::max())) {
    throw OverflowError("rows of a record set");
  }
  count_ = static_cast<int32_t>(rows);
}

int Recordset::FieldIndex(std::string_view name) const {
  for (size_t i = 0; i < names_.size(); ++i) {
    if (basic::EqualIgnoringCase(names_[i], name)) return static_cast<int>(i);
  }
  throw DataError("Item cannot be found in the collection: " + std::string(name));
}

size_t Recordset::CurrentRow() const {
  if (Eof()) throw DataError("No current record");
  return static_cast<size_t>(row_);
}

bool Recordset::IsNull(int field) const { return ColumnAt(field).IsNull(CurrentRow()); }

std::string Recordset::Text(int field) const { return ColumnAt(field).Text(CurrentRow()); }

double Recordset::Number(int field) const {
  if (IsNull(field)) throw TypeMismatchError("Invalid use of Null in " + FieldName(field));
  return ColumnAt(field).Number(CurrentRow());
}

basic::Column Recordset::TakeColumn(int field) {
  return std::move(columns_[static_cast<size_t>(field)]);
}

}  // namespace qvzj::data
