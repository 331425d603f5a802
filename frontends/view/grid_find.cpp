#include "frontends/view/grid_find.h"

#include <algorithm>
#include <string>
#include <vector>

namespace qvzj::view {

namespace {

char Folded(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool Contains(std::string_view where, std::string_view what) {
  return std::search(where.begin(), where.end(), what.begin(), what.end(),
                     [](char a, char b) { return Folded(a) == Folded(b); }) != where.end();
}

bool CellContains(const ui::Grid& grid, FoundCell cell, std::string_view text) {
  const basic::Column& stored = grid.Stored(cell.column);
  if (stored.GetKind() == basic::Column::Kind::Text) {
    return Contains(stored.TextView(grid.StoredRow(cell.row)), text);
  }
  return Contains(grid.CellText(cell.column, cell.row), text);
}

}  // namespace

std::optional<FoundCell> FindText(const ui::Grid& grid, const std::vector<int32_t>& columns,
                                  std::string_view text, bool backwards) {
  if (columns.empty() || text.empty() || grid.RowCount() == 0) return std::nullopt;

  // Cells are numbered row by row; the walk goes once around from the active one.
  const auto width = static_cast<int64_t>(columns.size());
  const int64_t cells = width * grid.RowCount();
  const auto place = std::find(columns.begin(), columns.end(), grid.ActiveColumn());
  const int64_t start = int64_t{std::max(grid.ActiveRow(), 1) - 1} * width +
                        (place == columns.end() ? 0 : place - columns.begin());
  for (int64_t step = 1; step < cells; ++step) {
    const int64_t at = (start + (backwards ? cells - step : step)) % cells;
    const FoundCell cell{columns[static_cast<size_t>(at % width)],
                         static_cast<int32_t>(at / width) + 1};
    if (CellContains(grid, cell, text)) return cell;
  }
  return std::nullopt;
}

}  // namespace qvzj::view
