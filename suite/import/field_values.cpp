#include "suite/import/field_values.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

#include "platform/basic/text.h"

namespace qvzj::imports {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool AllDigits(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), IsDigit);
}

/// Whole part of a number without its commas; empty when a comma stands where none belongs.
std::string WithoutCommas(std::string_view whole) {
  std::string digits;
  size_t since_comma = 0;
  bool comma_seen = false;
  for (const char c : whole) {
    if (c == ',') {
      if (comma_seen ? since_comma != 3 : since_comma < 1 || since_comma > 3) return {};
      comma_seen = true;
      since_comma = 0;
    } else if (IsDigit(c)) {
      digits += c;
      ++since_comma;
    } else {
      return {};
    }
  }
  return comma_seen && since_comma != 3 ? std::string{} : digits;
}

/// `text` cut into runs of digits at every character between that is no digit; `marks` receives
/// what stood between and after them.
std::array<std::string_view, 3> Numbers(std::string_view text, std::array<std::string, 3>& marks) {
  std::array<std::string_view, 3> numbers;
  size_t at = 0;
  for (size_t i = 0; i < 3; ++i) {
    const size_t digits = at;
    while (at < text.size() && IsDigit(text[at])) ++at;
    numbers[i] = text.substr(digits, at - digits);
    const size_t mark = at;
    while (at < text.size() && !IsDigit(text[at])) ++at;
    marks[i] = std::string(text.substr(mark, at - mark));
  }
  if (at < text.size()) numbers[0] = {};  // a fourth number: no date
  return numbers;
}

std::optional<basic::Date> Day(int year, int month, int day) {
  char iso[48];
  std::snprintf(iso, sizeof iso, "%04d-%02d-%02d", year, month, day);
  return basic::ParseIso(iso);
}

/// Number of one to four digits; 0 when it is longer or none, which no year, month or day is.
int Small(std::string_view digits) {
  int value = 0;
  if (AllDigits(digits) && digits.size() <= 4) {
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
  }
  return value;
}

std::optional<basic::Date> YearLast(int first, int second, int year, DateOrder order,
                                    std::string& why) {
  const auto month_first = Day(year, first, second);
  const auto day_first = Day(year, second, first);
  if (order == DateOrder::MonthFirst) return month_first;
  if (order == DateOrder::DayFirst) return day_first;
  if (month_first && day_first && month_first != day_first) {
    why = "it could be month/day or day/month";
    return std::nullopt;
  }
  return month_first ? month_first : day_first;
}

std::optional<basic::Date> AnyYear(std::string_view text, DateOrder order, std::string& why) {
  if (text.size() == 8 && AllDigits(text)) {
    return Day(Small(text.substr(0, 4)), Small(text.substr(4, 2)), Small(text.substr(6)));
  }
  std::array<std::string, 3> marks;
  const auto numbers = Numbers(text, marks);
  const bool chinese =
      marks[0] == "年" && marks[1] == "月" && (marks[2] == "日" || marks[2].empty());
  const bool plain = marks[0] == marks[1] && marks[2].empty() &&
                     (marks[0] == "-" || marks[0] == "/" || marks[0] == ".");
  if (!chinese && !plain) return std::nullopt;
  const int a = Small(numbers[0]);
  const int b = Small(numbers[1]);
  const int c = Small(numbers[2]);
  if (numbers[0].size() == 4 && numbers[1].size() <= 2 && numbers[2].size() <= 2) {
    return Day(a, b, c);
  }
  if (plain && numbers[0].size() <= 2 && numbers[1].size() <= 2 && numbers[2].size() == 4) {
    return YearLast(a, b, c, order, why);
  }
  if (plain && numbers[2].size() == 2) why = "its year has two digits";
  return std::nullopt;
}

}  // namespace

std::optional<double> ReadNumber(std::string_view text) {
  const std::string trimmed = basic::Trim(text);
  std::string_view rest = trimmed;
  const bool negative = rest.starts_with('-');
  if (negative || rest.starts_with('+')) rest.remove_prefix(1);
  const size_t point = rest.find('.');
  std::string digits = WithoutCommas(rest.substr(0, point));
  if (digits.empty()) return std::nullopt;
  if (point != std::string_view::npos) {
    const std::string_view decimals = rest.substr(point + 1);
    if (!AllDigits(decimals)) return std::nullopt;
    digits += '.';
    digits += decimals;
  }
  double value = 0;
  const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (failure != std::errc{}) return std::nullopt;
  return negative && value != 0 ? -value : value;
}

std::optional<int32_t> ReadWholeNumber(std::string_view text) {
  const std::string trimmed = basic::Trim(text);
  int32_t value = 0;
  const char* const end = trimmed.data() + trimmed.size();
  const auto [next, failure] = std::from_chars(trimmed.data(), end, value);
  if (failure != std::errc{} || next != end) return std::nullopt;
  return value;
}

std::optional<basic::Date> ReadDate(std::string_view text, DateOrder order, std::string& why) {
  why.clear();
  const std::string trimmed = basic::Trim(text);
  const std::string_view day = std::string_view(trimmed).substr(0, trimmed.find_first_of(" T"));
  auto date = AnyYear(day, order, why);
  if (date && (date->Year() < 1900 || date->Year() > 2999)) {
    why = "its year is not between 1900 and 2999";
    date.reset();
  }
  if (!date && why.empty()) why = "it is no day of the calendar";
  return date;
}

}  // namespace qvzj::imports
