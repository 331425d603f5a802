#pragma once

#include <QWidget>
#include <functional>

#include "frontends/view/composition.h"
#include "frontends/view/texts.h"

class QLabel;
class QLineEdit;

namespace qvzj::qt {

/// A line over the upper right corner of a grid in which the user puts what to look for. Enter
/// goes to the next place, Shift+Enter to the one before, Esc closes.
class FindBar : public QWidget {
 public:
  /// `find` goes to the next place of a text (backwards: the one before) and answers whether there
  /// is one; `closed` is told when the user is done.
  FindBar(QWidget* over, const view::Texts& texts,
          std::function<bool(const QString&, bool backwards)> find, std::function<void()> closed);

  void Open();
  /// Looks for the same text again; opens the line when there is none yet.
  void Next();
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Place();
  void Find(bool backwards);

  QLineEdit* line_;
  QLabel* answer_;
  QString not_found_;
  std::function<bool(const QString&, bool)> find_;
  std::function<void()> closed_;
  view::Composition composition_;
};

}  // namespace qvzj::qt
