#include "platform/basic/date.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>

namespace qvzj::basic {
namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr sys_days kDayZero{year{1899} / 12 / 30};

year_month_day Calendar(Date date) {
  return year_month_day{kDayZero + std::chrono::days{date.serial}};
}

std::optional<Date> RealDay(int y, int m, int d) {
  if (m < 1 || d < 1 || y < 100 || y > 9999) return std::nullopt;
  const year_month_day calendar{year{y}, month{static_cast<unsigned>(m)},
                                day{static_cast<unsigned>(d)}};
  if (!calendar.ok()) return std::nullopt;
  return Date::FromYmd(y, m, d);
}

/// Three runs of digits parted by `-` or `/`; empty when the text has another form.
std::optional<std::array<int, 3>> ThreeNumbers(std::string_view text) {
  std::array<int, 3> numbers{};
  const char* at = text.data();
  const char* const end = at + text.size();
  for (size_t i = 0; i < 3; ++i) {
    const auto [next, failure] = std::from_chars(at, end, numbers[i]);
    if (failure != std::errc{} || next == at || numbers[i] < 0) return std::nullopt;
    at = next;
    if (i < 2) {
      if (at == end || (*at != '-' && *at != '/')) return std::nullopt;
      ++at;
    }
  }
  if (at != end) return std::nullopt;
  return numbers;
}

}  // namespace

Date Date::FromYmd(int y, int m, int d) {
  const sys_days days{
      year_month_day{year{y}, month{static_cast<unsigned>(m)}, day{static_cast<unsigned>(d)}}};
  return Date{static_cast<int32_t>((days - kDayZero).count())};
}

int Date::Year() const { return static_cast<int>(Calendar(*this).year()); }
int Date::Month() const { return static_cast<int>(static_cast<unsigned>(Calendar(*this).month())); }
int Date::Day() const { return static_cast<int>(static_cast<unsigned>(Calendar(*this).day())); }

std::string FormatMonthDayYear(Date date) {
  char text[32];
  std::snprintf(text, sizeof text, "%02d/%02d/%04d", date.Month(), date.Day(), date.Year());
  return text;
}

std::string FormatIso(Date date) {
  char text[32];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d", date.Year(), date.Month(), date.Day());
  return text;
}

std::optional<Date> ParseIso(std::string_view text) {
  const auto numbers = ThreeNumbers(text.substr(0, text.find_first_of(" T")));
  if (!numbers) return std::nullopt;
  return RealDay((*numbers)[0], (*numbers)[1], (*numbers)[2]);
}

std::optional<Date> ParseMonthDayYear(std::string_view text) {
  const auto numbers = ThreeNumbers(text);
  if (!numbers) return std::nullopt;
  return RealDay((*numbers)[2], (*numbers)[0], (*numbers)[1]);
}

}  // namespace qvzj::basic
