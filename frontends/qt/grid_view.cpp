#include "frontends/qt/grid_view.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>

#include "frontends/qt/column_keeper.h"
#include "frontends/qt/form_window.h"
#include "frontends/qt/grid_model.h"
#include "frontends/qt/grid_tools.h"
#include "frontends/qt/layout_store.h"
#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"
#include "frontends/view/measure.h"

namespace qvzj::qt {

namespace {

/// Paints the chosen rows softly, so that a text keeps its colour on them.
class CellDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  /// A text that does not fit its cell, or runs out of sight, is shown whole as a tool tip.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    if (event->type() != QEvent::ToolTip) {
      return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    const QString text = index.data().toString();
    const int margins = 2 * (view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
    const int needed = option.fontMetrics.horizontalAdvance(text) + margins;
    // Of several lines a cell shows the first.
    const bool cut = text.contains(QLatin1Char('\n'));
    const QRect seen = option.rect.intersected(view->viewport()->rect());
    QToolTip::showText(event->globalPos(), cut || needed > seen.width() ? text : QString(), view);
    return true;
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const view::Colors& colors = ColorsFor(option->palette);
    const bool focused = option->widget != nullptr && option->widget->hasFocus();
    const QColor text = index.data(Qt::ForegroundRole).isValid()
                            ? index.data(Qt::ForegroundRole).value<QBrush>().color()
                            : colors.text;
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
      option->palette.setColor(group, QPalette::Highlight,
                               focused ? colors.soft_accent : colors.faint_accent);
      option->palette.setColor(group, QPalette::HighlightedText, text);
    }
    option->state &= ~QStyle::State_HasFocus;
  }
};

}  // namespace

GridTable::GridTable(QWidget* parent) : QTableView(parent) {
  setItemDelegate(new CellDelegate(this));
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setVerticalScrollMode(ScrollPerItem);
  setFrameShape(QFrame::StyledPanel);
  setContextMenuPolicy(Qt::CustomContextMenu);
  horizontalHeader()->setSectionsClickable(true);
  horizontalHeader()->setSectionsMovable(true);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setMinimumSectionSize(24);
  horizontalHeader()->setTextElideMode(Qt::ElideRight);
  verticalHeader()->setHighlightSections(false);
  verticalHeader()->setSectionsClickable(true);
}

void GridTable::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (!currentIndex().isValid()) return;
  // The current row has a mark at its left edge, so that it stays clear among selected rows.
  QPainter painter(viewport());
  const int row = currentIndex().row();
  // The line under the row is not repainted with it.
  painter.fillRect(0, rowViewportPosition(row), 3, rowHeight(row) - 1, ColorsFor(palette()).accent);
}

GridView::GridView(FormWindow& window, ui::Grid& grid, QWidget* parent)
    : ControlView(window, grid),
      grid_(grid),
      table_(new GridTable(parent)),
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

QWidget* GridView::Widget() const { return table_; }

void GridView::Mirror(ui::Aspect aspect) {
  switch (aspect) {
    case ui::Aspect::GridContents:
    case ui::Aspect::GridCurrent:
    case ui::Aspect::Visible:
      // Filling a grid hides it, changes it many times and shows it again, all in one act.
      contents_stale_ = contents_stale_ || aspect == ui::Aspect::GridContents;
      current_stale_ = true;
      window_.Pump().PutOff(grid_);
      return;
    case ui::Aspect::Bounds:
      ControlView::Mirror(aspect);
      CountPageRows();
      return;
    default:
      ControlView::Mirror(aspect);
  }
}

void GridView::Refresh() {
  const QScopedValueRollback<bool> echo(showing_, true);
  if (contents_stale_) {
    contents_stale_ = false;
    model_->SetPalette(table_->palette(), ColorsFor(table_->palette()).negative);
    model_->SetHeaderLook(table_->horizontalHeader()->font(),
                          table_->style()->pixelMetric(QStyle::PM_HeaderMargin));
    ShowRowHeight();
    model_->Refresh();
    ShowColumns();
    ShowSortIndicator();
  }
  table_->setVisible(grid_.Visible());
  if (current_stale_) {
    current_stale_ = false;
    ShowCurrent();
  }
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
  const int column = grid_.SortColumn();
  const bool sorted =
      column >= 1 && column <= grid_.ColumnCount() && grid_.GetSortOrder() != ui::SortOrder::None;
  // Where the form writes the arrow into the caption, a second one would only be noise.
  const bool shown = sorted && grid_.PlainHeader(column) == grid_.Header(column);
  header->setSortIndicatorShown(shown);
  if (shown) {
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
  if (selection->currentIndex() == wanted && selection->isRowSelected(wanted.row())) return;
  const bool other_row = selection->currentIndex().row() != wanted.row();
  selection->setCurrentIndex(wanted,
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  if (other_row) table_->scrollTo(wanted);
}

void GridView::CurrentMoved(const QModelIndex& current) {
  if (showing_ || !Live() || !current.isValid()) return;
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

void GridView::DoOwn(view::KeyRoute route) {
  switch (route) {
    case view::KeyRoute::StepLeft:
      StepSideways(-1);
      return;
    case view::KeyRoute::StepRight:
      StepSideways(1);
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

bool GridView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && Live()) CountPageRows();
  if (event->type() == QEvent::PaletteChange) {
    model_->SetPalette(table_->palette(), ColorsFor(table_->palette()).negative);
  }
  return ControlView::eventFilter(watched, event);
}

}  // namespace qvzj::qt
