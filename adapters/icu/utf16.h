#pragma once

#include <string>
#include <string_view>

namespace qvzj {

/// UTF-16 of a UTF-8 text; malformed bytes become U+FFFD.
std::u16string ToUtf16(std::string_view utf8);
/// Puts the UTF-8 of a UTF-16 text into `utf8`, whose room is used again; an unpaired surrogate
/// becomes U+FFFD.
void ToUtf8(std::u16string_view utf16, std::string& utf8);

}  // namespace qvzj
