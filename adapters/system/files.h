#pragma once

#include "platform/services.h"

namespace qvzj {

/// The machine's file system. Both slash kinds part the folders of a pattern.
class SystemFiles : public Files {
 public:
  bool AnyNormalFile(const std::string& pattern) const override;
};

/// True when `name` matches `pattern`: "*" stands for any characters, "?" for one; ASCII case is
/// ignored, as in the file patterns that users know.
bool MatchesPattern(std::string_view name, std::string_view pattern);

}  // namespace qvzj
