#pragma once

#include <cstdint>
#include <string>

namespace qvzj::dialogues {

/// A text of the suite's own components in the user's language: 1 is traditional Chinese, anything
/// else simplified.
inline std::string InLanguage(int16_t language, const char* simplified, const char* traditional) {
  return language == 1 ? traditional : simplified;
}

}  // namespace qvzj::dialogues
