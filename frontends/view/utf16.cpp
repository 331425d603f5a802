#include "frontends/view/utf16.h"

#include "platform/basic/text.h"

namespace qvzj::view {
namespace {

bool IsHighSurrogate(char16_t unit) { return unit >= 0xd800 && unit < 0xdc00; }
bool IsLowSurrogate(char16_t unit) { return unit >= 0xdc00 && unit < 0xe000; }

}  // namespace

std::u16string ToUtf16(std::string_view text) {
  std::u16string units;
  for (char32_t code : basic::CodePoints(text)) {
    if (code < 0x10000) {
      units += static_cast<char16_t>(code);
    } else {
      units += static_cast<char16_t>(0xd800 + ((code - 0x10000) >> 10));
      units += static_cast<char16_t>(0xdc00 + ((code - 0x10000) & 0x3ff));
    }
  }
  return units;
}

std::string ToUtf8(std::u16string_view text) {
  constexpr char32_t kReplacement = 0xfffd;
  std::string bytes;
  for (size_t i = 0; i < text.size(); ++i) {
    char32_t code = text[i];
    if (IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
      code = 0x10000 + ((code - 0xd800) << 10) + (char32_t{text[++i]} - 0xdc00);
    } else if (IsHighSurrogate(text[i]) || IsLowSurrogate(text[i])) {
      code = kReplacement;
    }
    bytes += basic::FromCodePoint(code);
  }
  return bytes;
}

int32_t CharactersBefore(std::u16string_view text, size_t position) {
  int32_t count = 0;
  for (char16_t unit : text.substr(0, position)) {
    if (!IsLowSurrogate(unit)) ++count;
  }
  return count;
}

int32_t Utf16Position(std::u16string_view text, int32_t characters) {
  size_t i = 0;
  while (characters > 0 && i < text.size()) {
    i += IsHighSurrogate(text[i]) && i + 1 < text.size() ? 2 : 1;
    --characters;
  }
  return static_cast<int32_t>(i);
}

}  // namespace qvzj::view
