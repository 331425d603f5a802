#include <gtest/gtest.h>

#include <map>

#include "frontends/view/column_arrangement.h"
#include "frontends/view/grid_cells.h"
#include "frontends/view/grid_find.h"
#include "frontends/view/grid_menu.h"
#include "frontends/view/grid_selection.h"
#include "platform/ui/form.h"

namespace qvzj::view {
namespace {

/// Three columns (a text, an amount, a text) of three rows.
class GridWork : public ::testing::Test {
 protected:
  GridWork() {
    grid_.SetColumnCount(3);
    grid_.SetRowCount(3);
    grid_.SetColumnDecimals(2, 2);
    grid_.SetColumnSummed(2, true);
    for (int32_t column = 1; column <= 3; ++column) {
      grid_.SetHeader(column, "H" + std::to_string(column));
    }
    Row(1, "P1", 100.5, "a");
    Row(2, "P2", -0.001, "b\tc\n d");
    Row(3, "XP3", -70, "");
    grid_.SetActive(1, 1);
  }
  void Row(int32_t row, const char* name, double amount, const char* note) {
    grid_.SetCellText(1, row, name);
    grid_.SetCellNumber(2, row, amount);
    grid_.SetCellText(3, row, note);
  }

  ui::Form form_{"frm"};
  ui::Grid grid_{form_, "Grid1"};
};

TEST_F(GridWork, SetsOnlyAmountsApartThatAreShownBelowZero) {
  GridCells cells(grid_);
  cells.TakeSize();
  EXPECT_FALSE(cells.ShowsNegative(2, 1));
  EXPECT_FALSE(cells.ShowsNegative(2, 2)) << "shown as 0.00";
  EXPECT_TRUE(cells.ShowsNegative(2, 3));
  EXPECT_TRUE(cells.IsNumeric(2));
  EXPECT_FALSE(cells.IsNumeric(1));
}

TEST_F(GridWork, ShowsNothingOutsideTheGridOrAfterItHasGone) {
  GridCells cells(grid_);
  cells.TakeSize();
  EXPECT_EQ(cells.Text(4, 1), "");
  EXPECT_EQ(cells.Text(1, 0), "");
  grid_.SetRowCount(2);
  EXPECT_TRUE(cells.Resized());
  EXPECT_EQ(cells.Text(1, 3), "") << "the grid is ahead of what the window shows";
  cells.Detach();
  EXPECT_EQ(cells.Rows(), 0);
  EXPECT_EQ(cells.Text(1, 1), "");
}

TEST_F(GridWork, CopiesRowsUnderTheirHeadersOnePieceACell) {
  EXPECT_EQ(CopiedText(grid_, {3, 1}, {2, 3}), "H3\tH1\nb c d\tP2\n\tXP3\n");
}

TEST_F(GridWork, CopiesWideAndNarrowBlanksAsOne) {
  grid_.SetCellText(3, 1, "\u3000甲\u3000 \u2003乙\u00a0");
  EXPECT_EQ(CopiedText(grid_, {3}, {1}), "H3\n甲 乙\n");
}

TEST_F(GridWork, AddsUpTheSelectedAmounts) {
  EXPECT_EQ(SelectionSummary(grid_, {1, 2, 3}, {1, 3}, TextsOf(false)),
            "已选 2 行    H2 合计 30.50");
  EXPECT_EQ(SelectionSummary(grid_, {1, 2, 3}, {1}, TextsOf(false)), "");
}

TEST_F(GridWork, TakesEveryRowOfOverlappingRangesOnce) {
  EXPECT_EQ(RowsOf({{3, 4}, {1, 3}}), (std::vector<int32_t>{1, 2, 3, 4}));
}

TEST_F(GridWork, SelectsFromTheAnchorToEitherSide) {
  SelectionAnchor anchor;
  EXPECT_EQ(anchor.To(2).first, 2) << "no anchor yet";
  anchor.Put(2);
  EXPECT_EQ(anchor.To(3).first, 2);
  EXPECT_EQ(anchor.To(3).last, 3);
  EXPECT_EQ(anchor.To(1).first, 1);
  EXPECT_EQ(anchor.To(1).last, 2);
}

TEST_F(GridWork, ExtendsNoFurtherThanItsRows) {
  grid_.SetActive(1, 3);
  EXPECT_EQ(ExtensionTarget(grid_, ui::Key::Name::Down), 3);
  EXPECT_EQ(ExtensionTarget(grid_, ui::Key::Name::PageUp), 1);
  EXPECT_EQ(ExtensionTarget(grid_, ui::Key::Name::Home), 1);
  grid_.SetRowCount(0);
  EXPECT_EQ(ExtensionTarget(grid_, ui::Key::Name::End), 0);
}

TEST_F(GridWork, LeavesTheArrowOfAHeaderToTheWindow) {
  grid_.SetHeader(1, "编号↓");
  const GridCells cells(grid_);
  EXPECT_EQ(cells.Header(1), "编号");
}

TEST_F(GridWork, LooksIntoNumbersAsTheyAreShown) {
  grid_.SetCellNumber(2, 2, 12.5);
  const auto found = FindText(grid_, {1, 2, 3}, "12.50", false);
  ASSERT_TRUE(found.has_value());
  EXPECT_EQ(found->row, 2);
}

TEST_F(GridWork, FindsInTheOrderTheUserGaveTheColumns) {
  grid_.SetCellText(1, 2, "x");
  grid_.SetCellText(3, 2, "x");
  grid_.SetCellText(1, 3, "");
  const auto natural = FindText(grid_, {1, 2, 3}, "X", false);
  ASSERT_TRUE(natural.has_value());
  EXPECT_EQ(natural->column, 1);
  const auto arranged = FindText(grid_, {3, 2, 1}, "X", false);
  ASSERT_TRUE(arranged.has_value());
  EXPECT_EQ(arranged->column, 3);
  grid_.SetActive(3, 2);
  const auto next = FindText(grid_, {3, 2, 1}, "X", false);
  ASSERT_TRUE(next.has_value());
  EXPECT_EQ(next->column, 1) << "which stands to the right of it";
}

TEST_F(GridWork, FindsNothingWhereNoOtherCellHasTheText) {
  EXPECT_FALSE(FindText(grid_, {1, 2, 3}, "nowhere", true).has_value());
  EXPECT_FALSE(FindText(grid_, {}, "P", false).has_value());
}

TEST_F(GridWork, StepsToTheVisibleNeighbourInTheUsersOrder) {
  grid_.SetColumnHidden(2, true);
  EXPECT_EQ(NeighbourColumn(grid_, {2, 1, 0}, -1), 3);
  EXPECT_EQ(NeighbourColumn(grid_, {2, 1, 0}, 1), 0);
  EXPECT_EQ(VisibleColumns(grid_, {2, 1, 0}), (std::vector<int32_t>{3, 1}));
}

TEST_F(GridWork, OffersPrintingOnlyWhereThereIsAButtonThatCan) {
  ui::Button print(form_, "cmdPrint");
  EXPECT_EQ(GridMenu(grid_, false, TextsOf(false)).size(), 4U);
  grid_.offers.print = &print;
  print.SetEnabled(false);
  const auto menu = GridMenu(grid_, true, TextsOf(false));
  ASSERT_EQ(menu.size(), 6U);
  EXPECT_EQ(menu[3].act, GridAct::Export);
  EXPECT_EQ(menu[4].act, GridAct::Print);
  EXPECT_FALSE(menu[4].enabled);
  grid_.SetRowCount(0);
  EXPECT_FALSE(GridMenu(grid_, true, TextsOf(false)).front().enabled);
}

class FakeStore : public NumberStore {
 public:
  std::vector<int> Numbers(const std::string& name) const override {
    const auto found = kept.find(name);
    return found == kept.end() ? std::vector<int>{} : found->second;
  }
  void KeepNumbers(const std::string& name, const std::vector<int>& numbers) override {
    kept[name] = numbers;
  }
  void Forget(const std::string& name) override { kept.erase(name); }

