#pragma once

#include <string>
#include <vector>

#include "frontends/view/texts.h"
#include "platform/ui/grid.h"
#include "platform/ui/key.h"

/// What can be done with the selected rows of a grid. Rows and columns are 1-based.
namespace qvzj::view {

/// Rows from first to last.
struct RowRange {
  int32_t first = 0;
  int32_t last = 0;
};

/// The end of a selection that stays where it is while the other one moves. Whatever moves the
/// active row without Shift, by mouse, key or program, puts the anchor there.
class SelectionAnchor {
 public:
  void Put(int32_t row) { row_ = row; }
  int32_t Row() const { return row_; }
  /// The rows from the anchor to `row`; that row alone where there is no anchor yet.
  RowRange To(int32_t row) const;

 private:
  int32_t row_ = 0;
};

/// The row to which a key extends the selection from the active row; 0 in a grid without rows.
int32_t ExtensionTarget(const ui::Grid& grid, ui::Key::Name key);

/// The rows of the ranges in their order, each once. A selection of a million rows is one range.
std::vector<int32_t> RowsOf(const std::vector<RowRange>& ranges);

/// The rows under their headers, columns parted by tabs, as the clipboard gets them.
std::string CopiedText(const ui::Grid& grid, const std::vector<int32_t>& columns,
                       const std::vector<int32_t>& rows);

/// "3 rows, sum of …" over the columns that are summed; empty for fewer than two rows.
std::string SelectionSummary(const ui::Grid& grid, const std::vector<int32_t>& columns,
                             const std::vector<int32_t>& rows, const Texts& texts);

}  // namespace qvzj::view
