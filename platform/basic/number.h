#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Number rules of the host's language: reading, converting and writing numbers exactly as the
/// host suite's other modules do, so that a value looks the same wherever it is shown.
namespace qvzj::basic {

/// Numeric value of the longest leading part of `text` that is a number; 0 when there is none.
/// Blanks, tabs and line feeds anywhere before the end of the number are skipped; the point is
/// ".", an exponent may follow "e" or "d". "12.5 kg" is 12.5, "1,234" is 1, "abc" is 0.
double Val(std::string_view text);

/// True when the whole of `text`, without surrounding blanks, is one number (sign, digits,
/// point, exponent) that a double can hold. An empty text is not a number.
bool IsNumeric(std::string_view text);

/// Rounds half to even and converts to 16 bits. Throws OverflowError outside -32768..32767.
int16_t ToInt16(double value);
/// Rounds half to even and converts to 32 bits. Throws OverflowError outside the range.
int32_t ToInt32(double value);
/// Rounds half to even and converts to 0..255. Throws OverflowError outside the range.
uint8_t ToByte(double value);

/// Sum of two 16-bit values; throws OverflowError when it leaves 16 bits.
int16_t AddInt16(int16_t a, int16_t b);
/// Product of two 16-bit values; throws OverflowError when it leaves 16 bits.
int16_t MultiplyInt16(int16_t a, int16_t b);

/// `value` with exactly `decimals` decimals (0..9), halves away from zero, judged on the 15
/// significant decimal digits of the value: FormatFixed(1.005, 2) is "1.01". No thousands
/// separator; a value that rounds to zero has no sign.
std::string FormatFixed(double value, int decimals);

/// Shortest plain text of `value` with up to 15 significant digits, as the host's language joins
/// a number to a text: "100", "12.5", "-0.25". Values from 1E+15 on use an exponent; what is no
/// finite number reads "1.#INF", "-1.#INF" or "1.#QNAN".
std::string NumberText(double value);

/// A running sum that keeps the lost low bits (Neumaier), so that a million amounts add up to
/// the cent.
class Sum {
 public:
  /// Adds one amount.
  void Add(double value);
  /// The sum of all amounts added, rounded once.
  double Value() const { return sum_ + lost_; }

 private:
  double sum_ = 0;
  double lost_ = 0;
};

}  // namespace qvzj::basic
