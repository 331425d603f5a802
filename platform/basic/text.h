#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Text rules of the host's language over UTF-8. Positions are 1-based and, like lengths, count
/// characters (code points), never bytes. Malformed bytes count as one character each.
namespace qvzj::basic {

/// Number of characters.
int32_t Len(std::string_view text);
/// The first `count` characters; the whole text when it is shorter, "" when count < 1.
std::string Left(std::string_view text, int32_t count);
/// The last `count` characters; the whole text when it is shorter, "" when count < 1.
std::string Right(std::string_view text, int32_t count);
/// The characters from 1-based `start` on; "" past the end. `start` below 1 is taken as 1.
std::string Mid(std::string_view text, int32_t start);
/// At most `count` characters from 1-based `start` on.
std::string Mid(std::string_view text, int32_t start, int32_t count);
/// Without leading and trailing blanks (U+0020 only).
std::string Trim(std::string_view text);
/// ASCII letters in upper case; every other character as it is.
std::string Upper(std::string_view text);
/// ASCII letters in lower case; every other character as it is.
std::string Lower(std::string_view text);
/// True when both texts are equal but for the case of ASCII letters.
bool EqualIgnoringCase(std::string_view a, std::string_view b);
/// `text` cut or filled with blanks to exactly `width` characters.
std::string Pad(std::string_view text, int32_t width);
/// `text` with every occurrence of `what` replaced by `with`.
std::string Replace(std::string_view text, std::string_view what, std::string_view with);
/// The code points of `text`; a malformed byte becomes U+FFFD.
std::u32string CodePoints(std::string_view text);
/// UTF-8 of one code point; U+FFFD for a number that is none.
std::string FromCodePoint(char32_t code);
/// True when the bytes are well-formed UTF-8.
bool IsUtf8(std::string_view bytes);

}  // namespace qvzj::basic
