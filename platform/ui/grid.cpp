#include "platform/ui/grid.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "platform/basic/number.h"
#include "platform/basic/sort_rows.h"

namespace qvzj::ui {

Grid::ColumnInfo& Grid::Info(int32_t column) {
  return const_cast<ColumnInfo&>(static_cast<const Grid&>(*this).Info(column));
}

const Grid::ColumnInfo& Grid::Info(int32_t column) const {
  if (column < 1 || column > ColumnCount()) {
    throw std::out_of_range(FullName() + ": no column " + std::to_string(column));
  }
  return columns_[static_cast<size_t>(column - 1)];
}

void Grid::CheckRow(int32_t row) const {
  if (row < 1 || row > row_count_) {
    throw std::out_of_range(FullName() + ": no row " + std::to_string(row));
  }
}

void Grid::ContentsChanged() {
  if (Visible()) {
    Changed(Aspect::GridContents);
  } else {
    changed_while_hidden_ = true;
  }
}

void Grid::Reappeared() {
  if (std::exchange(changed_while_hidden_, false)) Changed(Aspect::GridContents);
  if (std::exchange(marked_while_hidden_, false)) Changed(Aspect::GridMarked);
}

void Grid::CellsChanged(int32_t column) {
  if (column == sort_column_) sorted_ = false;
  ContentsChanged();
}

void Grid::SetColumnCount(int32_t count) {
  if (count < 0) throw std::out_of_range(FullName() + ": negative column count");
  if (count == ColumnCount()) return;
  const int32_t old_count = ColumnCount();
  columns_.resize(static_cast<size_t>(count));
  for (int32_t column = old_count + 1; column <= count; ++column) {
    Info(column).cells.Resize(static_cast<size_t>(row_count_));
  }
  active_column_ = std::clamp(active_column_, 1, std::max(count, 1));
  ContentsChanged();
}

void Grid::SetRowCount(int32_t count) {
  if (count < 0) throw std::out_of_range(FullName() + ": negative row count");
  sorted_ = false;
  marked_row_ = 0;
  if (count == row_count_ && order_.Empty()) return;
  order_ = {};
  const auto rows = static_cast<size_t>(count);
  if (row_palette_.Size() > rows) row_palette_.Resize(rows);
  if (rows == 0) row_palette_ = {};
  for (ColumnInfo& info : columns_) {
    if (rows == 0) info.cells = {};
    info.cells.Resize(rows);
  }
  row_count_ = count;
  active_row_ = std::clamp(active_row_, std::min(1, count), count);
  ContentsChanged();
}

const std::string& Grid::Header(int32_t column) const { return Info(column).header; }

std::string Grid::PlainHeader(int32_t column) const {
  const std::string_view header = Header(column);
  for (const std::string_view arrow : {"↑", "↓"}) {
    if (header.ends_with(arrow)) return std::string(header.substr(0, header.size() - arrow.size()));
  }
  return std::string(header);
}

void Grid::SetHeader(int32_t column, std::string text) {
  ColumnInfo& info = Info(column);
  if (text == info.header) return;
  info.header = std::move(text);
  ContentsChanged();
}

bool Grid::ColumnHidden(int32_t column) const { return Info(column).hidden; }

void Grid::SetColumnHidden(int32_t column, bool hidden) {
  if (std::exchange(Info(column).hidden, hidden) != hidden) ContentsChanged();
}

int32_t Grid::ColumnWidth(int32_t column) const { return Info(column).width; }

void Grid::SetColumnWidth(int32_t column, int32_t twips) {
  if (std::exchange(Info(column).width, twips) != twips) ContentsChanged();
}

int Grid::ColumnDecimals(int32_t column) const { return Info(column).decimals; }

void Grid::SetColumnDecimals(int32_t column, int decimals) {
  if (std::exchange(Info(column).decimals, decimals) != decimals) ContentsChanged();
}

bool Grid::ColumnSummed(int32_t column) const { return Info(column).summed; }

void Grid::SetColumnSummed(int32_t column, bool summed) { Info(column).summed = summed; }

std::string Grid::CellText(int32_t column, int32_t row) const {
  const ColumnInfo& info = Info(column);
  if (row == 0) return info.header;
  const size_t stored = StoredRow(row);
  const basic::Column::Kind kind = info.cells.GetKind();
  const bool number = kind == basic::Column::Kind::Integer || kind == basic::Column::Kind::Real;
  if (!number || info.decimals < 0 || info.cells.IsNull(stored)) return info.cells.Text(stored);
  return basic::FormatFixed(info.cells.Number(stored), info.decimals);
}

bool Grid::CellEmpty(int32_t column, int32_t row) const {
  const basic::Column& cells = Info(column).cells;
  const size_t stored = StoredRow(row);
  if (cells.IsNull(stored)) return true;
  return cells.GetKind() == basic::Column::Kind::Text && cells.TextView(stored).empty();
}

double Grid::CellNumber(int32_t column, int32_t row) const {
  return Info(column).cells.Number(StoredRow(row));
}

void Grid::SetCellText(int32_t column, int32_t row, std::string_view text) {
  basic::Column& cells = Info(column).cells;
  const size_t stored = StoredRow(row);
  if (text.empty()) {
    if (CellEmpty(column, row)) return;
    cells.SetNull(stored);
  } else {
    if (cells.Text(stored) == text) return;
    cells.SetText(stored, text);
  }
  CellsChanged(column);
}

void Grid::SetCellNumber(int32_t column, int32_t row, double value) {
  Info(column).cells.SetReal(StoredRow(row), value);
  CellsChanged(column);
}

void Grid::TakeColumn(int32_t column, basic::Column&& values) {
  ColumnInfo& info = Info(column);
  if (values.Size() != static_cast<size_t>(row_count_)) {
    throw std::out_of_range(FullName() + ": a column of " + std::to_string(values.Size()) +
                            " values for " + std::to_string(row_count_) + " rows");
  }
  info.cells = std::move(values);
  info.cells.Fit();
  CellsChanged(column);
}

void Grid::NegateColumn(int32_t column) {
  basic::Column& cells = Info(column).cells;
  for (size_t row = 0; row < cells.Size(); ++row) {
    const bool empty = cells.IsNull(row) || (cells.GetKind() == basic::Column::Kind::Text &&
                                             cells.TextView(row).empty());
    if (!empty) cells.SetReal(row, 0 - cells.Number(row));
  }
  CellsChanged(column);
}

const basic::Column& Grid::Stored(int32_t column) const { return Info(column).cells; }

size_t Grid::StoredRow(int32_t row) const {
  CheckRow(row);
  const auto shown = static_cast<size_t>(row - 1);
  return order_.Empty() ? shown : order_[shown];
}

std::optional<uint32_t> Grid::RowColor(int32_t row) const {
  const size_t stored = StoredRow(row);
  if (stored >= row_palette_.Size() || row_palette_[stored] == 0) return std::nullopt;
  return palette_[row_palette_[stored] - 1u];
}

void Grid::SetRowColor(int32_t row, uint32_t rgb) {
  const size_t stored = StoredRow(row);
  const auto found = std::find(palette_.begin(), palette_.end(), rgb);
  const auto place = static_cast<size_t>(found - palette_.begin());
  if (found == palette_.end()) {
    if (palette_.size() == UINT8_MAX) throw std::out_of_range(FullName() + ": too many colours");
    palette_.push_back(rgb);
  }
  if (stored >= row_palette_.Size()) row_palette_.Resize(static_cast<size_t>(row_count_));
  const auto color = static_cast<uint8_t>(place + 1);
  if (std::exchange(row_palette_[stored], color) != color) ContentsChanged();
}

void Grid::SetSortKey(int32_t column, SortOrder order) {
  if (column != 0) Info(column);
  sort_column_ = column;
  sort_order_ = order;
  sorted_ = false;
}

/// The shown row of a stored one; 0 for none.
int32_t Grid::ShownRow(size_t stored) const {
  if (order_.Empty()) return static_cast<int32_t>(stored) + 1;
  for (size_t row = 0; row < order_.Size(); ++row) {
    if (order_[row] == stored) return static_cast<int32_t>(row) + 1;
  }
  return 0;
}

void Grid::Sort(const basic::TextOrder* order) {
  const bool keyed =
      sort_column_ >= 1 && sort_column_ <= ColumnCount() && sort_order_ != SortOrder::None;
  const auto stored = [this](int32_t row) { return row > 0 ? StoredRow(row) : 0; };
  const size_t active = stored(active_row_);
  const size_t marked = stored(marked_row_);
  if (!keyed) {
    order_ = {};
  } else {
    if (order_.Empty()) {
      order_.Resize(static_cast<size_t>(row_count_));
      for (size_t row = 0; row < order_.Size(); ++row) order_[row] = static_cast<uint32_t>(row);
    }
    basic::SortRows(Stored(sort_column_), sort_order_ == SortOrder::Descending, order, order_);
  }
  sorted_ = keyed;
  if (active_row_ > 0) active_row_ = ShownRow(active);
  if (marked_row_ > 0) marked_row_ = ShownRow(marked);
  ContentsChanged();
  if (active_row_ > 0) ShowActive();
}

void Grid::SetActive(int32_t column, int32_t row) {
  Info(column);
  if (row != 0) CheckRow(row);
  if (column == active_column_ && row == active_row_) return;
  active_column_ = column;
  active_row_ = row;
  ShowActive();
}

void Grid::ShowActive() {
  if (Visible()) {
    Changed(Aspect::GridCurrent);
  } else {
    changed_while_hidden_ = true;
  }
}

void Grid::MarkRow(int32_t row) {
  CheckRow(row);
  marked_row_ = row;
  if (Visible()) {
    Changed(Aspect::GridMarked);
  } else {
    marked_while_hidden_ = true;
  }
}

void Grid::SetRowHeight(int32_t twips) {
  if (twips < 1) throw std::out_of_range(FullName() + ": row height below 1");
  if (std::exchange(row_height_, twips) != twips) ContentsChanged();
}

size_t Grid::MemoryBytes() const {
  size_t bytes = order_.MemoryBytes() + row_palette_.MemoryBytes();
  for (const ColumnInfo& info : columns_) bytes += info.cells.MemoryBytes();
  return bytes;
}

}  // namespace qvzj::ui
