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

Target PostgresTarget(const std::string& text_order) {
  Target target;
  target.add_column = "ALTER TABLE {table} ADD COLUMN IF NOT EXISTS {column} {type}";
  target.integer_type = "integer";
  target.real_type = "double precision";
  target.text_type = "text";
  target.date_type = "date";
  target.bracketed_name = "{}";
  target.date = "DATE '{}'";
  target.is_numeric =
      "(CASE WHEN {} ~ '^ *[-+]?([0-9]+[.]?[0-9]*|[.][0-9]+)([eEdD][-+]?[0-9]+)? *$'"
      " THEN 1 ELSE 0 END)";
  target.is_numeric_is_condition = false;
  target.joined = "coalesce(({})::text,'')";
  // The C collation folds the case of ASCII letters only; indexes are made over the same key.
  target.compared_column = "lower({} COLLATE \"C\")";
  target.compared_key = target.compared_column;
  target.compared_text = "{}";
  target.lowers_compared_text = true;
  target.liked_column = "{} COLLATE \"C\"";
  target.like = "ILIKE";
  target.like_pattern = "{} ESCAPE ''";
  target.ordered_text = "{} COLLATE " + text_order;
  target.orders_distinct_outside = true;
  target.ascending_nulls = " NULLS FIRST";
  target.descending_nulls = " NULLS LAST";
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
