#include "frontends/qt/grid_tools.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

#include "frontends/qt/column_keeper.h"
#include "frontends/qt/export_grid.h"
#include "frontends/qt/find_bar.h"
#include "frontends/qt/form_window.h"
#include "frontends/qt/grid_model.h"
#include "frontends/qt/grid_view.h"
#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"
#include "frontends/view/grid_find.h"
#include "frontends/view/grid_selection.h"
#include "platform/surroundings.h"

namespace qvzj::qt {

GridTools::GridTools(GridView& view) : view_(view) {
  const GridTable* table = view_.Table();
  connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this] { ShowSummary(); });
  connect(table, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& at) { ShowMenu(at); });
}

FindBar& GridTools::Bar() {
  if (!find_bar_) {
    find_bar_ = new FindBar(
        view_.Table(), Texts(), [this](const QString& text, bool back) { return Find(text, back); },
        [this] { view_.Table()->setFocus(Qt::OtherFocusReason); });
    // What is made with the window gets the window's style there; this comes later.
    find_bar_->setStyle(view_.Table()->style());
    for (QWidget* part : find_bar_->findChildren<QWidget*>()) part->setStyle(find_bar_->style());
  }
  return *find_bar_;
}

const view::Texts& GridTools::Texts() const { return view::TextsOf(view_.Window().Traditional()); }

void GridTools::Do(view::GridAct act) {
  switch (act) {
    case view::GridAct::CopyRows:
      Copy();
      return;
    case view::GridAct::Find:
      OpenFind();
      return;
    case view::GridAct::FindAgain:
      Bar().Next();
      return;
    case view::GridAct::Export:
      Export();
      return;
    case view::GridAct::Print:
      Print();
      return;
    case view::GridAct::ResetColumns:
      view_.Columns().Reset();
      return;
  }
}

std::vector<int32_t> GridTools::ShownColumns() const {
  return view::VisibleColumns(view_.GetGrid(), view_.Columns().Order());
}

std::vector<int32_t> GridTools::SelectedRows() const {
  std::vector<view::RowRange> ranges;
  for (const QItemSelectionRange& range : view_.Table()->selectionModel()->selection()) {
    ranges.push_back({range.top() + 1, range.bottom() + 1});
  }
  return view::RowsOf(ranges);
}

QString GridTools::SelectedText() const {
  return FromUtf8(view::CopiedText(view_.GetGrid(), ShownColumns(), SelectedRows()));
}

void GridTools::Copy() {
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  QGuiApplication::clipboard()->setText(SelectedText());
  QGuiApplication::restoreOverrideCursor();
}

QString GridTools::Summary() const {
  return FromUtf8(view::SelectionSummary(view_.GetGrid(), ShownColumns(), SelectedRows(), Texts()));
}

void GridTools::ShowSummary() { view_.Pane()->Say(view_.IsLive() ? Summary() : QString()); }

bool GridTools::Find(const QString& text, bool backwards) {
  ui::Grid& grid = view_.GetGrid();
  const auto found = view::FindText(grid, ShownColumns(), ToUtf8(text), backwards);
  if (!found) return false;
  const bool moved =
      view_.Window().Act([&] { return grid.GetForm().UserCell(grid, found->column, found->row); });
  if (view_.IsLive()) {
    view_.Table()->scrollTo(view_.Model().index(found->row - 1, found->column - 1));
  }
  return moved;
}

void GridTools::OpenFind() {
  ui::Grid& grid = view_.GetGrid();
  if (view_.Window().Act([&] { return grid.GetForm().UserFocus(grid); })) Bar().Open();
}

void GridTools::Export() { ExportGrid(view_.Window(), view_.GetGrid(), ShownColumns(), Texts()); }

void GridTools::Print() {
  ui::Control* button = view_.GetGrid().offers.print;
  view_.Window().Act([&] { return button->GetForm().UserClick(*button); });
}

void GridTools::ShowMenu(const QPoint& at) {
  if (!view_.IsLive()) return;
  auto* menu = new QMenu(view_.Table());
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->setFont(view_.Window().font());
  menu->setStyle(ThemeStyle());
  const bool exports = Around().exporter != nullptr;
  for (const view::GridMenuEntry& entry : view::GridMenu(view_.GetGrid(), exports, Texts())) {
    if (entry.begins_group) menu->addSeparator();
    QAction* action = menu->addAction(FromUtf8(entry.text));
    action->setEnabled(entry.enabled);
    if (!entry.keys.empty()) action->setShortcut(QKeySequence(FromUtf8(entry.keys)));
    // The menu must be gone before the act, which may open a box.
    connect(
        action, &QAction::triggered, this,
        [this, act = entry.act] {
          if (view_.IsLive()) Do(act);
        },
        Qt::QueuedConnection);
  }
  menu->popup(view_.Table()->viewport()->mapToGlobal(at));
}

}  // namespace qvzj::qt
