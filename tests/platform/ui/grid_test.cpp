#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "tests/platform/ui/screen.h"

namespace qvzj::ui {
namespace {

using basic::Column;

/// Orders texts by their length, so that a test sees that its keys decide.
struct ByLength : basic::TextOrder {
  std::string SortKey(std::string_view text) const override {
    ++calls;
    return std::string(1, static_cast<char>(text.size()));
  }
  mutable int calls = 0;
};

/// Orders texts by their last digit: thousands of texts, ten sort keys.
struct ByLastDigit : basic::TextOrder {
  std::string SortKey(std::string_view text) const override {
    return "the same beginning " + std::string(text.substr(text.size() - 1));
  }
};

std::string ColumnTexts(const Grid& grid, int32_t column) {
  std::string texts;
  for (int32_t row = 1; row <= grid.RowCount(); ++row) texts += grid.CellText(column, row) + "|";
  return texts;
}

void FillTexts(Grid& grid, const std::vector<std::string>& texts) {
  grid.SetColumnCount(2);
  grid.SetRowCount(static_cast<int32_t>(texts.size()));
  int32_t row = 0;
  for (const std::string& text : texts) {
    grid.SetCellText(1, ++row, text);
    grid.SetCellNumber(2, row, row);
  }
}

void Sort(Grid& grid, int32_t column, SortOrder order,
          const basic::TextOrder* text_order = nullptr) {
  grid.SetSortKey(column, order);
  grid.Sort(text_order);
}

TEST(Grid, ShowsHeadersTextsAndNumbers) {
  Screen screen;
  Grid& grid = screen.grid;
  grid.SetColumnCount(3);
  grid.SetRowCount(2);
  grid.SetHeader(2, "余额");
  grid.SetColumnDecimals(2, 2);
  grid.SetCellText(1, 1, "票号");
  grid.SetCellNumber(2, 1, 1.005);
  grid.SetCellNumber(3, 2, 12.5);
  EXPECT_EQ(grid.CellText(2, 0), "余额");
  EXPECT_EQ(grid.CellText(1, 1), "票号");
  EXPECT_EQ(grid.CellText(2, 1), "1.01");
  EXPECT_EQ(grid.CellNumber(2, 1), 1.005);
  EXPECT_EQ(grid.CellText(3, 2), "12.5");
  EXPECT_EQ(grid.CellText(2, 2), "");
  EXPECT_EQ(grid.CellNumber(2, 2), 0);
  EXPECT_TRUE(grid.CellEmpty(2, 2));
}

TEST(Grid, TakesAWholeColumnOver) {
  Screen screen;
  Column dates;
  dates.AppendDate(basic::Date::FromYmd(2024, 2, 29));
  dates.AppendNull();
  screen.grid.SetColumnCount(1);
  screen.grid.SetRowCount(2);
  screen.grid.TakeColumn(1, std::move(dates));
  EXPECT_EQ(ColumnTexts(screen.grid, 1), "2024-02-29||");
  Column short_column;
  short_column.AppendNull();
  EXPECT_THROW(screen.grid.TakeColumn(1, std::move(short_column)), std::out_of_range);
}

TEST(Grid, RefusesAColumnOrRowThatIsNotThere) {
  Screen screen;
  Grid& grid = screen.grid;
  grid.SetColumnCount(1);
  grid.SetRowCount(1);
  EXPECT_THROW(grid.CellText(0, 1), std::out_of_range);
  EXPECT_THROW(grid.CellText(2, 1), std::out_of_range);
  EXPECT_THROW(grid.CellText(1, 2), std::out_of_range);
  EXPECT_THROW(grid.CellText(1, -1), std::out_of_range);
  EXPECT_THROW(grid.SetCellNumber(1, 0, 1), std::out_of_range);
  EXPECT_THROW(grid.SetRowColor(2, 0), std::out_of_range);
  EXPECT_THROW(grid.SetActive(1, 2), std::out_of_range);
  EXPECT_THROW(grid.SetRowCount(-1), std::out_of_range);
}

TEST(Grid, EmptiesACellWithAnEmptyText) {
  Screen screen;
  FillTexts(screen.grid, {"a"});
  screen.grid.SetCellText(2, 1, "");
  EXPECT_TRUE(screen.grid.CellEmpty(2, 1));
  EXPECT_EQ(screen.grid.Stored(2).GetKind(), Column::Kind::Real);
}

TEST(Grid, NegatesAColumnAndLeavesEmptyCellsEmpty) {
  Screen screen;
  Grid& grid = screen.grid;
  grid.SetColumnCount(1);
  grid.SetRowCount(3);
  grid.SetColumnDecimals(1, 2);
  grid.SetCellNumber(1, 1, 12.5);
  grid.SetCellNumber(1, 3, 0);
  grid.NegateColumn(1);
  EXPECT_EQ(ColumnTexts(grid, 1), "-12.50||0.00|");
  grid.NegateColumn(1);
  EXPECT_EQ(ColumnTexts(grid, 1), "12.50||0.00|");
}

TEST(Grid, NegatesNumbersThatAreKeptAsIntegersOrTexts) {
  Screen screen;
  Grid& grid = screen.grid;
  grid.SetColumnCount(2);
  grid.SetRowCount(2);
  Column integers;
  integers.AppendInteger(7);
  integers.AppendNull();
  grid.TakeColumn(1, std::move(integers));
  grid.SetCellText(2, 1, "3.5 元");
  grid.NegateColumn(1);
  grid.NegateColumn(2);
  EXPECT_EQ(ColumnTexts(grid, 1), "-7||");
  EXPECT_EQ(ColumnTexts(grid, 2), "-3.5||");
}

TEST(Grid, SortsNumbersByValueWithEmptyCellsLastInEitherOrder) {
  Screen screen;
  Grid& grid = screen.grid;
  grid.SetColumnCount(1);
  grid.SetRowCount(6);
  const double values[] = {3, -2.5, 100, 0, -2.5};
  for (int32_t row = 1; row <= 5; ++row) grid.SetCellNumber(1, row, values[row - 1]);
  Sort(grid, 1, SortOrder::Ascending);
  EXPECT_EQ(ColumnTexts(grid, 1), "-2.5|-2.5|0|3|100||");
  Sort(grid, 1, SortOrder::Descending);
  EXPECT_EQ(ColumnTexts(grid, 1), "100|3|0|-2.5|-2.5||");
}

TEST(Grid, SortsDatesAndIntegersByValue) {
  Screen screen;
  Grid& grid = screen.grid;
  grid.SetColumnCount(2);
  grid.SetRowCount(3);
  Column dates;
  for (int day : {15, 1}) dates.AppendDate(basic::Date::FromYmd(2024, 3, day));
  dates.AppendDate(basic::Date::FromYmd(1899, 1, 1));
  grid.TakeColumn(1, std::move(dates));
  Column integers;
  for (int value : {-5, 7, 0}) integers.AppendInteger(value);
  grid.TakeColumn(2, std::move(integers));
  Sort(grid, 1, SortOrder::Ascending);
  EXPECT_EQ(ColumnTexts(grid, 1), "1899-01-01|2024-03-01|2024-03-15|");
  Sort(grid, 2, SortOrder::Descending);
  EXPECT_EQ(ColumnTexts(grid, 2), "7|0|-5|");
}

TEST(Grid, SortsTextsByTheirBytesOrByAnOrder) {
  Screen screen;
  FillTexts(screen.grid, {"bb", "a", "", "ccc", "a", "abcdefgh", "abcdefg"});
  Sort(screen.grid, 1, SortOrder::Ascending);
  EXPECT_EQ(ColumnTexts(screen.grid, 1), "a|a|abcdefg|abcdefgh|bb|ccc||");
  const ByLength by_length;
  Sort(screen.grid, 1, SortOrder::Descending, &by_length);
  EXPECT_EQ(ColumnTexts(screen.grid, 1), "abcdefgh|abcdefg|ccc|bb|a|a||");
}

TEST(Grid, MakesTheSortKeyOfATextOnce) {
  Screen screen;
  FillTexts(screen.grid, {"b", "a", "b", "a", "b", ""});
  const ByLength order;
  Sort(screen.grid, 1, SortOrder::Ascending, &order);
  EXPECT_EQ(order.calls, 2);
}

TEST(Grid, KeepsTheOrderOfEqualRowsInEitherDirection) {
  Screen screen;
  FillTexts(screen.grid, {"b", "a", "b", "a"});
  Sort(screen.grid, 1, SortOrder::Ascending);
  EXPECT_EQ(ColumnTexts(screen.grid, 2), "2|4|1|3|");
  Sort(screen.grid, 1, SortOrder::Descending);
  EXPECT_EQ(ColumnTexts(screen.grid, 2), "1|3|2|4|");
}

TEST(Grid, SortsTextsOfEqualSortKeysAsEqual) {
  Screen screen;
  FillTexts(screen.grid, {"zz", "c", "aa", "b"});
  const ByLength order;
  Sort(screen.grid, 1, SortOrder::Ascending, &order);
  EXPECT_EQ(ColumnTexts(screen.grid, 1), "c|b|zz|aa|");
}

TEST(Grid, SortsManyRowsAsAStableComparisonWould) {
  Screen screen;
  Grid& grid = screen.grid;
  constexpr int32_t kRows = 20000;
  std::vector<std::string> texts;
  std::vector<double> numbers;
  uint32_t random = 1;
  for (int32_t i = 0; i < kRows; ++i) {
    random = random * 1664525u + 1013904223u;
    texts.push_back("PZ2024-" + std::to_string(random >> 14));
    numbers.push_back((random >> 16) % 2000 / 4.0 - 250);
  }
  grid.SetVisible(false);
  grid.SetColumnCount(2);
  grid.SetRowCount(kRows);
  Column text_column;
  Column number_column;
  for (int32_t i = 0; i < kRows; ++i) {
    text_column.AppendText(texts[static_cast<size_t>(i)]);
    number_column.AppendReal(numbers[static_cast<size_t>(i)]);
  }
  grid.TakeColumn(1, std::move(text_column));
  grid.TakeColumn(2, std::move(number_column));
  std::vector<uint32_t> expected(kRows);
  for (uint32_t i = 0; i < kRows; ++i) expected[i] = i;
  const auto check = [&] {
    for (int32_t row = 1; row <= kRows; ++row) {
      ASSERT_EQ(grid.StoredRow(row), expected[static_cast<size_t>(row - 1)]) << row;
    }
  };
  Sort(grid, 1, SortOrder::Ascending);
  std::stable_sort(expected.begin(), expected.end(),
                   [&](uint32_t a, uint32_t b) { return texts[a] < texts[b]; });
  check();
  Sort(grid, 2, SortOrder::Descending);
  std::stable_sort(expected.begin(), expected.end(),
                   [&](uint32_t a, uint32_t b) { return numbers[a] > numbers[b]; });
  check();
  const ByLastDigit by_last_digit;
  Sort(grid, 1, SortOrder::Ascending, &by_last_digit);
  std::stable_sort(expected.begin(), expected.end(),
                   [&](uint32_t a, uint32_t b) { return texts[a].back() < texts[b].back(); });
  check();
}

TEST(Grid, GoesBackToTheFilledOrderWithoutASortKey) {
  Screen screen;
  FillTexts(screen.grid, {"b", "a"});
  Sort(screen.grid, 1, SortOrder::Ascending);
  Sort(screen.grid, 1, SortOrder::None);
  EXPECT_EQ(ColumnTexts(screen.grid, 1), "b|a|");
}

TEST(Grid, KeepsColoursAndTheActiveRowWithTheirCells) {
  Screen screen;
  FillTexts(screen.grid, {"b", "a", "c"});
  screen.grid.SetRowColor(1, 0xE0E0E0);
  screen.grid.SetActive(1, 1);
  Sort(screen.grid, 1, SortOrder::Ascending);
  EXPECT_EQ(screen.grid.RowColor(2), 0xE0E0E0u);
  EXPECT_EQ(screen.grid.RowColor(1), std::nullopt);
  EXPECT_EQ(screen.grid.ActiveRow(), 2);
  EXPECT_EQ(screen.grid.CellText(1, 2), "b");
  screen.grid.SetCellText(1, 2, "B");  // writes go to the shown row as well
  EXPECT_EQ(screen.grid.Stored(1).Text(0), "B");
}

TEST(Grid, ForgetsRowsColoursAndSortingWithItsRowCount) {
  Screen screen;
  Grid& grid = screen.grid;
  FillTexts(grid, {"b", "a"});
  grid.SetRowColor(2, 0xE0E0E0);
  grid.SetActive(2, 2);
  Sort(grid, 1, SortOrder::Ascending);
  grid.SetRowCount(1);
  EXPECT_EQ(ColumnTexts(grid, 1), "b|");
  EXPECT_EQ(grid.ActiveRow(), 1);
  grid.SetRowCount(0);
  EXPECT_EQ(grid.ActiveRow(), 0);
  grid.SetRowCount(2);
  EXPECT_EQ(ColumnTexts(grid, 1), "||");
  EXPECT_EQ(grid.RowColor(2), std::nullopt);
  EXPECT_EQ(grid.ActiveRow(), 1);
  EXPECT_EQ(grid.GetSortOrder(), SortOrder::Ascending);
}

TEST(Grid, BringsTheActiveRowBackIntoSightAfterASort) {
  Screen screen;
  FillTexts(screen.grid, {"b", "a", "c"});
  screen.changes.clear();
  Sort(screen.grid, 1, SortOrder::Descending);
  EXPECT_EQ(screen.Told(screen.grid, Aspect::GridCurrent), 1);
}

TEST(Grid, IsSortedOnlyWhileTheRowsStandInTheOrderOfTheColumn) {
  Screen screen;
  Grid& grid = screen.grid;
  FillTexts(grid, {"b", "a", "c"});
  EXPECT_EQ(grid.SortedColumn(), 0);
  Sort(grid, 2, SortOrder::Descending);
  EXPECT_EQ(grid.SortedColumn(), 2);
  grid.SetCellText(1, 1, "elsewhere");
  EXPECT_EQ(grid.SortedColumn(), 2);
  grid.NegateColumn(2);
  EXPECT_EQ(grid.SortedColumn(), 0);
  Sort(grid, 1, SortOrder::Ascending);
  FillTexts(grid, {"x", "w"});  // filled anew
  EXPECT_EQ(grid.SortedColumn(), 0);
  EXPECT_EQ(grid.SortColumn(), 1);  // what the next click on the header turns around
  Sort(grid, 1, SortOrder::None);
  EXPECT_EQ(grid.SortedColumn(), 0);
}

TEST(Grid, MarksARowThatKeepsItsMarkThroughASort) {
  Screen screen;
  Grid& grid = screen.grid;
  FillTexts(grid, {"b", "a", "c"});
  EXPECT_EQ(grid.MarkedRow(), 0);
  grid.SetVisible(false);
  grid.MarkRow(1);
  EXPECT_EQ(screen.Told(grid, Aspect::GridMarked), 0);
  grid.SetVisible(true);
  EXPECT_EQ(screen.Told(grid, Aspect::GridMarked), 1);
  Sort(grid, 1, SortOrder::Ascending);
  EXPECT_EQ(grid.MarkedRow(), 2);
  grid.SetRowCount(0);
  EXPECT_EQ(grid.MarkedRow(), 0);
  EXPECT_THROW(grid.MarkRow(1), std::out_of_range);
}

TEST(Grid, TellsNothingWhileItIsHiddenAndEverythingAtOnceAfterwards) {
  Screen screen;
  screen.grid.SetVisible(false);
  screen.changes.clear();
  FillTexts(screen.grid, {"a", "b", "c"});
  screen.grid.SetActive(1, 2);
  EXPECT_TRUE(screen.changes.empty());
  screen.grid.SetVisible(true);
  EXPECT_EQ(screen.Told(screen.grid, Aspect::GridContents), 1);
  screen.grid.SetVisible(false);
  screen.grid.SetVisible(true);
  EXPECT_EQ(screen.Told(screen.grid, Aspect::GridContents), 1);
}

TEST(Grid, HoldsAMillionRowsInPackedColumns) {
  Screen screen;
  Grid& grid = screen.grid;
  constexpr int32_t kRows = 1000000;
  grid.SetColumnCount(2);
  grid.SetRowCount(kRows);
  Column names;
  Column amounts;
  for (int32_t i = 0; i < kRows; ++i) {
    names.AppendText(i % 1000 < 500 ? "上海" : "北京");
    amounts.AppendReal(i);
  }
  grid.TakeColumn(1, std::move(names));
  grid.TakeColumn(2, std::move(amounts));
  EXPECT_LE(grid.MemoryBytes(), 13u * kRows);
  EXPECT_EQ(grid.CellText(2, kRows), "999999");
}

TEST(GridKeys, MoveTheActiveCellThroughTheLeaveEvent) {
  Screen screen;
  FillTexts(screen.grid, {"a", "b", "c"});
  std::string log;
  screen.grid.onLeaveCell = [&](int32_t column, int32_t row, int32_t new_column, int32_t new_row,
                                bool&) {
    log += std::to_string(column) + std::to_string(row) + ">" + std::to_string(new_column) +
           std::to_string(new_row) + " ";
    EXPECT_EQ(screen.grid.ActiveRow(), row);  // raised before the move
  };
  screen.SetFocus(screen.grid);
  screen.Keys({"Down", "Right", "Right", "Up", "Up", "PageDown", "Home", "End"});
  EXPECT_EQ(log, "11>12 12>22 22>21 21>23 23>21 21>23 ");
}

TEST(GridKeys, PassOverHiddenColumns) {
  Screen screen;
  screen.grid.SetColumnCount(3);
  screen.grid.SetRowCount(1);
  screen.grid.SetColumnHidden(2, true);
  screen.SetFocus(screen.grid);
  screen.Keys({"Right"});
  EXPECT_EQ(screen.grid.ActiveColumn(), 3);
  screen.grid.SetColumnHidden(1, true);
  screen.Keys({"Left"});
  EXPECT_EQ(screen.grid.ActiveColumn(), 3);
}

TEST(GridKeys, MoveByThePageThatTheFrontEndShows) {
  Screen screen;
  screen.grid.SetColumnCount(1);
  screen.grid.SetRowCount(100);
  screen.grid.SetPageRows(30);
  screen.SetFocus(screen.grid);
  screen.Keys({"PageDown", "PageDown", "PageUp"});
  EXPECT_EQ(screen.grid.ActiveRow(), 31);
  screen.Keys({"PageUp", "PageUp"});
  EXPECT_EQ(screen.grid.ActiveRow(), 1);
}

TEST(GridKeys, DoNothingInAnEmptyGrid) {
  Screen screen;
  screen.grid.SetColumnCount(1);
  screen.SetFocus(screen.grid);
  screen.Keys({"Down", "End", "Home", "PageUp", "Right"});
  EXPECT_EQ(screen.grid.ActiveRow(), 0);
  EXPECT_TRUE(screen.errors.empty());
}

TEST(GridMouse, MovesUnlessTheHandlerCancels) {
  Screen screen;
  FillTexts(screen.grid, {"a", "b"});
  bool refuse = true;
  int clicks = 0;
  screen.grid.onLeaveCell = [&](int32_t, int32_t, int32_t, int32_t, bool& cancel) {
    cancel = refuse;
  };
  screen.grid.onClick = [&](int32_t, int32_t) { ++clicks; };
  EXPECT_FALSE(screen.UserCell(screen.grid, 2, 2));
  EXPECT_EQ(screen.grid.ActiveRow(), 1);
  refuse = false;
  EXPECT_TRUE(screen.UserCell(screen.grid, 2, 2));
  EXPECT_EQ(screen.grid.ActiveRow(), 2);
  EXPECT_EQ(clicks, 1);
  EXPECT_FALSE(screen.UserCell(screen.grid, 2, 3));
}

TEST(GridMouse, SurvivesAHandlerThatRefillsTheGrid) {
  Screen screen;
  FillTexts(screen.grid, {"a", "b", "c"});
  screen.grid.onLeaveCell = [&](int32_t, int32_t, int32_t, int32_t, bool&) {
    screen.grid.SetRowCount(1);
  };
  EXPECT_FALSE(screen.UserCell(screen.grid, 1, 3));
  EXPECT_EQ(screen.grid.ActiveRow(), 1);
}

TEST(GridMouse, StaysWhereItWasWhenTheHandlerFails) {
  Screen screen;
  FillTexts(screen.grid, {"a", "b"});
  screen.grid.onLeaveCell = [](int32_t, int32_t, int32_t, int32_t, bool&) {
    throw std::runtime_error("database is locked");
  };
  EXPECT_FALSE(screen.UserCell(screen.grid, 1, 2));
  EXPECT_EQ(screen.grid.ActiveRow(), 1);
  EXPECT_EQ(screen.errors.size(), 1u);
}

TEST(GridMouse, ClicksHeadersAndDoubleClicksCells) {
  Screen screen;
  FillTexts(screen.grid, {"a", "b"});
  std::string log;
  screen.grid.onClick = [&](int32_t column, int32_t row) {
    log += "click" + std::to_string(column) + std::to_string(row) + " ";
  };
  screen.grid.onDblClick = [&](int32_t column, int32_t row) {
    log += "double" + std::to_string(column) + std::to_string(row) + " ";
  };
  EXPECT_TRUE(screen.UserHeader(screen.grid, 2));
  EXPECT_TRUE(screen.UserCellDoubleClick(screen.grid, 1, 2));
  EXPECT_TRUE(screen.UserCellDoubleClick(screen.grid, 1, 0));
  EXPECT_FALSE(screen.UserHeader(screen.grid, 3));
  EXPECT_EQ(log, "click20 double12 double10 ");
  EXPECT_EQ(screen.grid.ActiveRow(), 2);
}

TEST(GridMouse, HandsARowHeightToTheBehaviour) {
  Screen screen;
  FillTexts(screen.grid, {"a", "b"});
  screen.grid.onRowHeight = [&](int32_t, int32_t, int32_t height) {
    screen.grid.SetRowHeight(height);
  };
  EXPECT_TRUE(screen.UserRowHeight(screen.grid, 1, 1, 450));
  EXPECT_EQ(screen.grid.RowHeight(), 450);
  EXPECT_FALSE(screen.UserRowHeight(screen.grid, 1, 1, 0));
}

}  // namespace
}  // namespace qvzj::ui
