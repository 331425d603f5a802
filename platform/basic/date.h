#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qvzj::basic {

/// A calendar day, kept as the host's language keeps it: whole days since 30 December 1899.
/// Valid from year 100 to 9999.
struct Date {
  int32_t serial = 0;

  /// The day of the Gregorian calendar; it must be a real one, which is not checked (see ParseIso).
  static Date FromYmd(int year, int month, int day);
  /// Parts of the calendar day: year 100 to 9999, month and day from 1.
  int Year() const;
  int Month() const;
  int Day() const;

  friend auto operator<=>(const Date&, const Date&) = default;
};

/// "mm/dd/yyyy", the form of every date in a statement, whatever the machine's settings.
std::string FormatMonthDayYear(Date date);
/// "yyyy-mm-dd", the form in which dates are shown.
std::string FormatIso(Date date);
/// Reads "yyyy-mm-dd" (one- or two-digit month and day, "-" or "/" between); a time of day after
/// a blank or "T" is ignored. Empty when the text is not a real day.
std::optional<Date> ParseIso(std::string_view text);
/// Reads "mm/dd/yyyy"; empty when the text is not a real day.
std::optional<Date> ParseMonthDayYear(std::string_view text);

}  // namespace qvzj::basic
