#pragma once

#include <QProgressDialog>
#include <QString>

#include "platform/pages.h"

namespace qvzj::qt {

/// Shows how far long work is, and lets the user cancel it. It appears only when the work takes
/// longer than a moment.
class WorkDialog {
 public:
  WorkDialog(QWidget* parent, const QString& title);
  /// False when the user cancelled.
  bool Step(int64_t done, int64_t total);
  Progress AsProgress();

 private:
  QProgressDialog dialog_;
};

}  // namespace qvzj::qt
