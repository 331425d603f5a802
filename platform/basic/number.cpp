#include "platform/basic/number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include "platform/basic/errors.h"

namespace qvzj::basic {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsSign(char c) { return c == '+' || c == '-'; }

/// The leading number of `text` in the form that from_chars reads, and where it ended.
struct Scan {
  std::string number;
  size_t end = 0;
};

Scan ScanNumber(std::string_view text) {
  Scan scan;
  size_t i = 0;
  bool digits = false;
  bool point = false;
  if (i < text.size() && IsSign(text[i])) {
    if (text[i] == '-') scan.number += '-';
    ++i;
  }
  for (; i < text.size(); ++i) {
    const char c = text[i];
    if (IsDigit(c)) {
      digits = true;
    } else if (c == '.' && !point) {
      point = true;
    } else {
      break;
    }
    scan.number += c;
  }
  if (!digits) return {};
  scan.end = i;
  if (i < text.size() && std::string_view("eEdD").find(text[i]) != std::string_view::npos) {
    size_t j = i + 1;
    std::string exponent = "e";
    if (j < text.size() && IsSign(text[j])) {
      if (text[j] == '-') exponent += '-';
      ++j;
    }
    const size_t first_digit = j;
    while (j < text.size() && IsDigit(text[j])) exponent += text[j++];
    if (j > first_digit) {
      scan.number += exponent;
      scan.end = j;
    }
  }
  return scan;
}

// The value of a scanned number; nothing when no double is that large. What is too small is 0.
std::optional<double> ValueOf(const Scan& scan) {
  double value = 0;
  const auto result =
      std::from_chars(scan.number.data(), scan.number.data() + scan.number.size(), value);
  const bool out_of_range = result.ec == std::errc::result_out_of_range;
  if (out_of_range && scan.number.find("e-") == std::string::npos) return std::nullopt;
  return value;
}

double RoundHalfEven(double value, double low, double high, const char* type) {
  const double rounded = std::nearbyint(value);  // the default mode rounds half to even
  if (!(rounded >= low && rounded <= high)) {
    throw OverflowError(NumberText(value) + " does not fit " + type);
  }
  return rounded;
}

/// Sign, 15 significant digits and the decimal exponent of the first digit of a finite value.
struct Decimal {
  bool negative;
  std::string digits;
  int exponent;
};

Decimal FifteenDigits(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.14e", std::fabs(value));
  Decimal decimal{std::signbit(value), {}, static_cast<int>(std::strtol(text + 17, nullptr, 10))};
  decimal.digits.push_back(text[0]);
  decimal.digits.append(text + 2, 14);
  return decimal;
}

/// Adds one unit in the last place of a text of digits; "99" becomes "100".
std::string Increment(std::string digits) {
  for (size_t i = digits.size(); i-- > 0;) {
    if (digits[i] != '9') {
      ++digits[i];
      return digits;
    }
    digits[i] = '0';
  }
  return "1" + digits;
}

}  // namespace

double Val(std::string_view text) {
  std::string packed;
  for (char c : text) {
    if (c != ' ' && c != '\t' && c != '\n' && c != '\r') packed += c;
  }
  const std::optional<double> value = ValueOf(ScanNumber(packed));
  if (!value) throw OverflowError(std::string(text));
  return *value;
}

bool IsNumeric(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return false;
  text = text.substr(first, text.find_last_not_of(' ') - first + 1);
  const Scan scan = ScanNumber(text);
  return scan.end > 0 && scan.end == text.size() && ValueOf(scan).has_value();
}

int16_t ToInt16(double value) {
  return static_cast<int16_t>(RoundHalfEven(value, INT16_MIN, INT16_MAX, "16 bits"));
}

int32_t ToInt32(double value) {
  return static_cast<int32_t>(RoundHalfEven(value, INT32_MIN, INT32_MAX, "32 bits"));
}

uint8_t ToByte(double value) {
  return static_cast<uint8_t>(RoundHalfEven(value, 0, UINT8_MAX, "a byte"));
}

int16_t AddInt16(int16_t a, int16_t b) { return ToInt16(int32_t{a} + b); }

int16_t MultiplyInt16(int16_t a, int16_t b) { return ToInt16(int32_t{a} * b); }

std::string FormatFixed(double value, int decimals) {
  if (!std::isfinite(value)) throw OverflowError("a number without a value cannot be shown");
  const Decimal decimal = FifteenDigits(value);
  // Digits before the cut: those of the whole part and of the wanted decimals.
  const int kept = decimal.exponent + 1 + decimals;
  std::string digits;
  if (kept >= 15) {
    digits = decimal.digits + std::string(static_cast<size_t>(kept - 15), '0');
  } else if (kept >= 0) {
    digits = decimal.digits.substr(0, static_cast<size_t>(kept));
    if (decimal.digits[static_cast<size_t>(kept)] >= '5') digits = Increment(digits);
  }
  const auto places = static_cast<size_t>(decimals);
  if (digits.size() < places + 1) digits.insert(0, places + 1 - digits.size(), '0');
  const bool zero = digits.find_first_not_of('0') == std::string::npos;
  if (decimals > 0) digits.insert(digits.size() - places, 1, '.');
  return decimal.negative && !zero ? "-" + digits : digits;
}

std::string NumberText(double value) {
  if (value == 0) return "0";
  if (std::isnan(value)) return "1.#QNAN";
  if (std::isinf(value)) return value < 0 ? "-1.#INF" : "1.#INF";
  const Decimal decimal = FifteenDigits(value);
  std::string digits = decimal.digits;
  digits.erase(digits.find_last_not_of('0') + 1);
  const auto significant = static_cast<int>(digits.size());
  std::string text;
  if (decimal.exponent >= 15 || decimal.exponent < -15) {
    text = digits.substr(0, 1);
    if (significant > 1) text += "." + digits.substr(1);
    const int shown = std::abs(decimal.exponent);
    text += decimal.exponent < 0 ? "E-" : "E+";
    text += (shown < 10 ? "0" : "") + std::to_string(shown);
  } else if (decimal.exponent < 0) {
    text = "0." + std::string(static_cast<size_t>(-decimal.exponent - 1), '0') + digits;
  } else if (significant <= decimal.exponent + 1) {
    text = digits + std::string(static_cast<size_t>(decimal.exponent + 1 - significant), '0');
  } else {
    const auto whole = static_cast<size_t>(decimal.exponent) + 1;
    text = digits.substr(0, whole) + "." + digits.substr(whole);
  }
  return decimal.negative ? "-" + text : text;
}

void Sum::Add(double value) {
  const double total = sum_ + value;
  lost_ += std::fabs(sum_) >= std::fabs(value) ? (sum_ - total) + value : (value - total) + sum_;
  sum_ = total;
}

}  // namespace qvzj::basic
