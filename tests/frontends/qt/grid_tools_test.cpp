#include "frontends/qt/grid_tools.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QLabel>
#include <QMenu>
#include <QSettings>
#include <QTimer>
#include <QToolTip>
#include <QTreeView>

#include "frontends/qt/ask_file.h"
#include "frontends/qt/column_keeper.h"
#include "frontends/qt/export_grid.h"
#include "frontends/qt/layout_store.h"
#include "suite/export/suite_exporter.h"
#include "tests/frontends/qt/window_world.h"
#include "tests/support/temporary_folder.h"

namespace qvzj::test {
namespace {

class Tools : public ::testing::Test {
 protected:
  Tools() : form_(Filled()), view_(world_.GridOf(form_.Grid2)), table_(*view_.Table()) {}

  frmZj& Filled() {
    world_.AddEntry("2024-01-02", "P1", 100.5, 30);
    world_.AddEntry("2024-01-03", "P2", 50.25, 0);
    world_.AddEntry("2024-01-04", "XP3", 70, 0);
    return world_.Show();
  }
  void SelectRows(int first, int last) {
    form_.UserFocus(form_.Grid2);
    world_.Settle();
    table_.selectionModel()->select(
        QItemSelection(table_.model()->index(first, 0), table_.model()->index(last, 17)),
        QItemSelectionModel::ClearAndSelect);
  }

