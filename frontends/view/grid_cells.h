#pragma once

#include <optional>
#include <string>
#include <vector>

#include "frontends/view/look.h"
#include "platform/ui/grid.h"

namespace qvzj::view {

/// The cells of a form's grid as a window shows them: one at a time, only those that are painted,
/// straight out of the packed columns. Columns and rows are 1-based; what lies outside is empty.
class GridCells {
 public:
  explicit GridCells(const ui::Grid& grid) : grid_(&grid) {}

  /// True when the grid's size is another one than was taken over last: the grid may be ahead of
  /// what the window shows.
  bool Resized() const;
  /// Takes over the grid's size and which of its columns are numbers.
  void TakeSize();
  /// The grid goes away; there is no cell any more.
  void Detach();
  int32_t Rows() const { return rows_; }
  int32_t Columns() const { return columns_; }

  std::string Text(int32_t column, int32_t row) const;
  /// Without the arrow that the form may have written into it: a window draws its own, which
  /// stands by the column that the rows are sorted by and goes when they no longer are.
  std::string Header(int32_t column) const;
  /// True for a column of numbers, which stand to the right.
  bool IsNumeric(int32_t column) const;
  /// True for an amount below zero that is also shown as one.
  bool ShowsNegative(int32_t column, int32_t row) const;
  /// The row's own colour on a light or dark page; empty when it has none.
  std::optional<Color> RowColor(int32_t row, bool dark) const;

 private:
  bool Inside(int32_t column, int32_t row) const;

  const ui::Grid* grid_;
  int32_t rows_ = 0;
  int32_t columns_ = 0;
  std::vector<bool> numeric_;
};

}  // namespace qvzj::view
