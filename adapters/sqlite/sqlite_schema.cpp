#include "adapters/sqlite/sqlite_schema.h"

#include "adapters/sqlite/sqlite_statement.h"
#include "platform/basic/text.h"

namespace qvzj {
namespace {

using dialect::ColumnType;

ColumnType DeclaredType(const std::string& declared) {
  const std::string type = basic::Lower(declared);
  const auto holds = [&type](const char* part) { return type.find(part) != std::string::npos; };
  if (holds("date") || holds("timestamp")) return ColumnType::Date;
  if (holds("char") || holds("text") || holds("clob") || holds("memo")) return ColumnType::Text;
  return ColumnType::Number;
}

}  // namespace

ColumnType SqliteSchema::TypeOf(std::string_view table, std::string_view column) const {
  const std::string key = basic::Lower(table);
  auto found = tables_.find(key);
  if (found == tables_.end()) {
    Columns columns = Read(key);
    if (columns.empty()) return ColumnType::Unknown;
    found = tables_.emplace(key, std::move(columns)).first;
  }
  const auto type = found->second.find(basic::Lower(column));
  return type == found->second.end() ? ColumnType::Unknown : type->second;
}

SqliteSchema::Columns SqliteSchema::Read(const std::string& table) const {
  SqliteStatement info(database_, "select name, type from pragma_table_info(?)");
  info.Bind(1, std::string_view(table));
  Columns columns;
  while (info.Step()) columns.emplace(basic::Lower(info.Text(0)), DeclaredType(info.Text(1)));
  return columns;
}

}  // namespace qvzj