  WindowWorld world_;
  frmZj& form_;
  qt::GridView& view_;
  qt::GridTable& table_;
};

TEST_F(Tools, CopyTheSelectedRowsUnderTheirHeaders) {
  SelectRows(0, 1);
  QTest::keyClick(&table_, Qt::Key_C, Qt::ControlModifier);
  const QStringList lines = QGuiApplication::clipboard()->text().split('\n');
  ASSERT_EQ(lines.size(), 4);
  EXPECT_TRUE(lines.at(0).startsWith("日期\t票号\t客户单位\t应收"));
  EXPECT_TRUE(lines.at(1).startsWith("2024-01-02\tP1\t甲公司\t100.50\t30.00\t70.50"));
  EXPECT_EQ(lines.at(1).count('\t'), 11);
  EXPECT_EQ(lines.at(3), "");
}

TEST_F(Tools, CopyColumnsInTheOrderTheUserGaveThem) {
  table_.horizontalHeader()->moveSection(1, 0);
  SelectRows(0, 0);
  EXPECT_TRUE(view_.Tools().SelectedText().startsWith("票号\t日期\t"));
}

TEST_F(Tools, AddUpTheAmountsOfTheSelectedRows) {
  SelectRows(0, 2);
  const QString summary = view_.Tools().Summary();
  EXPECT_TRUE(summary.startsWith("已选 3 行")) << qPrintable(summary);
  EXPECT_TRUE(summary.contains("合计 220.75")) << qPrintable(summary);
  EXPECT_EQ(summary.count("合计"), 2) << "a running balance has no sum";
}

TEST_F(Tools, SayNothingOfASingleRow) {
  SelectRows(1, 1);
  EXPECT_EQ(view_.Tools().Summary(), "");
}

TEST_F(Tools, ExtendTheSelectionFromWhereTheArrowsWent) {
  form_.UserFocus(form_.Grid2);
  world_.Settle();
  const QPoint first = table_.visualRect(table_.model()->index(0, 1)).center();
  QTest::mouseClick(table_.viewport(), Qt::LeftButton, {}, first);
  QTest::keyClick(&table_, Qt::Key_Down);
  QTest::keyClick(&table_, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(form_.Grid2.ActiveRow(), 3);
  EXPECT_TRUE(view_.Tools().Summary().contains("合计 120.25"))
      << qPrintable(view_.Tools().Summary());
  QTest::keyClick(&table_, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text().count('\n'), 3) << "the header and two rows";
  QTest::keyClick(&table_, Qt::Key_Home, Qt::ShiftModifier);
  EXPECT_TRUE(view_.Tools().Summary().contains("合计 150.75"))
      << "around the anchor to the other side: " << qPrintable(view_.Tools().Summary());
}

TEST_F(Tools, ExtendTheSelectionByShiftAndMouseFromWhereTheArrowsWent) {
  form_.UserFocus(form_.Grid2);
  world_.Settle();
  const auto at = [&](int row) {
    return table_.visualRect(table_.model()->index(row, 1)).center();
  };
  QTest::mouseClick(table_.viewport(), Qt::LeftButton, {}, at(0));
  QTest::keyClick(&table_, Qt::Key_Down);
  QTest::mouseClick(table_.viewport(), Qt::LeftButton, Qt::ShiftModifier, at(2));
  EXPECT_TRUE(view_.Tools().Summary().startsWith("已选 2 行"))
      << qPrintable(view_.Tools().Summary());
}

TEST_F(Tools, TellTheSumsBelowTheRowsAndTakeThemAwayWithThem) {
  auto* sums = view_.Pane()->findChild<QLabel*>("sums");
  ASSERT_NE(sums, nullptr);
  EXPECT_FALSE(sums->isVisible());
  SelectRows(0, 2);
  ASSERT_TRUE(sums->isVisible());
  EXPECT_FALSE(sums->geometry().intersects(table_.geometry())) << "it hides no rows";
  EXPECT_EQ(sums->geometry().bottom(), view_.Pane()->rect().bottom());
  form_.UserClick(form_.cmdAction(0));
  world_.Settle();
  form_.UserClick(form_.cmdAcntCancel);
  world_.Settle();
  EXPECT_EQ(sums->geometry().bottom(), view_.Pane()->rect().bottom());
  form_.UserTab(form_.SSTab2, 1);
  world_.Settle();
  EXPECT_FALSE(sums->isVisible()) << "other amounts, other rows";
}

TEST_F(Tools, FindTheNextCellAndGoThere) {
  form_.UserCell(form_.Grid2, 1, 1);
  EXPECT_TRUE(view_.Tools().Find("xp3", false));
  EXPECT_EQ(form_.Grid2.ActiveRow(), 3);
  EXPECT_EQ(form_.Grid2.ActiveColumn(), 2);
  EXPECT_EQ(form_.chkAcntInit.Tag(), "3");
}

TEST_F(Tools, FindBackwardsAroundTheStart) {
  form_.UserCell(form_.Grid2, 2, 1);
  EXPECT_TRUE(view_.Tools().Find("P3", true));
  EXPECT_EQ(form_.Grid2.ActiveRow(), 3);
}

TEST_F(Tools, StayWhereTheyAreWhenNothingIsFound) {
  form_.UserCell(form_.Grid2, 2, 2);
  EXPECT_FALSE(view_.Tools().Find("nowhere", false));
  EXPECT_EQ(form_.Grid2.ActiveRow(), 2);
}

TEST_F(Tools, FindByTheLineOverTheGrid) {
  form_.UserFocus(form_.Grid2);
  form_.UserCell(form_.Grid2, 1, 1);
  world_.Settle();
  QTest::keyClick(&table_, Qt::Key_F, Qt::ControlModifier);
  world_.Settle();
  auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  ASSERT_NE(line, nullptr);
  QTest::keyClicks(line, "P2");
  QTest::keyClick(line, Qt::Key_Return);
  world_.Settle();
  EXPECT_EQ(form_.Grid2.ActiveRow(), 2);
  EXPECT_TRUE(line->hasFocus());
  QTest::keyClick(line, Qt::Key_Escape);
  world_.Settle();
  EXPECT_TRUE(table_.hasFocus());
}

TEST_F(Tools, DropTheirMenuUnderTheCurrentRowByKey) {
  form_.UserFocus(form_.Grid2);
  world_.Settle();
  QTest::keyClick(&table_, Qt::Key_F10, Qt::ShiftModifier);
  QWidget* menu = QApplication::activePopupWidget();
  ASSERT_NE(menu, nullptr);
  const QRect row = table_.visualRect(table_.currentIndex());
  EXPECT_EQ(menu->y(), table_.viewport()->mapToGlobal(row.bottomLeft()).y());
  menu->close();
}

TEST_F(Tools, TellATextThatRunsOutOfSight) {
  const auto told = [&](int column) {
    const QModelIndex cell = table_.model()->index(0, column);
    const QRect place = table_.visualRect(cell);
    const QPoint at(place.left() + 3, place.center().y());
    QToolTip::hideText();
    QStyleOptionViewItem option;
    option.initFrom(&table_);
    option.rect = place;
    QHelpEvent event(QEvent::ToolTip, at, table_.viewport()->mapToGlobal(at));
    table_.itemDelegate()->helpEvent(&event, &table_, option, cell);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
  };
  table_.setColumnWidth(1, 120);
  EXPECT_EQ(told(1), "");
  table_.setColumnWidth(1, 24);
  table_.setColumnWidth(0, 24);
  EXPECT_EQ(told(0), "2024-01-02");
  // Wide enough, but only its beginning is in sight.
  table_.setColumnWidth(0, table_.viewport()->width() - 30);
  table_.setColumnWidth(1, 24);
  table_.setColumnWidth(2, 200);
  EXPECT_EQ(told(2), table_.model()->index(0, 2).data().toString());
}

TEST_F(Tools, FindAComposedWordWhenItIsHandedOver) {
  form_.UserFocus(form_.Grid2);
  world_.Settle();
  QTest::keyClick(&table_, Qt::Key_F, Qt::ControlModifier);
  auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  ASSERT_NE(line, nullptr);
  QInputMethodEvent composed("xp", {});
  QApplication::sendEvent(line, &composed);
  QTest::keyClick(line, Qt::Key_Escape);
  ASSERT_TRUE(line->isVisible());
  QInputMethodEvent chosen;
  chosen.setCommitString("XP3");
  QApplication::sendEvent(line, &chosen);
  QTest::keyClick(line, Qt::Key_Return);
  EXPECT_EQ(form_.Grid2.ActiveRow(), 3);
}

TEST_F(Tools, OfferPrintingByTheFormsOwnButton) {
  emit table_.customContextMenuRequested({5, 5});
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  QAction* print = nullptr;
  for (QAction* action : menu->actions()) {
    if (action->text() == "打印(&P)") print = action;
  }
  ASSERT_NE(print, nullptr);
  print->trigger();
  menu->close();
  world_.Settle();
  ASSERT_EQ(world_.headless.print.jobs.size(), 1U);
  EXPECT_EQ(world_.headless.print.jobs[0].grid, &form_.Grid2);
}

TEST_F(Tools, ExportTheGridAndSayHowManyRows) {
  exports::SuiteExporter exporter;
  Around().exporter = &exporter;
  const QString file = QString::fromStdString((world_.folder.Path() / "out.csv").string());
  qt::WriteGrid(world_.Window(), view::RequestOf(form_.Grid2, {}, file.toStdString()),
                ExportFormat::CsvUtf8, view::TextsOf(false));
  QFile written(file);
  ASSERT_TRUE(written.open(QIODevice::ReadOnly));
  EXPECT_TRUE(QString::fromUtf8(written.readAll()).contains("XP3"));
  const std::vector<std::string> said = world_.Messages();
  ASSERT_EQ(said.size(), 1U);
  EXPECT_EQ(said[0].rfind("已导出 3 行", 0), 0U) << said[0];
}

TEST_F(Tools, ExportTheColumnsAsTheUserArrangedThem) {
  exports::SuiteExporter exporter;
  Around().exporter = &exporter;
  QHeaderView* header = table_.horizontalHeader();
  header->moveSection(header->visualIndex(1), 0);
  const QString file = QString::fromStdString((world_.folder.Path() / "moved.csv").string());
  QTimer::singleShot(50, [&] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    dialog->selectNameFilter(dialog->nameFilters().at(1));
    emit dialog->filterSelected(dialog->nameFilters().at(1));
    dialog->findChild<QLineEdit*>()->setText(file);
    QMetaObject::invokeMethod(dialog, "accept");
  });
  emit table_.customContextMenuRequested({5, 5});
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  for (QAction* action : menu->actions()) {
    if (action->text() == "导出(&E)…") action->trigger();
  }
  menu->close();
  world_.Settle();
  QFile written(file);
  ASSERT_TRUE(written.open(QIODevice::ReadOnly));
  EXPECT_TRUE(QString::fromUtf8(written.readLine()).contains("票号,日期,客户单位,"));
}

TEST(AskFile, ProposesANameOfTheChosenType) {
  QWidget owner;
  QStringList names;
  QTimer::singleShot(50, [&] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    const auto name = [&] { return QFileInfo(dialog->selectedFiles().value(0)).fileName(); };
    names << name();
    for (const QString& filter : dialog->nameFilters()) {
      dialog->selectNameFilter(filter);
      emit dialog->filterSelected(filter);
      names << name();
    }
    dialog->reject();
  });
  qt::AskSaveFile(owner, {"t", "No. 1.5", {{"Book", "xlsx"}, {"List", "csv"}}}, false);
  EXPECT_EQ(names, (QStringList{"No. 1.5.xlsx", "No. 1.5.xlsx", "No. 1.5.csv"}));
}

/// Types a name into the question for a file that is open, and saves.
void SaveAs(const QString& path) {
  auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
  ASSERT_NE(dialog, nullptr);
  dialog->findChild<QLineEdit*>()->setText(path);
  QMetaObject::invokeMethod(dialog, "accept");
}

TEST(AskFile, GivesWhateverIsTypedTheEndingOfItsType) {
  World world;
  const QString place = QString::fromStdString(world.folder.Path().string()) + "/";
  for (const QString typed : {"list", "list.xlsx", "No. 1.5"}) {
    QWidget owner;
    QTimer::singleShot(50, [&] { SaveAs(place + typed); });
    const view::FileQuestion question{"t", "n", {{"Book", "xlsx"}, {"List", "csv"}}};
    const QString name = typed.startsWith("list") ? "list.xlsx" : "No. 1.5.xlsx";
    EXPECT_EQ(qt::FromUtf8(qt::AskSaveFile(owner, question, false).path), place + name)
        << typed.toStdString();
  }
  EXPECT_TRUE(world.headless.boxes.TakeShown().empty());
}

TEST(AskFile, AsksWhichTypeIsMeantWhenTheNameSaysAnotherOne) {
  World world;
  const QString place = QString::fromStdString(world.folder.Path().string()) + "/";
  const view::FileQuestion question{"t", "n", {{"Book", "xlsx"}, {"List", "csv"}}};
  for (const std::string answer : {"yes", "no"}) {
    QWidget owner;
    world.Answer(answer);
    QTimer::singleShot(50, [&] { SaveAs(place + "out3.csv"); });
    const view::FileAnswer file = qt::AskSaveFile(owner, question, false);
    const bool by_name = answer == "yes";
    EXPECT_EQ(qt::FromUtf8(file.path), place + (by_name ? "out3.csv" : "out3.xlsx"));
    EXPECT_EQ(file.type, by_name ? 1U : 0U);
  }
  const auto shown = world.headless.boxes.TakeShown();
  ASSERT_EQ(shown.size(), 2U);
  EXPECT_EQ(shown[0].text, "文件名以 .csv 结尾，所选类型却是“Book”。\n要保存为“List”吗？");
}

TEST(AskFile, ShowsTheDatesOfFilesWhole) {
  World world;
  QFile there(QString::fromStdString((world.folder.Path() / "list.xlsx").string()));
  ASSERT_TRUE(there.open(QIODevice::WriteOnly));
  QWidget owner;
  int needed = 0;
  int width = 0;
  QTimer::singleShot(300, [&] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    dialog->setDirectory(QString::fromStdString(world.folder.Path().string()));
    QTimer::singleShot(300, dialog, [&, dialog] {
      auto* list = dialog->findChild<QTreeView*>();
      const QModelIndex date = list->model()->index(0, 3, list->rootIndex());
      needed = list->fontMetrics().horizontalAdvance(date.data().toString());
      width = list->columnWidth(3);
      dialog->reject();
    });
  });
  qt::AskSaveFile(owner, {"t", "n", {{"Book", "xlsx"}}}, false);
  EXPECT_GT(needed, 0);
  EXPECT_GE(width, needed);
}

