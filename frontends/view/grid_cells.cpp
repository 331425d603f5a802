#include "frontends/view/grid_cells.h"

namespace qvzj::view {
namespace {

bool HoldsNumbers(const ui::Grid& grid, int32_t column) {
  const basic::Column::Kind kind = grid.Stored(column).GetKind();
  return kind == basic::Column::Kind::Real || kind == basic::Column::Kind::Integer;
}

}  // namespace

bool GridCells::Resized() const {
  return grid_ != nullptr && (grid_->RowCount() != rows_ || grid_->ColumnCount() != columns_);
}

void GridCells::TakeSize() {
  if (grid_ == nullptr) return;
  rows_ = grid_->RowCount();
  columns_ = grid_->ColumnCount();
  numeric_.clear();
  for (int32_t column = 1; column <= columns_; ++column) {
    numeric_.push_back(HoldsNumbers(*grid_, column) || grid_->ColumnDecimals(column) >= 0);
  }
}

void GridCells::Detach() {
  grid_ = nullptr;
  rows_ = 0;
  columns_ = 0;
}

std::string GridCells::Text(int32_t column, int32_t row) const {
  return Inside(column, row) ? grid_->CellText(column, row) : std::string();
}

std::string GridCells::Header(int32_t column) const {
  if (grid_ == nullptr || column < 1 || column > grid_->ColumnCount()) return {};
  return grid_->PlainHeader(column);
}

bool GridCells::IsNumeric(int32_t column) const {
  return column >= 1 && column <= columns_ && numeric_[static_cast<size_t>(column - 1)];
}

bool GridCells::ShowsNegative(int32_t column, int32_t row) const {
  if (!Inside(column, row) || !HoldsNumbers(*grid_, column)) return false;
  // What is left of a sum below half a cent is shown as 0.00.
  return !grid_->CellEmpty(column, row) && grid_->CellNumber(column, row) < 0 &&
         grid_->CellText(column, row).starts_with('-');
}

std::optional<Color> GridCells::RowColor(int32_t row, bool dark) const {
  if (!Inside(1, row)) return std::nullopt;
  const std::optional<uint32_t> given = grid_->RowColor(row);
  if (!given) return std::nullopt;
  return RowTint(*given, dark);
}

bool GridCells::Inside(int32_t column, int32_t row) const {
  return grid_ != nullptr && row >= 1 && column >= 1 && row <= grid_->RowCount() &&
         column <= grid_->ColumnCount();
}

}  // namespace qvzj::view
