#include "frontends/qt/grid_tools.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <algorithm>

#include "frontends/qt/export_grid.h"
#include "frontends/qt/find_bar.h"
#include "frontends/qt/find_text.h"
#include "frontends/qt/form_window.h"
#include "frontends/qt/grid_model.h"
#include "frontends/qt/grid_view.h"
#include "frontends/qt/native_texts.h"
#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"
#include "platform/basic/number.h"
#include "platform/surroundings.h"

namespace qvzj::qt {

GridTools::GridTools(GridView& view) : view_(view), summary_(new QLabel(view.Table())) {
  GridTable* table = view_.Table();
  summary_->setAutoFillBackground(true);
  summary_->setMargin(4);
  summary_->setFrameShape(QFrame::StyledPanel);
  summary_->setBackgroundRole(QPalette::Button);
  summary_->setAttribute(Qt::WA_TransparentForMouseEvents);
  summary_->hide();
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

const NativeTexts& GridTools::Texts() const {
  return TextsOf(view_.Window().Traditional() ? 1 : 0);
}

bool GridTools::HandleKey(const QKeyEvent& event) {
  const bool copies = event.matches(QKeySequence::Copy);
  const bool finds = event.matches(QKeySequence::Find);
  const bool again = event.key() == Qt::Key_F3;
  if (event.type() == QEvent::KeyPress) {
    if (copies) Copy();
    if (finds) OpenFind();
    if (again) Bar().Next();
  }
  return copies || finds || again;
}

std::vector<int> GridTools::ShownColumns() const {
  std::vector<int> columns;
  const QHeaderView* header = view_.Table()->horizontalHeader();
  for (int place = 0; place < header->count(); ++place) {
    const int column = header->logicalIndex(place);
    if (!header->isSectionHidden(column)) columns.push_back(column);
  }
  return columns;
}

std::vector<int> GridTools::SelectedRows() const {
  // By ranges: a selection of a million rows is one of them.
  std::vector<int> rows;
  for (const QItemSelectionRange& range : view_.Table()->selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
  }
  std::sort(rows.begin(), rows.end());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  return rows;
}

QString GridTools::SelectedText() const {
  const std::vector<int> columns = ShownColumns();
  QString text;
  const auto add_line = [&](const auto& cell) {
    for (size_t i = 0; i < columns.size(); ++i) {
      if (i > 0) text += QLatin1Char('\t');
      // A tab or a line end inside a cell would be taken for the next cell.
      text += cell(columns[i]).simplified();
    }
    text += QLatin1Char('\n');
  };
  add_line([&](int column) { return FromUtf8(view_.GetGrid().PlainHeader(column + 1)); });
  for (int row : SelectedRows()) {
    add_line([&](int column) { return view_.Model().Text(row, column); });
  }
  return text;
}

void GridTools::Copy() {
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  QGuiApplication::clipboard()->setText(SelectedText());
  QGuiApplication::restoreOverrideCursor();
}

QString GridTools::Summary() const {
  const std::vector<int> rows = SelectedRows();
  if (rows.size() < 2) return {};
  QStringList parts{Texts().selected.arg(rows.size())};
  const ui::Grid& grid = view_.GetGrid();
  for (int column : ShownColumns()) {
    if (!grid.ColumnSummed(column + 1)) continue;
    basic::Sum sum;
    for (int row : rows) sum.Add(view_.Model().Number(row, column));
    const int decimals = std::max(grid.ColumnDecimals(column + 1), 0);
    parts << Texts().sum.arg(FromUtf8(grid.PlainHeader(column + 1)),
                             FromUtf8(basic::FormatFixed(sum.Value(), decimals)));
  }
  return parts.join(QStringLiteral("    "));
}

void GridTools::ShowSummary() {
  const QString text = view_.IsLive() ? Summary() : QString();
  summary_->setText(text);
  summary_->setVisible(!text.isEmpty());
  if (text.isEmpty()) return;
  summary_->adjustSize();
  const QRect room = view_.Table()->viewport()->geometry();
  summary_->move(room.right() - summary_->width() - 6, room.bottom() - summary_->height() - 4);
  summary_->raise();
}

bool GridTools::Find(const QString& text, bool backwards) {
  ui::Grid& grid = view_.GetGrid();
  const auto found = FindText(grid, ToUtf8(text), backwards);
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

void GridTools::Export() {
  std::vector<int32_t> columns;
  for (int column : ShownColumns()) columns.push_back(column + 1);
  ExportGrid(view_.Window(), view_.GetGrid(), columns, Texts());
}

void GridTools::Print() {
  ui::Control* button = view_.GetGrid().offers.print;
  view_.Window().Act([&] { return button->GetForm().UserClick(*button); });
}

void GridTools::ShowMenu(const QPoint& at) {
  if (!view_.IsLive()) return;
  const NativeTexts& texts = Texts();
  const ui::Grid& grid = view_.GetGrid();
  const bool filled = grid.RowCount() > 0;
  auto* menu = new QMenu(view_.Table());
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->setFont(view_.Window().font());
  menu->setStyle(ThemeStyle());
  const auto add = [&](const QString& text, bool enabled, QKeySequence keys, auto act) {
    QAction* action = menu->addAction(text);
    action->setEnabled(enabled);
    if (!keys.isEmpty()) action->setShortcut(keys);
    // The menu must be gone before the act, which may open a box.
    connect(
        action, &QAction::triggered, this,
        [this, act] {
          if (view_.IsLive()) act();
        },
        Qt::QueuedConnection);
  };
  add(texts.copy_rows, filled, QKeySequence::Copy, [this] { Copy(); });
  add(texts.find, filled, QKeySequence::Find, [this] { OpenFind(); });
  add(texts.find_next, filled, QKeySequence(Qt::Key_F3), [this] { Bar().Next(); });
  menu->addSeparator();
  if (Around().exporter != nullptr) add(texts.export_grid, filled, {}, [this] { Export(); });
  if (grid.offers.print != nullptr) {
    add(texts.print, filled && grid.offers.print->Usable(), {}, [this] { Print(); });
  }
  menu->addSeparator();
  add(texts.reset_columns, true, {}, [this] { view_.ResetColumns(); });
  menu->popup(view_.Table()->viewport()->mapToGlobal(at));
}

}  // namespace qvzj::qt