TEST(AskFile, ComesAgainWithTheNameOfTheFileThatItWouldReplace) {
  World world;
  world.Answer("no");
  const QString place = QString::fromStdString(world.folder.Path().string()) + "/";
  QFile there(place + "list.xlsx");
  ASSERT_TRUE(there.open(QIODevice::WriteOnly));
  QWidget owner;
  QString proposed;
  QTimer::singleShot(50, [&] { SaveAs(place + "list.csv"); });
  QTimer::singleShot(400, [&] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    proposed = dialog->selectedFiles().value(0);
    dialog->reject();
  });
  const view::FileQuestion question{"t", "n", {{"Book", "xlsx"}, {"List", "csv"}}};
  EXPECT_EQ(qt::AskSaveFile(owner, question, false).path, "");
  EXPECT_EQ(proposed, place + "list.xlsx");
}

TEST_F(Tools, SayWhyAnExportFailed) {
  exports::SuiteExporter exporter;
  Around().exporter = &exporter;
  qt::WriteGrid(world_.Window(), view::RequestOf(form_.Grid2, {}, "/nowhere/out.csv"),
                ExportFormat::CsvUtf8, view::TextsOf(false));
  EXPECT_EQ(world_.headless.boxes.TakeErrors().size(), 1U);
}

class Columns : public ::testing::Test {
 protected:
  Columns()
      : settings_(QString::fromStdString((folder_.Path() / "s.ini").string()),
                  QSettings::IniFormat),
        store_(settings_) {
    form_.SetSize(9000, 6000);
    grid_.SetColumnCount(3);
    for (int column = 1; column <= 3; ++column) grid_.SetColumnWidth(column, 1500);
  }
  std::unique_ptr<qt::FormWindow> Window() {
    return std::make_unique<qt::FormWindow>(form_, qt::WindowOptions{{}, &store_});
  }
  qt::GridView& View(qt::FormWindow& window) {
    return static_cast<qt::GridView&>(*window.ViewOf(grid_));
  }

