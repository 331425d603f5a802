#include <gtest/gtest.h>

#include <QHeaderView>

#include "frontends/qt/grid_model.h"
#include "tests/frontends/qt/window_world.h"

namespace qvzj::test {
namespace {

/// The ledger of one customer with a checked entry and a negative balance.
class LedgerTable : public ::testing::Test {
 protected:
  LedgerTable() : form_(Filled()), view_(world_.GridOf(form_.Grid2)), table_(*view_.Table()) {}

  frmZj& Filled() {
    world_.AddEntry("2024-01-02", "P1", 100, 30);
    world_.AddEntry("2024-01-03", "P2", 50, 500, "李四");
    world_.AddEntry("2024-01-04", "P3", 70, 0);
    return world_.Show();
  }
  QVariant At(int row, int column, int role = Qt::DisplayRole) {
    return table_.model()->index(row, column).data(role);
  }
  void ClickCell(int row, int column) {
    const QRect cell = table_.visualRect(table_.model()->index(row, column));
    QTest::mouseClick(table_.viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
    world_.Settle();
  }
  void ClickHeader(int column) {
    QHeaderView* header = table_.horizontalHeader();
    const QPoint at(header->sectionViewportPosition(column) + 10, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    world_.Settle();
  }

  WindowWorld world_;
  frmZj& form_;
  qt::GridView& view_;
  qt::GridTable& table_;
};

TEST_F(LedgerTable, ShowsEveryRowAndHidesTheHiddenColumns) {
  EXPECT_EQ(table_.model()->rowCount(), 3);
  EXPECT_EQ(table_.model()->columnCount(), 18);
  EXPECT_FALSE(table_.isColumnHidden(11));
  EXPECT_TRUE(table_.isColumnHidden(12));
  EXPECT_TRUE(table_.isColumnHidden(17));
}

TEST_F(LedgerTable, ShowsDatesAndAmountsAsTheFormFormatsThem) {
  EXPECT_EQ(At(0, 0).toString(), "2024-01-02");
  EXPECT_EQ(At(0, 3).toString(), "100.00");
}

TEST_F(LedgerTable, AlignsAmountsToTheRight) {
  EXPECT_TRUE(At(0, 3, Qt::TextAlignmentRole).value<Qt::Alignment>().testFlag(Qt::AlignRight));
  EXPECT_TRUE(At(0, 1, Qt::TextAlignmentRole).value<Qt::Alignment>().testFlag(Qt::AlignLeft));
}

TEST_F(LedgerTable, SetsNegativeAmountsApart) {
  EXPECT_EQ(At(1, 5).toString(), "-380.00");
  EXPECT_TRUE(At(1, 5, Qt::ForegroundRole).isValid());
  EXPECT_FALSE(At(0, 5, Qt::ForegroundRole).isValid());
}

TEST_F(LedgerTable, GreysCheckedRows) {
  EXPECT_EQ(At(1, 0, Qt::BackgroundRole).value<QBrush>().color().rgb() & 0xffffffU, 0xe0e0e0U);
  EXPECT_FALSE(At(0, 0, Qt::BackgroundRole).isValid());
}

TEST_F(LedgerTable, MovesTheFormsCellByMouse) {
  ClickCell(2, 1);
  EXPECT_EQ(form_.Grid2.ActiveRow(), 3);
  EXPECT_EQ(form_.chkAcntInit.Tag(), "3");
  EXPECT_EQ(form_.Focused(), &form_.Grid2);
}

TEST_F(LedgerTable, MovesTheFormsCellByKey) {
  ClickCell(0, 1);
  QTest::keyClick(&table_, Qt::Key_Down);
  EXPECT_EQ(form_.Grid2.ActiveRow(), 2);
  EXPECT_EQ(table_.currentIndex().row(), 1);
}

TEST_F(LedgerTable, SortsByAHeaderAndMarksIt) {
  ClickHeader(1);
  EXPECT_EQ(form_.Grid2.SortColumn(), 2);
  EXPECT_EQ(At(0, 1).toString(), "P3");
  EXPECT_TRUE(table_.horizontalHeader()->isSortIndicatorShown());
  EXPECT_EQ(table_.horizontalHeader()->sortIndicatorSection(), 1);
}

TEST_F(LedgerTable, KeepsTheSelectionOnItsPlaceAfterASort) {
  ClickCell(1, 1);
  ClickHeader(1);
  EXPECT_EQ(table_.currentIndex().row(), 1);
}

TEST_F(LedgerTable, KeepsTheWholeCaptionOfASortedColumn) {
  const QHeaderView* header = table_.horizontalHeader();
  const auto room = [&] {
    QStyleOptionHeader option;
    option.initFrom(header);
    option.rect = QRect(0, 0, header->sectionSize(1), header->height());
    option.section = 1;
    option.sortIndicator =
        header->isSortIndicatorShown() ? QStyleOptionHeader::SortDown : QStyleOptionHeader::None;
    return header->style()->subElementRect(QStyle::SE_HeaderLabel, &option, header).width();
  };
  const int before = room();
  form_.UserHeader(form_.Grid2, 2);
  world_.Settle();
  ASSERT_TRUE(header->isSortIndicatorShown());
  EXPECT_EQ(room(), before);
}

TEST_F(LedgerTable, TakesTheArrowAwayWhenTheOrderHasGone) {
  form_.UserHeader(form_.Grid2, 2);
  world_.Settle();
  ASSERT_TRUE(table_.horizontalHeader()->isSortIndicatorShown());
  form_.Grid2.SetCellText(2, 1, "another");
  world_.Window().Flush();
  EXPECT_FALSE(table_.horizontalHeader()->isSortIndicatorShown());
}

TEST(GridTable, KeepsTheCurrentRowInSightWhenTheEditorOpens) {
  WindowWorld world;
  for (int i = 10; i < 70; ++i) {
    world.AddEntry("2024-01-02", "P" + std::to_string(i), 100, 30);
  }
  frmZj& form = world.Show();
  const qt::GridTable& table = *world.GridOf(form.Grid2).Table();
  form.UserFocus(form.Grid2);
  form.UserCell(form.Grid2, 1, 1);
  form.UserCell(form.Grid2, 1, 1 + form.Grid2.PageRows());
  world.Settle();
  const int before = table.viewport()->height();
  form.UserClick(form.cmdAction(1));
  world.Settle();
  ASSERT_LT(table.viewport()->height(), before);
  const QRect row = table.visualRect(table.currentIndex());
  EXPECT_TRUE(table.viewport()->rect().contains(row.center()));
}

TEST_F(LedgerTable, MarksARowForAMomentAndBringsItIntoSight) {
  form_.Grid2.MarkRow(form_.Grid2.RowCount());
  world_.Window().Flush();
  EXPECT_EQ(table_.MarkedRow(), form_.Grid2.RowCount() - 1);
  const QRect row = table_.visualRect(table_.model()->index(table_.MarkedRow(), 1));
  EXPECT_TRUE(table_.viewport()->rect().contains(row.center()));
  EXPECT_TRUE(QTest::qWaitFor([&] { return table_.MarkedRow() == -1; }));
}

TEST_F(LedgerTable, OpensTheEntryByDoubleClick) {
  const QRect cell = table_.visualRect(table_.model()->index(1, 1));
  QTest::mouseClick(table_.viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
  QTest::mouseDClick(table_.viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
  EXPECT_TRUE(form_.picAcnt.Visible());
  EXPECT_EQ(world_.Text(world_.Line(form_.txtAcnt2(1))), "P2");
}

TEST_F(LedgerTable, GivesEveryRowTheHeightOfTheOneThatWasDragged) {
  table_.verticalHeader()->resizeSection(0, 40);
  world_.Settle();
  EXPECT_EQ(table_.rowHeight(0), 40);
  EXPECT_EQ(table_.rowHeight(2), 40);
}

/// Counts the paintings of one widget and remembers whether it was ever hidden.
struct Watch : QObject {
  explicit Watch(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    if (event->type() == QEvent::Hide) hidden = true;
    return false;
  }
  int paints = 0;
  bool hidden = false;
};

TEST_F(LedgerTable, IsPaintedOnceForALoad) {
  form_.UserFocus(form_.cmdAcntRefresh);
  world_.Settle();
  world_.AddEntry("2024-01-05", "P4", 10, 0);
  Watch grid(*table_.viewport());
  world_.Window().Act([&] { return form_.UserClick(form_.cmdAcntRefresh); });
  world_.Settle();
  EXPECT_EQ(table_.model()->rowCount(), 4);
  EXPECT_EQ(grid.paints, 1);
  EXPECT_FALSE(grid.hidden);
}

TEST_F(LedgerTable, ShowsTheHourglassWhileItLoads) {
  struct : ui::FormObserver {
    void ControlChanged(ui::Control& control, ui::Aspect aspect) override {
      if (control.GetKind() != ui::Kind::Grid || aspect != ui::Aspect::Visible) return;
      busy = busy || QApplication::overrideCursor() != nullptr;
    }
    void FormChanged(ui::Form&, ui::Aspect) override {}
    void PopUpMenu(ui::Form&, ui::MenuItem&, int32_t, int32_t) override {}
    bool busy = false;
  } watch;
  form_.AddObserver(&watch);
  world_.Window().Act([&] { return form_.UserClick(form_.cmdAcntRefresh); });
  form_.RemoveObserver(&watch);
  EXPECT_TRUE(watch.busy);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(LedgerTable, WalksByThePageAndToBothEnds) {
  for (int i = 4; i <= 60; ++i) world_.AddEntry("2024-02-01", "P" + std::to_string(i), 1, 0);
  form_.UserClick(form_.cmdAcntRefresh);
  form_.UserFocus(form_.Grid2);
  world_.Settle();
  const auto press = [&](Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
    QTest::keyClick(&table_, key, with);
    world_.Settle();
    const QRect row = table_.visualRect(table_.currentIndex());
    EXPECT_TRUE(row.top() >= 0 && row.bottom() <= table_.viewport()->height());
    return form_.Grid2.ActiveRow();
  };
  for (Qt::KeyboardModifiers with : {Qt::NoModifier, Qt::ControlModifier}) {
    EXPECT_EQ(press(Qt::Key_End, with), 60);
    EXPECT_EQ(press(Qt::Key_Home, with), 1);
  }
  const int page = press(Qt::Key_PageDown);
  EXPECT_GT(page, 5);
  EXPECT_EQ(press(Qt::Key_PageUp), 1);
}

TEST_F(LedgerTable, StepsSidewaysByTheOrderOfTheUser) {
  form_.UserFocus(form_.Grid2);
  form_.UserCell(form_.Grid2, 1, 1);
  world_.Settle();
  table_.horizontalHeader()->moveSection(6, 1);
  QTest::keyClick(&table_, Qt::Key_Right);
  EXPECT_EQ(form_.Grid2.ActiveColumn(), 7);
  QTest::keyClick(&table_, Qt::Key_Right);
  EXPECT_EQ(form_.Grid2.ActiveColumn(), 2);
  for (int i = 0; i < 4; ++i) QTest::keyClick(&table_, Qt::Key_Left);
  EXPECT_EQ(form_.Grid2.ActiveColumn(), 1);
  for (int i = 0; i < 30; ++i) QTest::keyClick(&table_, Qt::Key_Right);
  EXPECT_EQ(form_.Grid2.ActiveColumn(), 12);  // those behind are hidden
}

TEST_F(LedgerTable, FollowsTheRegisterToAnotherCustomer) {
  qt::GridView& registers = world_.GridOf(form_.Grid1);
  const QRect cell = registers.Table()->visualRect(registers.Table()->model()->index(1, 1));
  QTest::mouseClick(registers.Table()->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
  world_.Settle();
  EXPECT_EQ(form_.lblKhName.Caption(), "乙公司");
  EXPECT_EQ(table_.model()->rowCount(), 0);
}

TEST(GridTable, ShowsNoZeroAsANegativeAmount) {
  ui::Form form("frm");
  ui::Grid grid(form, "Grid1");
  grid.SetColumnCount(1);
  grid.SetRowCount(2);
  grid.SetColumnDecimals(1, 2);
  grid.SetCellNumber(1, 1, -0.004);
  grid.SetCellNumber(1, 2, -0.005);
  qt::GridModel model(grid);
  model.Refresh();
  EXPECT_FALSE(model.index(0, 0).data(Qt::ForegroundRole).isValid());
  EXPECT_TRUE(model.index(1, 0).data(Qt::ForegroundRole).isValid());
}

TEST(GridTable, TakesAMillionRows) {
  ui::Form form("frm");
  ui::Grid grid(form, "Grid1");
  grid.SetColumnCount(2);
  grid.SetRowCount(1000000);
  grid.SetCellText(1, 1000000, "last");
  qt::GridModel model(grid);
  model.Refresh();
  QTableView table;
  table.setModel(&model);
  EXPECT_EQ(model.rowCount(), 1000000);
  EXPECT_EQ(model.index(999999, 0).data().toString(), "last");
}

}  // namespace
}  // namespace qvzj::test
