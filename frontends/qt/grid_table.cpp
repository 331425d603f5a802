#include "frontends/qt/grid_table.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>

#include "frontends/qt/theme.h"

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
  mark_ends_.setSingleShot(true);
  mark_ends_.setInterval(view::kMarkedFor);
  connect(&mark_ends_, &QTimer::timeout, this, [this] { Mark(-1); });
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
  QPainter painter(viewport());
  if (marked_ >= 0 && marked_ < model()->rowCount()) {
    painter.setPen(QPen(QColor(ColorsFor(palette()).accent), 2));
    painter.drawRect(1, rowViewportPosition(marked_) + 1, viewport()->width() - 2,
                     rowHeight(marked_) - 3);
  }
  if (!currentIndex().isValid()) return;
  // The current row has a mark at its left edge, so that it stays clear among selected rows.
  const int row = currentIndex().row();
  // The line under the row is not repainted with it.
  painter.fillRect(0, rowViewportPosition(row), 3, rowHeight(row) - 1, ColorsFor(palette()).accent);
}

void GridTable::Mark(int row) {
  marked_ = row;
  if (row >= 0) mark_ends_.start();
  viewport()->update();
}

GridPane::GridPane(QWidget* parent)
    : QWidget(parent), table_(new GridTable(this)), line_(new QLabel(this)) {
  line_->setObjectName("sums");
  line_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  line_->setMargin(4);
  line_->setTextFormat(Qt::PlainText);
  line_->hide();
}

void GridPane::Say(const QString& text) {
  if (line_->text() == text) return;
  line_->setText(text);
  line_->setVisible(!text.isEmpty());
  Arrange();
}

void GridPane::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Arrange();
}

void GridPane::Arrange() {
  const int line = line_->text().isEmpty() ? 0 : line_->sizeHint().height();
  table_->setGeometry(0, 0, width(), height() - line);
  line_->setGeometry(0, height() - line, width(), line);
}

}  // namespace qvzj::qt
