#pragma once

#include <QProgressDialog>
#include <QString>

#include "platform/pages.h"

namespace qvzj::qt {

/// Shows how far long work is, and lets the user cancel it. It appears only when the work takes
/// longer than a moment; from then on no other window of the application takes input, so that
/// nothing changes what is being worked on.
class WorkDialog {
 public:
  /// `what` says what is being done.
  WorkDialog(QWidget* parent, const QString& title, const QString& what, bool traditional);
  /// False when the user cancelled.
  bool Step(int64_t done, int64_t total);
  Progress AsProgress();

 private:
  QProgressDialog dialog_;
};

}  // namespace qvzj::qt
