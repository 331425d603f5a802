#include "frontends/qt/grid_view.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <algorithm>
#include <utility>

#include "frontends/qt/column_keeper.h"
#include "frontends/qt/form_window.h"
#include "frontends/qt/grid_model.h"
#include "frontends/qt/grid_tools.h"
#include "frontends/qt/layout_store.h"
#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"
#include "frontends/view/measure.h"

namespace qvzj::qt {

GridView::GridView(FormWindow& window, ui::Grid& grid, QWidget* parent)
    : ControlView(window, grid),
      grid_(grid),
      pane_(new GridPane(parent)),
      table_(pane_->Table()),
      model_(std::make_unique<GridModel>(grid)) {
  table_->setModel(model_.get());
  Adopt(table_, table_->viewport());
  table_->horizontalHeader()->setFocusPolicy(Qt::NoFocus);
  table_->verticalHeader()->setFocusPolicy(Qt::NoFocus);
  table_->viewport()->setFocusPolicy(Qt::NoFocus);
  ConnectTable();
  columns_ = std::make_unique<ColumnKeeper>(*table_, grid_, window.Options().layouts);
  tools_ = std::make_unique<GridTools>(*this);
}

GridView::~GridView() {
  // The table lives a little longer than its model.
  table_->setModel(nullptr);
}

void GridView::ConnectTable() {
  connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& current) { CurrentMoved(current); });
  connect(table_->horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int section) {
    if (!Live()) return;
    Act([&] { return GetForm().UserHeader(grid_, section + 1); });
  });
  connect(table_, &QTableView::doubleClicked, this, [this](const QModelIndex& cell) {
    if (!Live()) return;
    const int column = cell.column() + 1;
    const int row = cell.row() + 1;
    Act([&] { return GetForm().UserCellDoubleClick(grid_, column, row); });
  });
  connect(table_->verticalHeader(), &QHeaderView::sectionResized, this,
          [this](int section, int, int pixels) {
            if (showing_ || !Live()) return;
            const int32_t height = view::ToTwips(pixels, table_->logicalDpiY());
            Act([&] { return GetForm().UserRowHeight(grid_, section + 1, section + 1, height); });
          });
}

QWidget* GridView::Widget() const { return pane_; }

QWidget* GridView::FocusWidget() const { return table_; }

void GridView::Mirror(ui::Aspect aspect) {
  switch (aspect) {
    case ui::Aspect::GridContents:
    case ui::Aspect::GridCurrent:
    case ui::Aspect::GridMarked:
    case ui::Aspect::Visible:
      // Filling a grid hides it, changes it many times and shows it again, all in one act.
      contents_stale_ = contents_stale_ || aspect == ui::Aspect::GridContents;
      sight_stale_ = sight_stale_ || aspect == ui::Aspect::GridCurrent;
      marked_stale_ = marked_stale_ || aspect == ui::Aspect::GridMarked;
      current_stale_ = true;
      window_.Pump().PutOff(grid_);
      return;
    case ui::Aspect::Bounds: {
      // What makes the grid smaller (the editor that opens) leaves the current row in sight.
      const bool seen = CurrentInSight();
      ControlView::Mirror(aspect);
      CountPageRows();
      if (seen) table_->scrollTo(table_->currentIndex());
      return;
    }
    default:
      ControlView::Mirror(aspect);
  }
}

void GridView::Refresh() {
  const QScopedValueRollback<bool> echo(showing_, true);
  if (contents_stale_) {
    contents_stale_ = false;
    // Rows that were selected may be other ones now.
    table_->selectionModel()->clearSelection();
    model_->SetPalette(table_->palette(), ColorsFor(table_->palette()).negative);
    model_->SetHeaderLook(table_->horizontalHeader()->font(),
                          table_->style()->pixelMetric(QStyle::PM_HeaderMargin));
    ShowRowHeight();
    model_->Refresh();
    ShowColumns();
    ShowSortIndicator();
  }
  pane_->setVisible(grid_.Visible());
  if (current_stale_) {
    current_stale_ = false;
    ShowCurrent();
  }
  if (marked_stale_) {
    marked_stale_ = false;
    ShowMarked();
  }
  tools_->ShowSummary();
}

void GridView::Detach() {
  showing_ = true;
  model_->Detach();
}

void GridView::ShowColumns() {
  std::vector<int> widths;
  for (int column = 0; column < grid_.ColumnCount(); ++column) {
    table_->setColumnHidden(column, grid_.ColumnHidden(column + 1));
    widths.push_back(view::ToPixels(grid_.ColumnWidth(column + 1), table_->logicalDpiX()));
  }
  columns_->Design(widths);
}

void GridView::ShowRowHeight() {
  // The header tells of every row that it resizes, so it had better do that before there are any.
  const int height = view::ToPixels(grid_.RowHeight(), table_->logicalDpiY());
  QHeaderView* header = table_->verticalHeader();
  if (header->defaultSectionSize() != height) header->setDefaultSectionSize(height);
  CountPageRows();
}

