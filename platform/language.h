#pragma once

#include <cstdint>

namespace qvzj {

/// The language that the screen speaks.
enum class Language : uint8_t { Simplified, Traditional };

/// What a language property of the host (0 simplified, 1 traditional Chinese) stands for; texts
/// that the string table does not carry read simplified for any other value.
constexpr Language LanguageOf(int16_t property) {
  return property == 1 ? Language::Traditional : Language::Simplified;
}

}  // namespace qvzj
