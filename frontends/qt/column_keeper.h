#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <vector>

class QTableView;

namespace qvzj::qt {

class LayoutStore;

/// Keeps the widths and the order that a user gives to a grid's columns, and puts them back the
/// next time. What was never touched stays as the form designed it.
class ColumnKeeper : public QObject {
 public:
  /// `name` names the grid and what its columns stand for among all of the program's; `store` may
  /// be null: then nothing is kept.
  ColumnKeeper(QTableView& table, std::function<QString()> name, LayoutStore* store);

  /// The form designs the columns with these widths (pixels): shows the user's where there are
  /// any. Called whenever the form has changed them.
  void Design(const std::vector<int>& widths);
  /// Back to the designed widths and order, forgetting the user's.
  void Reset();

 private:
  void Keep();
  void ShowOrder(const std::vector<int>& order);
  std::vector<int> NaturalOrder() const;

  QTableView& table_;
  std::function<QString()> name_;
  LayoutStore* store_;
  QString shown_;  // the name that the columns are shown for
  std::vector<int> designed_;
  bool showing_ = false;  // the header's own signals are echoes
};

}  // namespace qvzj::qt
