#include "services/query.h"

#include <exception>

#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "platform/surroundings.h"
#include "services/connect.h"
#include "services/messages.h"
#include "services/strings.h"
#include "services/text_ids.h"

namespace qvzj {

int16_t CountRows(const std::string& table, const std::string& condition) {
  try {
    std::string sql = "select count(*) from " + table;
    if (!condition.empty()) sql += " Where " + condition;
    return basic::ToInt16(Data().Open(sql).Number(0));
  } catch (const std::exception&) {
    return -1;  // every caller reads -1 as "not there or not readable" and shows its own message
  }
}

int32_t MaxOf(const std::string& column, const std::string& table) {
  data::Recordset rows = Data().Open("select max(" + column + ") from " + table);
  if (rows.Eof() || rows.IsNull(0)) return 0;
  return basic::ToInt32(rows.Number(0));
}

std::string FirstValue(const std::string& sql) {
  data::Recordset rows = Data().Open(sql);
  return rows.Eof() ? "" : rows.Text(0);
}

namespace {

void TranslateWildcard(char& character) {
  if (character == '*') character = '%';
  if (character == '#') character = '_';
}

}  // namespace

std::string LikePattern(const std::string& text) {
  std::string pattern = basic::Trim(text);
  if (pattern.empty()) return pattern;
  TranslateWildcard(pattern.front());
  TranslateWildcard(pattern.back());
  if (pattern.find_first_of("_%") == std::string::npos) pattern = "%" + pattern + "%";
  return pattern;
}

bool NoQuote(const std::string& text) {
  if (text.find('\'') == std::string::npos) return true;
  Message(LoadText(text_id::kNoQuotes), box::kExclamation);
  return false;
}

}  // namespace qvzj
