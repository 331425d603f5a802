#pragma once

#include <string>
#include <vector>

#include "frontends/view/texts.h"
#include "platform/ui/grid.h"

/// What can be done with the selected rows of a grid. Rows and columns are 1-based.
namespace qvzj::view {

/// Rows from first to last.
struct RowRange {
  int32_t first = 0;
  int32_t last = 0;
};

/// The rows of the ranges in their order, each once. A selection of a million rows is one range.
std::vector<int32_t> RowsOf(const std::vector<RowRange>& ranges);

/// The rows under their headers, columns parted by tabs, as the clipboard gets them.
std::string CopiedText(const ui::Grid& grid, const std::vector<int32_t>& columns,
                       const std::vector<int32_t>& rows);

/// "3 rows, sum of …" over the columns that are summed; empty for fewer than two rows.
std::string SelectionSummary(const ui::Grid& grid, const std::vector<int32_t>& columns,
                             const std::vector<int32_t>& rows, const Texts& texts);

}  // namespace qvzj::view
