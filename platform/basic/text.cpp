#include "platform/basic/text.h"

#include <limits>

namespace qvzj::basic {
namespace {

constexpr int32_t kToTheEnd = std::numeric_limits<int32_t>::max();

bool Continues(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

/// True when a second byte makes a character of three or four bytes too long a spelling of it, a
/// surrogate, or a code past the last one.
bool OutOfRange(unsigned char lead, unsigned char second) {
  return (lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
         (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F);
}

/// Bytes of the character that begins at `at`; a malformed byte is a character of its own.
size_t CharacterBytes(std::string_view text, size_t at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  if (lead < 0xC2 || lead > 0xF4) return 1;
  const size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  if (at + length > text.size()) return 1;
  for (size_t i = 1; i < length; ++i) {
    if (!Continues(text[at + i])) return 1;
  }
  return OutOfRange(lead, static_cast<unsigned char>(text[at + 1])) ? 1 : length;
}

/// Byte position after `count` characters from byte `at`.
size_t Skip(std::string_view text, size_t at, int32_t count) {
  while (count-- > 0 && at < text.size()) at += CharacterBytes(text, at);
  return at;
}

template <class Change>
std::string MapAscii(std::string_view text, Change change) {
  std::string result(text);
  for (char& c : result) c = change(c);
  return result;
}

char UpperAscii(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; }
char LowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

char32_t Decode(std::string_view text, size_t at, size_t length) {
  const auto lead = static_cast<unsigned char>(text[at]);
  if (length == 1) return lead < 0x80 ? lead : U'\uFFFD';
  char32_t code = lead & (0xFFu >> (length + 1));
  for (size_t i = 1; i < length; ++i) {
    code = (code << 6) | (static_cast<unsigned char>(text[at + i]) & 0x3Fu);
  }
  return code;
}

}  // namespace

int32_t Len(std::string_view text) {
  int32_t count = 0;
  for (size_t at = 0; at < text.size(); at += CharacterBytes(text, at)) ++count;
  return count;
}

std::string Left(std::string_view text, int32_t count) {
  return std::string(text.substr(0, Skip(text, 0, count)));
}

std::string Right(std::string_view text, int32_t count) {
  if (count < 1) return {};
  const int32_t length = Len(text);
  return count >= length ? std::string(text) : Mid(text, length - count + 1);
}

std::string Mid(std::string_view text, int32_t start) { return Mid(text, start, kToTheEnd); }

std::string Mid(std::string_view text, int32_t start, int32_t count) {
  const size_t from = Skip(text, 0, start - 1);
  return std::string(text.substr(from, Skip(text, from, count) - from));
}

std::string Trim(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string Upper(std::string_view text) { return MapAscii(text, UpperAscii); }

std::string Lower(std::string_view text) { return MapAscii(text, LowerAscii); }

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    if (LowerAscii(a[i]) != LowerAscii(b[i])) return false;
  }
  return true;
}

std::string Pad(std::string_view text, int32_t width) {
  std::string result = Left(text, width);
  result.append(static_cast<size_t>(width - Len(result)), ' ');
  return result;
}

std::string Replace(std::string_view text, std::string_view what, std::string_view with) {
  std::string result;
  size_t from = 0;
  while (!what.empty()) {
    const size_t at = text.find(what, from);
    if (at == std::string_view::npos) break;
    result.append(text.substr(from, at - from)).append(with);
    from = at + what.size();
  }
  return result.append(text.substr(from));
}

std::u32string CodePoints(std::string_view text) {
  std::u32string codes;
  codes.reserve(text.size());
  for (size_t at = 0; at < text.size();) {
    const size_t length = CharacterBytes(text, at);
    codes.push_back(Decode(text, at, length));
    at += length;
  }
  return codes;
}

std::string FromCodePoint(char32_t code) {
  const auto byte = [](char32_t bits) { return static_cast<char>(bits); };
  if (code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) code = U'\uFFFD';
  if (code < 0x80) return {byte(code)};
  if (code < 0x800) return {byte(0xC0 | (code >> 6)), byte(0x80 | (code & 0x3F))};
  if (code < 0x10000) {
    return {byte(0xE0 | (code >> 12)), byte(0x80 | ((code >> 6) & 0x3F)),
            byte(0x80 | (code & 0x3F))};
  }
  return {byte(0xF0 | (code >> 18)), byte(0x80 | ((code >> 12) & 0x3F)),
          byte(0x80 | ((code >> 6) & 0x3F)), byte(0x80 | (code & 0x3F))};
}

bool IsUtf8(std::string_view bytes) {
  for (size_t at = 0; at < bytes.size();) {
    const size_t length = CharacterBytes(bytes, at);
    if (length == 1 && static_cast<unsigned char>(bytes[at]) >= 0x80) return false;
    at += length;
  }
  return true;
}

}  // namespace qvzj::basic
