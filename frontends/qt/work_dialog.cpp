#include "frontends/qt/work_dialog.h"

#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"
#include "frontends/view/texts.h"

namespace qvzj::qt {
namespace {

constexpr int kSteps = 1000;
constexpr int kPatience = 400;  // milliseconds before the dialog appears
constexpr int kWidth = 360;

}  // namespace

WorkDialog::WorkDialog(QWidget* parent, const QString& title, const QString& what, bool traditional)
    : dialog_(what, FromUtf8(view::TextsOf(traditional).cancel), 0, kSteps, parent) {
  dialog_.setWindowTitle(title);
  dialog_.setWindowModality(Qt::ApplicationModal);
  dialog_.setMinimumDuration(kPatience);
  dialog_.setMinimumWidth(kWidth);
  dialog_.setAutoReset(false);
  Dress(dialog_, traditional);
}

bool WorkDialog::Step(int64_t done, int64_t total) {
  dialog_.setValue(total > 0 ? static_cast<int>(done * kSteps / total) : 0);
  return !dialog_.wasCanceled();
}

Progress WorkDialog::AsProgress() {
  return [this](int64_t done, int64_t total) { return Step(done, total); };
}

}  // namespace qvzj::qt
