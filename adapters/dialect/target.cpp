#include "adapters/dialect/target.h"

#include "platform/basic/text.h"

namespace qvzj::dialect {

Target SqliteTarget(const std::string& text_order) {
  Target target;
  target.add_column = "ALTER TABLE {table} ADD COLUMN {column} {type}";
  target.integer_type = "INTEGER";
  target.real_type = "REAL";
  target.text_type = "TEXT COLLATE NOCASE";
  target.date_type = "DATE";
  if (!text_order.empty()) target.ordered_text = "{} COLLATE " + text_order;
  return target;
}

Target TransactSqlTarget() {
  Target target;
  target.translates = false;
  target.add_column =
      "IF COL_LENGTH('{table}','{column}') IS NULL ALTER TABLE {table} ADD {column} {type}";
  target.integer_type = "int";
  target.real_type = "float";
  target.text_type = "nvarchar(255)";
  target.date_type = "datetime";
  return target;
}

std::string Wrap(std::string_view pattern, std::string_view piece) {
  return basic::Replace(pattern, "{}", piece);
}

}  // namespace qvzj::dialect
