#pragma once

#include <optional>
#include <string_view>

#include "platform/ui/grid.h"

namespace qvzj::qt {

/// A cell, 1-based.
struct FoundCell {
  int32_t column = 0;
  int32_t row = 0;
};

/// The first cell after the active one (before it when `backwards`) whose shown text contains
/// `text`, row by row through the visible columns and around at the end; ASCII case does not
/// count. Empty when no other cell does.
std::optional<FoundCell> FindText(const ui::Grid& grid, std::string_view text, bool backwards);

}  // namespace qvzj::qt
