#pragma once

#include <QObject>
#include <QString>
#include <vector>

#include "frontends/view/grid_menu.h"

class QPoint;

namespace qvzj::qt {

class FindBar;
class GridView;

/// What people expect of any grid: copying the selected rows, finding a text, the number and sums
/// of the selected rows, and a menu with all of it.
class GridTools : public QObject {
 public:
  explicit GridTools(GridView& view);

  void Do(view::GridAct act);
  /// The selected rows under their headers, columns parted by tabs, as the clipboard gets them.
  QString SelectedText() const;
  /// "3 rows, sum of …"; empty while fewer than two rows are selected.
  QString Summary() const;
  /// Shows it anew: the selection or the amounts have changed.
  void ShowSummary();
  /// Moves the active cell to the next cell that contains the text (ASCII case does not count),
  /// around at the end. False when there is none, or the form kept the cell.
  bool Find(const QString& text, bool backwards);
  /// Asks for a file and exports the grid into it.
  void Export();

 private:
  void ShowMenu(const QPoint& at);
  void Copy();
  void OpenFind();
  /// The bar, made when it is first asked for.
  FindBar& Bar();
  void Print();
  /// From left to right as the user sees them; columns and rows are the grid's, 1-based.
  std::vector<int32_t> ShownColumns() const;
  std::vector<int32_t> SelectedRows() const;
  const view::Texts& Texts() const;

  GridView& view_;
  FindBar* find_bar_ = nullptr;
};

}  // namespace qvzj::qt
