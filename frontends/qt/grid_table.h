#pragma once

#include <QLabel>
#include <QTableView>
#include <QTimer>

namespace qvzj::qt {

/// The native table: rows of one height, whole rows selected, the current row clear with or
/// without the focus.
class GridTable : public QTableView {
 public:
  explicit GridTable(QWidget* parent);
  /// Typing does not look for rows: a search through a million of them is asked for by Ctrl+F.
  void keyboardSearch(const QString&) override {}
  /// True while the mouse draws a selection.
  bool Dragging() const { return state() == DragSelectingState; }
  /// Outlines a row (0-based) for a moment.
  void Mark(int row);
  /// The row that is outlined now; -1: none.
  int MarkedRow() const { return marked_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int marked_ = -1;
  QTimer mark_ends_;
};

/// The place of a grid: the table and, while several rows are selected, a line below it that tells
/// their number and sums. The line takes its room from the table, so that it hides no rows.
class GridPane : public QWidget {
 public:
  explicit GridPane(QWidget* parent);
  GridTable* Table() const { return table_; }
  /// Shows a text in the line; "" takes the line away.
  void Say(const QString& text);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Arrange();

  GridTable* table_;
  QLabel* line_;
};

}  // namespace qvzj::qt