  std::map<std::string, std::vector<int>> kept;
};

TEST_F(GridWork, PutsBackWhatTheUserArranged) {
  FakeStore store;
  ColumnArrangement(grid_, &store).Design({10, 20, 30});
  {
    ColumnArrangement arrangement(grid_, &store);
    arrangement.Design({10, 20, 30});
    arrangement.Keep({{10, 25, 30}, {2, 0, 1}});
  }
  EXPECT_EQ(store.kept["columns/frm.Grid1/widths"], (std::vector<int>{0, 25, 0}))
      << "what was never touched follows the design";
  const auto layout = ColumnArrangement(grid_, &store).Design({11, 20, 30});
  ASSERT_TRUE(layout.has_value());
  EXPECT_EQ(layout->widths, (std::vector<int>{11, 25, 30}));
  EXPECT_EQ(layout->order, (std::vector<int>{2, 0, 1}));
}

TEST_F(GridWork, IgnoresWhatIsNoOrderOfItsColumns) {
  FakeStore store;
  KeepColumns(store, "g", {{0, 0}, {1, 1}});
  EXPECT_FALSE(KeptColumns(store, "g", 2).has_value());
  KeepColumns(store, "g", {{0, 0}, {1, 0}});
  EXPECT_TRUE(KeptColumns(store, "g", 2).has_value());
  EXPECT_FALSE(KeptColumns(store, "g", 3).has_value());
}

TEST_F(GridWork, ForgetsTheArrangementOnRequest) {
  FakeStore store;
  ColumnArrangement arrangement(grid_, &store);
  arrangement.Design({10, 20, 30});
  arrangement.Keep({{10, 25, 30}, {2, 0, 1}});
  EXPECT_EQ(arrangement.Reset().order, (std::vector<int>{0, 1, 2}));
  EXPECT_TRUE(store.kept.empty());
}

}  // namespace
}  // namespace qvzj::view
