#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QFont>
#include <QPalette>
#include <vector>

#include "platform/ui/grid.h"

namespace qvzj::qt {

/// The form's grid as Qt's views ask for it: one cell at a time, only those that are painted,
/// straight out of the packed columns. Rows and columns are 0-based here and 1-based there.
class GridModel : public QAbstractTableModel {
 public:
  explicit GridModel(ui::Grid& grid) : grid_(&grid) {}

  /// The grid's contents changed: takes over its size and tells the views.
  void Refresh();
  /// The grid goes away; the model is empty from now on.
  void Detach();
  /// The colours that cells get from the theme.
  void SetPalette(const QPalette& palette, const QColor& negative);
  /// Font of the headers and the pixels around their texts. With them the model answers the sizes
  /// that the views ask for again and again, some hundred header sections at a time.
  void SetHeaderLook(const QFont& font, int margin);

  /// True for a column of numbers.
  bool IsNumeric(int column) const;
  /// True when the cell holds a number (not an empty cell of a number column).
  bool HasNumber(int row, int column) const;
  double Number(int row, int column) const;
  /// True for an amount below zero that is also shown as one.
  bool ShowsNegative(int row, int column) const;
  QString Text(int row, int column) const;
  QString Header(int column) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  bool Inside(int row, int column) const;
  QSize HeaderSize(const QString& text) const;

  ui::Grid* grid_;
  int rows_ = 0;  // as the views were last told; the grid itself may be ahead
  int columns_ = 0;
  std::vector<bool> numeric_;
  QPalette palette_;
  QColor negative_;
  QFont header_font_;
  int header_margin_ = 0;
  QSize row_number_size_;  // of the greatest one
};

}  // namespace qvzj::qt
