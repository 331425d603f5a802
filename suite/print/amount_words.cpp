#include "suite/print/amount_words.h"

#include <array>
#include <charconv>
#include <cmath>

#include "platform/basic/errors.h"
#include "platform/basic/number.h"

namespace qvzj::print {
namespace {

struct Unit {
  int64_t value;
  const char* word;
};

struct Words {
  std::array<const char*, 10> digits;
  std::array<Unit, 5> units;  // largest first
  const char* minus;
};

constexpr Words kSimplified{
    {"零", "壹", "贰", "叁", "肆", "伍", "陆", "柒", "捌", "玖"},
    {{{100'000'000, "亿"}, {10'000, "万"}, {1'000, "仟"}, {100, "佰"}, {10, "拾"}}},
    "负"};
constexpr Words kTraditional{
    {"零", "壹", "貳", "參", "肆", "伍", "陸", "柒", "捌", "玖"},
    {{{100'000'000, "億"}, {10'000, "萬"}, {1'000, "仟"}, {100, "佰"}, {10, "拾"}}},
    "負"};

/// A whole number above 0. A 零 stands where the rest after a unit skips a place (壹万零壹拾), none
/// where the rest is full (壹拾万柒仟).
std::string WholeInWords(int64_t number, const Words& words) {
  for (const Unit& unit : words.units) {
    if (number < unit.value) continue;
    std::string text = WholeInWords(number / unit.value, words) + unit.word;
    const int64_t rest = number % unit.value;
    if (rest == 0) return text;
    if (rest < unit.value / 10) text += words.digits[0];
    return text + WholeInWords(rest, words);
  }
  return words.digits[static_cast<size_t>(number)];
}

}  // namespace

std::string AmountInWords(double amount, int16_t language) {
  if (!(std::fabs(amount) < kNoAmountInWords)) throw OverflowError("an amount in words");
  const Words& words = language == 1 ? kTraditional : kSimplified;
  std::string shown = basic::FormatFixed(amount, 2);
  std::string text;
  if (shown.front() == '-') {
    text = words.minus;
    shown.erase(0, 1);
  }
  const size_t point = shown.find('.');
  int64_t yuan = 0;
  std::from_chars(shown.data(), shown.data() + point, yuan);
  const auto jiao = static_cast<size_t>(shown[point + 1] - '0');
  const auto fen = static_cast<size_t>(shown[point + 2] - '0');
  const bool whole = jiao == 0 && fen == 0;
  if (yuan > 0) text += WholeInWords(yuan, words) + "元";
  if (whole) return text + (yuan > 0 ? "整" : std::string(words.digits[0]) + "元整");
  const bool skipped_place = jiao == 0 || yuan % 10 == 0;
  if (yuan > 0 && skipped_place) text += words.digits[0];
  if (jiao > 0) text += std::string(words.digits[jiao]) + "角";
  if (fen > 0) text += std::string(words.digits[fen]) + "分";
  return text;
}

}  // namespace qvzj::print
