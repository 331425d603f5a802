#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/basic/date.h"

/// How the fields of files that people exported from other programs are read. What can be read in
/// one way only is read; what could mean two things is refused, since a wrong amount or day in a
/// ledger costs more than a row that is keyed by hand.
namespace qvzj::imports {

/// Order of a date's numbers in a file, for those that leave it open.
enum class DateOrder { Unknown, MonthFirst, DayFirst };

/// A number: an optional sign, digits with or without thousands commas in groups of three, an
/// optional point and decimals ("1,234.50", "-0.5"). Empty for everything else: a decimal comma, an
/// exponent, a currency sign, brackets.
std::optional<double> ReadNumber(std::string_view text);

/// A whole number of 32 bits; empty for everything else.
std::optional<int32_t> ReadWholeNumber(std::string_view text);

/// A day between 1900 and 2999: "2024-03-05", "2024/3/5", "2024.3.5", "20240305", "2024年3月5日",
/// each with a time of day after a blank or not; "3/5/2024" in the `order` given, or when just one
/// order makes it a day ("3/15/2024"). Empty for everything else; `why` then says the reason.
std::optional<basic::Date> ReadDate(std::string_view text, DateOrder order, std::string& why);

}  // namespace qvzj::imports
