#include "adapters/odbc/odbc_schema.h"

#include "platform/basic/text.h"

namespace qvzj {

dialect::ColumnType OdbcSchema::TypeOf(std::string_view table, std::string_view column) const {
  const std::string key = basic::Lower(table);
  auto found = tables_.find(key);
  if (found == tables_.end()) {
    Columns columns = read_(key);
    if (columns.empty()) return dialect::ColumnType::Unknown;
    found = tables_.emplace(key, std::move(columns)).first;
  }
  const auto type = found->second.find(basic::Lower(column));
  return type == found->second.end() ? dialect::ColumnType::Unknown : type->second;
}

}  // namespace qvzj