void GridView::ShowSortIndicator() {
  QHeaderView* header = table_->horizontalHeader();
  const int column = grid_.SortedColumn();
  header->setSortIndicatorShown(column > 0);
  if (column > 0) {
    header->setSortIndicator(column - 1, grid_.GetSortOrder() == ui::SortOrder::Ascending
                                             ? Qt::AscendingOrder
                                             : Qt::DescendingOrder);
  }
}

void GridView::ShowCurrent() {
  const QModelIndex wanted = model_->index(grid_.ActiveRow() - 1, grid_.ActiveColumn() - 1);
  QItemSelectionModel* selection = table_->selectionModel();
  if (!wanted.isValid()) {
    selection->clear();
    return;
  }
  const bool other_row = selection->currentIndex().row() != wanted.row();
  if (selection->currentIndex() != wanted || !selection->isRowSelected(wanted.row())) {
    anchor_.Put(grid_.ActiveRow());
    selection->setCurrentIndex(wanted,
                               QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  }
  if (std::exchange(sight_stale_, false) || other_row) table_->scrollTo(wanted);
}

void GridView::ShowMarked() {
  const int row = grid_.MarkedRow() - 1;
  table_->Mark(row);
  if (row >= 0) table_->scrollTo(model_->index(row, std::max(grid_.ActiveColumn() - 1, 0)));
}

bool GridView::CurrentInSight() const {
  const QModelIndex current = table_->currentIndex();
  return current.isValid() && table_->viewport()->rect().intersects(table_->visualRect(current));
}

void GridView::CurrentMoved(const QModelIndex& current) {
  if (showing_ || !Live() || !current.isValid()) return;
  if (!table_->Dragging()) anchor_.Put(current.row() + 1);
  const int column = current.column() + 1;
  const int row = current.row() + 1;
  if (column == grid_.ActiveColumn() && row == grid_.ActiveRow()) return;
  Act([&] { return GetForm().UserCell(grid_, column, row); });
  if (!Live()) return;
  if (grid_.ActiveColumn() != column || grid_.ActiveRow() != row) {
    // The form kept the cell or went elsewhere.
    const QScopedValueRollback<bool> echo(showing_, true);
    ShowCurrent();
  }
}

void GridView::CountPageRows() {
  const int height = table_->verticalHeader()->defaultSectionSize();
  if (height > 0) grid_.SetPageRows(table_->viewport()->height() / height);
}

QPoint GridView::MenuPlace() const {
  const QRect cell = table_->visualRect(table_->currentIndex());
  const QRect room = table_->viewport()->rect();
  return room.intersects(cell) ? QPoint(std::max(cell.left(), 0) + 12, cell.bottom())
                               : room.center();
}

void GridView::DoOwn(view::KeyRoute route, const ui::Key& key) {
  switch (route) {
    case view::KeyRoute::StepLeft:
      StepSideways(-1);
      return;
    case view::KeyRoute::StepRight:
      StepSideways(1);
      return;
    case view::KeyRoute::Extend:
      ExtendTo(grid_.ActiveColumn(), view::ExtensionTarget(grid_, key.name));
      return;
    case view::KeyRoute::CopyRows:
      tools_->Do(view::GridAct::CopyRows);
      return;
    case view::KeyRoute::Find:
      tools_->Do(view::GridAct::Find);
      return;
    case view::KeyRoute::FindAgain:
      tools_->Do(view::GridAct::FindAgain);
      return;
    default:
      return;
  }
}

void GridView::StepSideways(int step) {
  const int32_t column = view::NeighbourColumn(grid_, columns_->Order(), step);
  if (column == 0) return;
  Act([&] { return GetForm().UserCell(grid_, column, grid_.ActiveRow()); });
}

void GridView::ExtendTo(int32_t column, int32_t row) {
  if (row < 1) return;
  const view::SelectionAnchor anchor = anchor_;
  if (row != grid_.ActiveRow() || column != grid_.ActiveColumn()) {
    Act([&] { return GetForm().UserCell(grid_, column, row); });
    if (!Live()) return;
  }
  anchor_ = anchor;
  const view::RowRange rows = anchor.To(grid_.ActiveRow());
  const QScopedValueRollback<bool> echo(showing_, true);
  table_->selectionModel()->select(
      QItemSelection(model_->index(rows.first - 1, 0),
                     model_->index(rows.last - 1, model_->columnCount() - 1)),
      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  table_->scrollTo(table_->currentIndex());
}

bool GridView::ExtendByMouse(const QMouseEvent& press) {
  const bool extends = press.button() == Qt::LeftButton && press.modifiers() == Qt::ShiftModifier;
  const QModelIndex cell = table_->indexAt(press.position().toPoint());
  if (!extends || !cell.isValid()) return false;
  ExtendTo(cell.column() + 1, cell.row() + 1);
  return true;
}

bool GridView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && Live()) CountPageRows();
  if (event->type() == QEvent::PaletteChange) {
    model_->SetPalette(table_->palette(), ColorsFor(table_->palette()).negative);
  }
  if (ControlView::eventFilter(watched, event)) return true;
  // The table would extend from the last row that was clicked, wherever the keys have gone since.
  return Live() && watched == table_->viewport() && event->type() == QEvent::MouseButtonPress &&
         ExtendByMouse(*static_cast<QMouseEvent*>(event));
}

}  // namespace qvzj::qt
