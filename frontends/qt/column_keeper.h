#pragma once

#include <QObject>
#include <vector>

#include "frontends/view/column_arrangement.h"

class QTableView;

namespace qvzj::qt {

/// Shows the columns of a table as the user arranged them, and tells what he arranges.
class ColumnKeeper : public QObject {
 public:
  /// `store` may be null: then nothing is kept.
  ColumnKeeper(QTableView& table, const ui::Grid& grid, view::NumberStore* store);

  /// The form designs the columns with these widths (pixels): shows the user's where there are
  /// any. Called whenever the form has changed them.
  void Design(const std::vector<int>& widths);
  /// Back to the designed widths and order, forgetting the user's.
  void Reset();
  /// The columns (0-based) from left to right.
  std::vector<int> Order() const;

 private:
  void Keep();
  void Show(const view::ColumnLayout& layout);

  QTableView& table_;
  view::ColumnArrangement arrangement_;
  bool showing_ = false;  // the header's own signals are echoes
};

}  // namespace qvzj::qt
