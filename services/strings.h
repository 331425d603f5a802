#pragma once

#include <cstdint>
#include <string>

namespace qvzj {

/// Text `id` of the string table in the current language: simplified under the id itself,
/// traditional under id + 10000. Throws OverflowError when Language * 10000 + id leaves 16 bits
/// and ResourceNotFoundError when the table has no such text.
std::string LoadText(int16_t id);

/// A text in both languages.
struct BothTexts {
  const char* simplified;
  const char* traditional;
};
/// The one of both texts that is in the current language.
std::string LoadText(const BothTexts& texts);

}  // namespace qvzj
