#include "tests/fuzz/mangle.h"

#include <algorithm>

namespace qvzj::fuzz {
namespace {

constexpr const char* kTexts[] = {"",
                                  " ",
                                  "'",
                                  "''",
                                  "\"",
                                  "\\",
                                  "%",
                                  "_",
                                  "*",
                                  "#",
                                  ";",
                                  "--",
                                  "2 or 1=1",
                                  "1) or (1=1",
                                  "0;delete from cards",
                                  "' or ''='",
                                  "null",
                                  "NaN",
                                  "甲公司",
                                  "，。（）",
                                  "\xC3\x28",
                                  "\xED\xA0\x80",
                                  "\xFF\xFE",
                                  "\xF0\x9F\x98\x80",
                                  "\xB1\xE0",
                                  "e\xCC\x81",
                                  "\r\n",
                                  "\n",
                                  "\t",
                                  "=1+1",
                                  "2024-02-30",
                                  "2024-03-15",
                                  "9999-12-31",
                                  "10000-01-01",
                                  "-1-1-1",
                                  "１２３",
                                  "1,234,567.89",
                                  "true"};

constexpr const char* kNumbers[] = {"0",
                                    "1",
                                    "-1",
                                    "2",
                                    "9",
                                    "255",
                                    "256",
                                    "32767",
                                    "32768",
                                    "-32768",
                                    "-32769",
                                    "2147483647",
                                    "2147483648",
                                    "-2147483648",
                                    "-2147483649",
                                    "4294967296",
                                    "9223372036854775807",
                                    "9223372036854775808",
                                    "-9223372036854775808",
                                    "1e15",
                                    "1e300",
                                    "-1e300",
                                    "1e400",
                                    "1e-300",
                                    "0.005",
                                    "-0.0",
                                    "1.7976931348623157e308",
                                    "00000000000000000000000000000001"};

}  // namespace

std::string NastyText(Dice& dice) {
  if (dice.Chance(20)) return NastyNumber(dice);
  if (dice.Chance(3)) return std::string(dice.Below(5000), 'x');
  if (dice.Chance(3)) return std::string(1, '\0');
  return dice.Pick(kTexts);
}

std::string NastyNumber(Dice& dice) {
  if (dice.Chance(25)) return std::to_string(dice.Between(-1000, 1000));
  return dice.Pick(kNumbers);
}

std::string Mangle(Dice& dice, std::string text) {
  for (uint32_t edits = 1 + dice.Below(3); edits > 0; --edits) {
    const size_t at = dice.Below(static_cast<uint32_t>(text.size() + 1));
    const size_t length = std::min<size_t>(dice.Below(8), text.size() - at);
    switch (dice.Below(5)) {
      case 0:
        text.erase(at, length);
        break;
      case 1:
        text.insert(at, text.substr(at, length));
        break;
      case 2:
        if (at < text.size() && text[at] != '\n') text[at] ^= static_cast<char>(1 << dice.Below(8));
        break;
      default:
        text.replace(at, dice.Chance(50) ? length : 0, NastyText(dice));
        break;
    }
  }
  std::replace(text.begin(), text.end(), '/', '.');
  return text;
}

}  // namespace qvzj::fuzz
