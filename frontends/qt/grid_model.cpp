#include "frontends/qt/grid_model.h"

#include <QFontMetrics>

#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"

namespace qvzj::qt {

void GridModel::Refresh() {
  const bool resized = cells_.Resized();
  if (resized) beginResetModel();
  cells_.TakeSize();
  row_number_size_ = HeaderSize(QString::number(cells_.Rows()));
  if (resized) {
    endResetModel();
    return;
  }
  // The same size, as after a sort: the place on the screen is kept.
  const int rows = cells_.Rows();
  const int columns = cells_.Columns();
  if (rows > 0 && columns > 0) emit dataChanged(index(0, 0), index(rows - 1, columns - 1));
  if (columns > 0) emit headerDataChanged(Qt::Horizontal, 0, columns - 1);
}

void GridModel::Detach() {
  beginResetModel();
  cells_.Detach();
  endResetModel();
}

void GridModel::SetPalette(const QPalette& palette, const QColor& negative) {
  palette_ = palette;
  negative_ = negative;
}

void GridModel::SetHeaderLook(const QFont& font, int margin) {
  header_font_ = font;
  header_margin_ = margin;
}

QSize GridModel::HeaderSize(const QString& text) const {
  const QFontMetrics metrics(header_font_);
  return {metrics.horizontalAdvance(text) + 2 * header_margin_,
          metrics.height() + 2 * header_margin_};
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : cells_.Rows();
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : cells_.Columns();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  const int row = index.row() + 1;
  const int column = index.column() + 1;
  switch (role) {
    case Qt::DisplayRole:
      return FromUtf8(cells_.Text(column, row));
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(Side(column));
    case Qt::ForegroundRole:
      if (cells_.ShowsNegative(column, row)) return QBrush(negative_);
      return {};
    case Qt::BackgroundRole:
      if (const auto color = cells_.RowColor(row, IsDark(palette_))) return QBrush(QColor(*color));
      return {};
    default:
      return {};
  }
}

Qt::Alignment GridModel::Side(int column) const {
  return Qt::AlignVCenter | (cells_.IsNumeric(column) ? Qt::AlignRight : Qt::AlignLeft);
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical) {
    if (role == Qt::DisplayRole) return section + 1;
    if (role == Qt::SizeHintRole) return row_number_size_;
    if (role == Qt::ForegroundRole)
      return QBrush(palette_.color(QPalette::Disabled, QPalette::Text));
    if (role == Qt::TextAlignmentRole)
      return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    return {};
  }
  const QString header = FromUtf8(cells_.Header(section + 1));
  if (role == Qt::DisplayRole) return header;
  if (role == Qt::SizeHintRole) return HeaderSize(header);
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Side(section + 1));
  return {};
}

}  // namespace qvzj::qt
