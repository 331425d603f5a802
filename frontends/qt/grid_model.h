#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QFont>
#include <QPalette>

#include "frontends/view/grid_cells.h"

namespace qvzj::qt {

/// The form's grid as Qt's views ask for it: one cell at a time, only those that are painted,
/// straight out of the packed columns. Rows and columns are 0-based here and 1-based there.
class GridModel : public QAbstractTableModel {
 public:
  explicit GridModel(const ui::Grid& grid) : cells_(grid) {}

  /// The grid's contents changed: takes over its size and tells the views.
  void Refresh();
  /// The grid goes away; the model is empty from now on.
  void Detach();
  /// The colours that cells get from the theme.
  void SetPalette(const QPalette& palette, const QColor& negative);
  /// Font of the headers and the pixels around their texts. With them the model answers the sizes
  /// that the views ask for again and again, some hundred header sections at a time.
  void SetHeaderLook(const QFont& font, int margin);

  const view::GridCells& Cells() const { return cells_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QSize HeaderSize(const QString& text) const;
  /// Of a column (1-based).
  Qt::Alignment Side(int column) const;

  view::GridCells cells_;
  QPalette palette_;
  QColor negative_;
  QFont header_font_;
  int header_margin_ = 0;
  QSize row_number_size_;  // of the greatest one
};

}  // namespace qvzj::qt
