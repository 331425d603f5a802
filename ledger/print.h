#pragma once

#include <string>

#include "platform/ui/grid.h"

namespace qvzj {

struct frmZj;

/// Connects the two print buttons.
void ConnectPrint(frmZj& form);
/// Hands `grid`, the totals and the context to the suite's print component; nothing when the grid
/// has no rows.
void PrintGrid(frmZj& form, ui::Grid& grid, const std::string& title, const std::string& report,
               const std::string& extra);

}  // namespace qvzj
