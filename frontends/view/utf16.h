#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Texts at the edge between the module (UTF-8, positions in characters) and native editors
/// (UTF-16, positions in code units).
namespace qvzj::view {

std::u16string ToUtf16(std::string_view text);
/// Half a pair of units, which is no character, becomes U+FFFD.
std::string ToUtf8(std::u16string_view text);

/// Characters that lie before the position.
int32_t CharactersBefore(std::u16string_view text, size_t position);

/// Position behind the first `characters` characters; the end when there are fewer.
int32_t Utf16Position(std::u16string_view text, int32_t characters);

}  // namespace qvzj::view