  TemporaryFolder folder_;
  QSettings settings_;
  qt::LayoutStore store_;
  ui::Form form_{"frm"};
  ui::Grid grid_{form_, "Grid1"};
};

TEST_F(Columns, AreAsWideAsDesignedUntilTheUserDragsThem) {
  const auto window = Window();
  EXPECT_EQ(View(*window).Table()->columnWidth(0), 100);
}

TEST_F(Columns, KeepWidthAndOrderForTheNextTime) {
  {
    const auto window = Window();
    View(*window).Table()->setColumnWidth(1, 180);
    View(*window).Table()->horizontalHeader()->moveSection(2, 0);
  }
  const auto window = Window();
  EXPECT_EQ(View(*window).Table()->columnWidth(1), 180);
  EXPECT_EQ(View(*window).Table()->columnWidth(0), 100);
  EXPECT_EQ(View(*window).Table()->horizontalHeader()->logicalIndex(0), 2);
}

TEST_F(Columns, AreKeptApartByWhatTheyStandFor) {
  std::string subject = "customers";
  grid_.offers.columns = [&] { return subject; };
  const auto window = Window();
  QTableView* table = View(*window).Table();
  table->setColumnWidth(1, 180);
  table->horizontalHeader()->moveSection(2, 0);
  subject = "accounts";
  grid_.SetHeader(1, "帐户");
  window->Flush();
  EXPECT_EQ(table->columnWidth(1), 100);
  EXPECT_EQ(table->horizontalHeader()->logicalIndex(0), 0);
  subject = "customers";
  grid_.SetHeader(1, "客户");
  window->Flush();
  EXPECT_EQ(table->columnWidth(1), 180);
  EXPECT_EQ(table->horizontalHeader()->logicalIndex(0), 2);
}

