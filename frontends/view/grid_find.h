#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/ui/grid.h"

namespace qvzj::view {

/// A cell, 1-based.
struct FoundCell {
  int32_t column = 0;
  int32_t row = 0;
};

/// The first cell after the active one (before it when `backwards`) whose shown text contains
/// `text`, row by row through `columns` (1-based, as the user sees them from left to right) and
/// around at the end; ASCII case does not count. Empty when no other cell does.
std::optional<FoundCell> FindText(const ui::Grid& grid, const std::vector<int32_t>& columns,
                                  std::string_view text, bool backwards);

}  // namespace qvzj::view
