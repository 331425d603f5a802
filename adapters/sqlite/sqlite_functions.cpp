#include "adapters/sqlite/sqlite_functions.h"

#include <sqlite3.h>

#include <cstring>
#include <string_view>

#include "adapters/icu/text_order.h"
#include "adapters/sqlite/sqlite_statement.h"
#include "platform/basic/number.h"

namespace qvzj {
namespace {

void IsNumericFunction(sqlite3_context* context, int, sqlite3_value** values) {
  if (sqlite3_value_type(values[0]) == SQLITE_NULL) return sqlite3_result_int(context, 0);
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(values[0]));
  const std::string_view view(text, static_cast<size_t>(sqlite3_value_bytes(values[0])));
  sqlite3_result_int(context, basic::IsNumeric(view) ? 1 : 0);
}

int CompareTexts(void* order, int a_size, const void* a, int b_size, const void* b) {
  if (a_size == b_size && std::memcmp(a, b, static_cast<size_t>(a_size)) == 0) return 0;
  return static_cast<const IcuTextOrder*>(order)->Compare(
      {static_cast<const char*>(a), static_cast<size_t>(a_size)},
      {static_cast<const char*>(b), static_cast<size_t>(b_size)});
}

}  // namespace

void RegisterFunctions(sqlite3* database) {
  static const IcuTextOrder pinyin = IcuTextOrder::Pinyin();
  static const IcuTextOrder stroke = IcuTextOrder::Stroke();
  const auto check = [database](int result) {
    if (result != SQLITE_OK) ThrowSqlite(database);
  };
  const auto add_order = [&](const char* name, const IcuTextOrder& order) {
    check(sqlite3_create_collation_v2(database, name, SQLITE_UTF8,
                                      const_cast<IcuTextOrder*>(&order), CompareTexts, nullptr));
  };
  check(sqlite3_create_function_v2(database, "isnumeric", 1,
                                   SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS, nullptr,
                                   IsNumericFunction, nullptr, nullptr, nullptr));
  add_order(kPinyinCollation, pinyin);
  add_order(kStrokeCollation, stroke);
}

}  // namespace qvzj
