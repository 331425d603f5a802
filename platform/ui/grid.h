#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/basic/column.h"
#include "platform/basic/text_order.h"
#include "platform/ui/control.h"

namespace qvzj::ui {

enum class SortOrder : uint8_t { None = 0, Ascending = 1, Descending = 2 };

/// What can be done with a grid's contents besides looking at them; front ends offer it.
struct GridOffers {
  Control* print = nullptr;            ///< the button that prints the grid; null: it is not printed
  std::function<std::string()> title;  ///< of a file made from the grid
  std::function<std::vector<std::string>()> totals;  ///< caption, value, caption, …, at its end
  /// Names what the columns stand for, where one grid shows different ones: what a user arranges
  /// for the one is not taken for the other.
  std::function<std::string()> columns;
};

/// A spreadsheet-like list that holds a million rows. Columns and rows are 1-based; row 0 is the
/// header. Cells live in packed columns; sorting permutes the rows without moving a cell. Whoever
/// fills it hides it first and shows it afterwards: a hidden grid tells the front ends nothing, and
/// everything at once when it comes back. A column, row or length that is not there throws
/// std::out_of_range.
class Grid : public Control {
 public:
  Grid(Form& form, std::string name, int index = -1, Control* container = nullptr, int page = -1)
      : Control(form, Kind::Grid, std::move(name), index, container, page) {}

  int32_t ColumnCount() const { return static_cast<int32_t>(columns_.size()); }
  /// New columns are empty and visible.
  void SetColumnCount(int32_t count);
  int32_t RowCount() const { return row_count_; }
  /// New rows are empty. Setting the count forgets the sorted order's permutation, the row
  /// colours of rows beyond it, and moves the active row into range (0 when there are none).
  void SetRowCount(int32_t count);

  const std::string& Header(int32_t column) const;
  /// The header without the arrow that marks the sorted column; for lists outside the window.
  std::string PlainHeader(int32_t column) const;
  void SetHeader(int32_t column, std::string text);
  bool ColumnHidden(int32_t column) const;
  void SetColumnHidden(int32_t column, bool hidden);
  /// Width in twips that the form designed; a front end may let the user change what it shows.
  int32_t ColumnWidth(int32_t column) const;
  void SetColumnWidth(int32_t column, int32_t twips);
  /// Shows numbers of the column with that many decimals, right-aligned; -1 = as they are.
  int ColumnDecimals(int32_t column) const;
  void SetColumnDecimals(int32_t column, int decimals);
  /// True for a column of amounts whose sum says something; front ends show that of chosen rows.
  bool ColumnSummed(int32_t column) const;
  void SetColumnSummed(int32_t column, bool summed);

  /// The shown text; row 0 is the header.
  std::string CellText(int32_t column, int32_t row) const;
  bool CellEmpty(int32_t column, int32_t row) const;
  /// The value itself, not the shown text: numbers as kept, texts by their leading number, empty
  /// cells 0.
  double CellNumber(int32_t column, int32_t row) const;
  void SetCellText(int32_t column, int32_t row, std::string_view text);
  void SetCellNumber(int32_t column, int32_t row, double value);
  /// Takes a whole column over; its length must be the row count. Null cells are empty.
  void TakeColumn(int32_t column, basic::Column&& values);
  /// Turns every number of the column into its negation; empty cells stay empty.
  void NegateColumn(int32_t column);
  /// The packed values in the order in which they were filled (not the sorted one).
  const basic::Column& Stored(int32_t column) const;
  /// 0-based place in Stored() of a 1-based shown row.
  size_t StoredRow(int32_t row) const;

  /// Back colour of a row as 0xRRGGBB; it moves with the row when the grid is sorted.
  std::optional<uint32_t> RowColor(int32_t row) const;
  /// At most 255 different colours.
  void SetRowColor(int32_t row, uint32_t rgb);

  int32_t SortColumn() const { return sort_column_; }
  SortOrder GetSortOrder() const { return sort_order_; }
  /// Sets the first sort key (column 0: none) without sorting.
  void SetSortKey(int32_t column, SortOrder order);
  /// Orders the rows by the sort key; equal keys keep their order. Numbers and dates order by
  /// value, texts by `order` (null: by their bytes), empty cells behind all others in either order:
  /// who sorts a column looks for what stands in it. The active row goes where its cells go.
  /// Without a sort key the rows go back to the order in which they were filled.
  void Sort(const basic::TextOrder* order);
  /// The column by whose present values the rows stand in GetSortOrder(); 0 once they were filled
  /// anew or the column's cells have changed. An arrow belongs to this column alone.
  int32_t SortedColumn() const { return sorted_ ? sort_column_ : 0; }

  int32_t ActiveColumn() const { return active_column_; }
  int32_t ActiveRow() const { return active_row_; }
  /// Makes a cell the active one (row 0: none); no event.
  void SetActive(int32_t column, int32_t row);
  /// Brings the active cell into sight again where the front end shows only a part of the rows.
  void ShowActive();
  /// Brings a row into sight and marks it for a moment: something has just happened to it.
  void MarkRow(int32_t row);
  /// The row that was marked last; 0 when it is not there any more.
  int32_t MarkedRow() const { return marked_row_; }
  /// Rows that PageUp and PageDown move by; a front end sets what it shows at once.
  int32_t PageRows() const { return page_rows_; }
  void SetPageRows(int32_t rows) { page_rows_ = rows < 1 ? 1 : rows; }
  /// Height of every row in twips.
  int32_t RowHeight() const { return row_height_; }
  void SetRowHeight(int32_t twips);

  size_t MemoryBytes() const;

  GridOffers offers;

  /// A cell or, with row 0, a header was clicked.
  std::function<void(int32_t column, int32_t row)> onClick;
  std::function<void(int32_t column, int32_t row)> onDblClick;
  /// The user moves the active cell; raised before it moves. `cancel` keeps it where it is.
  std::function<void(int32_t column, int32_t row, int32_t new_column, int32_t new_row,
                     bool& cancel)>
      onLeaveCell;
  /// The user changed the height (twips) of the rows from first to last.
  std::function<void(int32_t first, int32_t last, int32_t height)> onRowHeight;

 private:
  struct ColumnInfo {
    basic::Column cells;
    std::string header;
    int32_t width = 1200;
    int decimals = -1;
    bool hidden = false;
    bool summed = false;
  };

  ColumnInfo& Info(int32_t column);
  const ColumnInfo& Info(int32_t column) const;
  void CheckRow(int32_t row) const;
  void ContentsChanged();
  void CellsChanged(int32_t column);
  int32_t ShownRow(size_t stored) const;
  void Reappeared() override;

  std::vector<ColumnInfo> columns_;
  int32_t row_count_ = 0;
  basic::Buffer<uint32_t> order_;       // shown row - 1 -> stored row; empty = unsorted
  basic::Buffer<uint8_t> row_palette_;  // by stored row: index into palette_ + 1, 0 = none
  std::vector<uint32_t> palette_;
  int32_t sort_column_ = 0;
  SortOrder sort_order_ = SortOrder::None;
  int32_t active_column_ = 1;
  int32_t active_row_ = 0;
  int32_t row_height_ = 300;
  int32_t page_rows_ = 20;
  int32_t marked_row_ = 0;
  bool sorted_ = false;
  bool changed_while_hidden_ = false;
  bool marked_while_hidden_ = false;
};

}  // namespace qvzj::ui
