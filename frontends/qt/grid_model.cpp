#include "frontends/qt/grid_model.h"

#include <QFontMetrics>

#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"

namespace qvzj::qt {

using basic::Column;

void GridModel::Refresh() {
  if (grid_ == nullptr) return;
  const bool resized = grid_->RowCount() != rows_ || grid_->ColumnCount() != columns_;
  if (resized) beginResetModel();
  rows_ = grid_->RowCount();
  columns_ = grid_->ColumnCount();
  row_number_size_ = HeaderSize(QString::number(rows_));
  numeric_.assign(static_cast<size_t>(columns_), false);
  for (int column = 0; column < columns_; ++column) {
    const Column::Kind kind = grid_->Stored(column + 1).GetKind();
    numeric_[static_cast<size_t>(column)] = kind == Column::Kind::Real ||
                                            kind == Column::Kind::Integer ||
                                            grid_->ColumnDecimals(column + 1) >= 0;
  }
  if (resized) {
    endResetModel();
    return;
  }
  // The same size, as after a sort: the place on the screen is kept.
  if (rows_ > 0 && columns_ > 0) emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
  if (columns_ > 0) emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
}

void GridModel::Detach() {
  beginResetModel();
  grid_ = nullptr;
  rows_ = 0;
  columns_ = 0;
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

bool GridModel::IsNumeric(int column) const { return numeric_.at(static_cast<size_t>(column)); }

bool GridModel::HasNumber(int row, int column) const {
  if (!Inside(row, column)) return false;
  const Column::Kind kind = grid_->Stored(column + 1).GetKind();
  const bool number = kind == Column::Kind::Real || kind == Column::Kind::Integer;
  return number && !grid_->CellEmpty(column + 1, row + 1);
}

double GridModel::Number(int row, int column) const {
  return Inside(row, column) ? grid_->CellNumber(column + 1, row + 1) : 0;
}

bool GridModel::ShowsNegative(int row, int column) const {
  // What is left of a sum below half a cent is shown as 0.00.
  return HasNumber(row, column) && Number(row, column) < 0 && Text(row, column).startsWith('-');
}

QString GridModel::Text(int row, int column) const {
  return Inside(row, column) ? FromUtf8(grid_->CellText(column + 1, row + 1)) : QString();
}

QString GridModel::Header(int column) const {
  if (grid_ == nullptr || column < 0 || column >= grid_->ColumnCount()) return {};
  return FromUtf8(grid_->Header(column + 1));
}

bool GridModel::Inside(int row, int column) const {
  return grid_ != nullptr && row >= 0 && column >= 0 && row < grid_->RowCount() &&
         column < grid_->ColumnCount();
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  const int row = index.row();
  const int column = index.column();
  if (!Inside(row, column)) return {};
  switch (role) {
    case Qt::DisplayRole:
      return Text(row, column);
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(Qt::AlignVCenter |
                                 (IsNumeric(column) ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::ForegroundRole:
      if (ShowsNegative(row, column)) return QBrush(negative_);
      return {};
    case Qt::BackgroundRole:
      if (const auto color = grid_->RowColor(row + 1)) {
        return QBrush(QColor(view::RowTint(*color, IsDark(palette_))));
      }
      return {};
    default:
      return {};
  }
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
  if (role == Qt::DisplayRole) return Header(section);
  if (role == Qt::SizeHintRole) return HeaderSize(Header(section));
  if (role == Qt::TextAlignmentRole) {
    const bool numeric = section < columns_ && IsNumeric(section);
    return QVariant::fromValue(Qt::AlignVCenter | (numeric ? Qt::AlignRight : Qt::AlignLeft));
  }
  return {};
}

}  // namespace qvzj::qt