TEST_F(Columns, IgnoreWhatWasKeptBeforeTheyHadAName) {
  view::KeepColumns(store_, "frm.Grid1", {{50, 60, 70}, {1, 0, 2}});
  grid_.offers.columns = [] { return "customers"; };
  const auto window = Window();
  EXPECT_EQ(View(*window).Table()->columnWidth(0), 100);
  EXPECT_EQ(View(*window).Table()->horizontalHeader()->logicalIndex(0), 0);
}

TEST(KeptColumns, DifferBetweenCustomersAndAccounts) {
  const auto named = [](int16_t run_mode) {
    WindowWorld world;
    const frmZj& form = world.Show(run_mode);
    EXPECT_EQ(form.Grid1.offers.columns(), form.Grid2.offers.columns());
    return form.Grid1.offers.columns();
  };
  EXPECT_NE(named(kCustomers), named(kAccounts));
}

TEST_F(Columns, GoBackToTheDesignOnRequest) {
  {
    const auto window = Window();
    View(*window).Table()->setColumnWidth(1, 180);
    View(*window).Columns().Reset();
    EXPECT_EQ(View(*window).Table()->columnWidth(1), 100);
  }
  EXPECT_FALSE(view::KeptColumns(store_, "frm.Grid1", 3).has_value());
}

TEST_F(Columns, IgnoreWhatWasKeptForAnotherNumberOfThem) {
  view::KeepColumns(store_, "frm.Grid1", {{50, 60}, {1, 0}});
  const auto window = Window();
  EXPECT_EQ(View(*window).Table()->columnWidth(0), 100);
}

}  // namespace
}  // namespace qvzj::test
