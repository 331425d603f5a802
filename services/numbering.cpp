#include "services/numbering.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "services/connect.h"
#include "services/context.h"
#include "services/query.h"

namespace qvzj {
namespace {

// In the order in which they are looked for: the first that occurs anywhere is the one in force.
constexpr std::array<std::string_view, 11> kDatePatterns = {
    "YYYYMMDD", "YYYYMM", "MMDDYYYY", "DDMMYYYY", "YYYY", "YYMMDD",
    "YYMM",     "DDMMYY", "MMYY",     "MMDD",     "DDMM"};

// Digits that pad a counter; a longer run of "X" gets a shorter counter.
constexpr std::string_view kPadding = "000000000000";

std::string Digits(int value, size_t width) {
  std::string digits = std::to_string(value);
  return std::string(width - std::min(width, digits.size()), '0') + digits;
}

std::string FormatBy(std::string_view pattern, basic::Date date) {
  std::string text;
  while (!pattern.empty()) {
    const size_t width = std::min(pattern.find_first_not_of(pattern.front()), pattern.size());
    const char part = pattern.front();
    if (part == 'Y') {
      text += width == 4 ? Digits(date.Year(), 4) : Digits(date.Year() % 100, 2);
    } else {
      text += Digits(part == 'M' ? date.Month() : date.Day(), 2);
    }
    pattern.remove_prefix(width);
  }
  return text;
}

// What stands before the counter: the template without its run of "X", its date filled in.
std::string StemOf(std::string_view without_counter, basic::Date date) {
  for (std::string_view pattern : kDatePatterns) {
    const size_t place = without_counter.find(pattern);
    if (place == std::string_view::npos) continue;
    return std::string(without_counter.substr(0, place)) + FormatBy(pattern, date) +
           std::string(without_counter.substr(place + pattern.size()));
  }
  return std::string(without_counter);
}

// The statement that finds the greatest counter in use behind `stem`.
std::string CounterStatement(const std::string& stem, size_t width, int16_t kind) {
  const std::string table = kind > 50 ? "tAccountDetail" : "";
  const std::string column = kind > 50 ? "fAcntNo" : "";
  const int32_t length = basic::Len(stem);
  const std::string place =
      column + "," + std::to_string(length + 1) + "," + std::to_string(width) + ")";
  const bool server = Shared().SQLData != 0;
  return std::string("select max(") + (server ? "SUBSTRING(" : "mid(") + place +
         ") as invID from " + table + " where left(" + column + "," + std::to_string(length) +
         ")='" + stem + "' and IsNumeric(" + (server ? "SUBSTRING(" : "Mid(") + place + ")" +
         (server ? "=1" : "");
}

// The greatest counter's text; empty when no number stands behind the stem yet.
std::optional<std::string> GreatestCounter(const std::string& statement) {
  data::Recordset rows = Data().Open(statement);
  if (rows.Eof()) return std::nullopt;
  const int field = rows.FieldIndex("InvID");
  if (rows.IsNull(field)) return std::nullopt;
  std::string text = rows.Text(field);
  if (text.empty()) return std::nullopt;
  return text;
}

}  // namespace

std::string NextNumber(basic::Date date, std::string& templ, int16_t kind) {
  templ = basic::Upper(templ);
  const size_t last = templ.find_last_not_of('X');
  const size_t fixed = last == std::string::npos ? 0 : last + 1;
  const size_t width = templ.size() - fixed;
  if (width == 0) return "";

  const std::string stem = StemOf(std::string_view(templ).substr(0, fixed), date);
  if (!NoQuote(stem)) return "";
  std::string first = stem + std::string(width - 1, '0') + "1";
  if (kind == kFirstNumber) return first;
  const auto greatest = GreatestCounter(CounterStatement(stem, width, kind));
  if (!greatest) return first;
  const std::string next = basic::NumberText(basic::Val(*greatest) + 1);
  return stem + basic::Right(std::string(kPadding) + next, static_cast<int32_t>(width));
}

}  // namespace qvzj
