#include "frontends/qt/print/work_dialog.h"

namespace qvzj::qt {
namespace {

constexpr int kSteps = 1000;
constexpr int kPatience = 400;  // milliseconds before the dialog appears

}  // namespace

WorkDialog::WorkDialog(QWidget* parent, const QString& title)
    : dialog_(title, QString::fromUtf8("取消"), 0, kSteps, parent) {
  dialog_.setWindowModality(Qt::WindowModal);
  dialog_.setMinimumDuration(kPatience);
  dialog_.setAutoReset(false);
}

bool WorkDialog::Step(int64_t done, int64_t total) {
  dialog_.setValue(total > 0 ? static_cast<int>(done * kSteps / total) : 0);
  return !dialog_.wasCanceled();
}

Progress WorkDialog::AsProgress() {
  return [this](int64_t done, int64_t total) { return Step(done, total); };
}

}  // namespace qvzj::qt
