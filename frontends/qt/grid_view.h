#pragma once

#include <QTableView>

#include "frontends/qt/view.h"

namespace qvzj::qt {

class ColumnKeeper;
class GridModel;
class GridTools;

/// The native table: rows of one height, whole rows selected, the current row clear with or
/// without the focus.
class GridTable : public QTableView {
 public:
  explicit GridTable(QWidget* parent);
  /// Typing does not look for rows: a search through a million of them is asked for by Ctrl+F.
  void keyboardSearch(const QString&) override {}

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// The view of a grid. Contents are taken over at the end of an act, never cell by cell; the
/// active cell is the form's, a selection of several rows is the table's own.
class GridView : public ControlView {
 public:
  GridView(FormWindow& window, ui::Grid& grid, QWidget* parent);
  ~GridView() override;
  QWidget* Widget() const override;
  void Mirror(ui::Aspect aspect) override;
  void Refresh() override;
  void Detach() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

  GridTable* Table() const { return table_; }
  GridModel& Model() const { return *model_; }
  ui::Grid& GetGrid() const { return grid_; }
  GridTools& Tools() const { return *tools_; }
  FormWindow& Window() const { return window_; }
  bool IsLive() const { return Live(); }
  ColumnKeeper& Columns() const { return *columns_; }

 protected:
  bool FocusesOnPress() const override { return true; }
  void DoOwn(view::KeyRoute route) override;
  /// Under the current row.
  QPoint MenuPlace() const override;

 private:
  void ConnectTable();
  void StepSideways(int step);
  void ShowColumns();
  void ShowRowHeight();
  void ShowSortIndicator();
  void ShowCurrent();
  void CurrentMoved(const QModelIndex& current);
  void CountPageRows();

  ui::Grid& grid_;
  GridTable* table_;
  std::unique_ptr<GridModel> model_;
  std::unique_ptr<ColumnKeeper> columns_;
  std::unique_ptr<GridTools> tools_;
  bool contents_stale_ = true;
  bool current_stale_ = true;
  bool showing_ = false;  // the table's own signals are echoes
};

}  // namespace qvzj::qt
