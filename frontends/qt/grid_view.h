#pragma once

#include "frontends/qt/grid_table.h"
#include "frontends/qt/view.h"
#include "frontends/view/grid_selection.h"

class QMouseEvent;

namespace qvzj::qt {

class ColumnKeeper;
class GridModel;
class GridTools;

/// The view of a grid. Contents are taken over at the end of an act, never cell by cell; the
/// active cell is the form's, a selection of several rows is the table's own.
class GridView : public ControlView {
 public:
  GridView(FormWindow& window, ui::Grid& grid, QWidget* parent);
  ~GridView() override;
  QWidget* Widget() const override;
  QWidget* FocusWidget() const override;
  void Mirror(ui::Aspect aspect) override;
  void Refresh() override;
  void Detach() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

  GridPane* Pane() const { return pane_; }
  GridTable* Table() const { return table_; }
  GridModel& Model() const { return *model_; }
  ui::Grid& GetGrid() const { return grid_; }
  GridTools& Tools() const { return *tools_; }
  FormWindow& Window() const { return window_; }
  bool IsLive() const { return Live(); }
  ColumnKeeper& Columns() const { return *columns_; }

 protected:
  bool FocusesOnPress() const override { return true; }
  void DoOwn(view::KeyRoute route, const ui::Key& key) override;
  /// Under the current row.
  QPoint MenuPlace() const override;

 private:
  void ConnectTable();
  void StepSideways(int step);
  /// Moves the active row and selects all from the anchor to it.
  void ExtendTo(int32_t column, int32_t row);
  bool ExtendByMouse(const QMouseEvent& press);
  void ShowColumns();
  void ShowRowHeight();
  void ShowSortIndicator();
  void ShowCurrent();
  void ShowMarked();
  bool CurrentInSight() const;
  void CurrentMoved(const QModelIndex& current);
  void CountPageRows();

  ui::Grid& grid_;
  GridPane* pane_;
  GridTable* table_;
  std::unique_ptr<GridModel> model_;
  std::unique_ptr<ColumnKeeper> columns_;
  std::unique_ptr<GridTools> tools_;
  bool contents_stale_ = true;
  bool current_stale_ = true;
  bool sight_stale_ = true;    // the current row is to be brought into sight
  bool marked_stale_ = false;  // a row is to be marked
  view::SelectionAnchor anchor_;
  bool showing_ = false;  // the table's own signals are echoes
};

}  // namespace qvzj::qt
