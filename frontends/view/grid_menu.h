#pragma once

#include <string_view>
#include <vector>

#include "frontends/view/texts.h"
#include "platform/ui/grid.h"

namespace qvzj::view {

/// What people expect of any grid.
enum class GridAct { CopyRows, Find, FindAgain, Export, Print, ResetColumns };

struct GridMenuEntry {
  GridAct act = GridAct::CopyRows;
  std::string_view text;
  std::string_view keys;  ///< shown beside it, such as "Ctrl+C"; may be empty
  bool enabled = false;
  bool begins_group = false;  ///< a line parts it from the entry before
};

/// The menu of a grid; `exports` tells whether there is a component that writes files.
std::vector<GridMenuEntry> GridMenu(const ui::Grid& grid, bool exports, const Texts& texts);

}  // namespace qvzj::view
