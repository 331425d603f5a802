#include "adapters/dialect/stem.h"

#include "platform/basic/text.h"

namespace qvzj::dialect {
namespace {

constexpr char32_t kLastCharacter = 0x10FFFF;

char32_t Successor(char32_t character) {
  ++character;
  if (character == U'A') return U'Z' + 1;
  if (character == 0xD800) return 0xE000;
  return character;
}

}  // namespace

StemRange RangeOfStem(std::string_view stem) {
  StemRange range{basic::Lower(stem), std::nullopt};
  std::u32string past = basic::CodePoints(range.first);
  while (!past.empty() && past.back() == kLastCharacter) past.pop_back();
  if (past.empty()) return range;
  past.back() = Successor(past.back());
  range.past.emplace();
  for (const char32_t character : past) *range.past += basic::FromCodePoint(character);
  return range;
}

}  // namespace qvzj::dialect
