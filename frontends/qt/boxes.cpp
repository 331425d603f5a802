#include "frontends/qt/boxes.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPointer>
#include <QPushButton>

#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"
#include "frontends/view/box_plan.h"

namespace qvzj::qt {

namespace {

/// A round sign, drawn so that it is sharp at the screen's scaling.
QPixmap Draw(const view::BoxSign& sign, const QWidget& on) {
  constexpr int kSize = 32;
  QPixmap pixmap(QSize(kSize, kSize) * on.devicePixelRatio());
  pixmap.setDevicePixelRatio(on.devicePixelRatio());
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(sign.color));
  painter.drawEllipse(QRectF(1, 1, kSize - 2, kSize - 2));
  QFont font = ThemeFont(false);
  font.setPixelSize(20);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(QRectF(0, 0, kSize, kSize), Qt::AlignCenter, FromUtf8(sign.mark));
  return pixmap;
}

/// A dialog for the time of a question. The host may destroy its owner while it is open, and the
/// owner takes it along; it then was given up.
template <class Dialog>
class Asked {
 public:
  explicit Asked(QWidget* owner) : dialog_(new Dialog(owner)) {}
  ~Asked() { delete dialog_.data(); }
  Asked(const Asked&) = delete;
  Asked& operator=(const Asked&) = delete;

  Dialog& Get() { return *dialog_; }
  bool Gone() const { return dialog_.isNull(); }

 private:
  QPointer<Dialog> dialog_;
};

/// The window that a box belongs to: the one in front, whichever part of it is active.
QWidget* Owner() {
  QWidget* modal = QApplication::activeModalWidget();
  return modal != nullptr ? modal : QApplication::activeWindow();
}

}  // namespace

void QtBoxes::DressBox(QDialog& dialog) const {
  Dress(dialog, language_() == 1);
  for (QPushButton* button : dialog.findChildren<QPushButton*>()) button->setMinimumSize(80, 28);
}

Answer QtBoxes::Show(const std::string& text, int style, const std::string& title,
                     const std::string& detail) {
  const view::BoxPlan plan = view::PlanBox(style, view::TextsOf(language_() == 1));
  const QPointer<QWidget> owner = Owner();
  Asked<QMessageBox> asked(owner);
  QMessageBox& box = asked.Get();
  box.setWindowTitle(FromUtf8(title));
  box.setTextFormat(Qt::PlainText);
  box.setDetailedText(FromUtf8(detail));  // shown by a button of its own, none for ""
  box.setText(FromUtf8(text));
  if (!plan.sign.mark.empty()) box.setIconPixmap(Draw(plan.sign, box));

  QPushButton* accept = box.addButton(FromUtf8(plan.accept), QMessageBox::AcceptRole);
  QPushButton* reject = nullptr;
  if (!plan.reject.empty()) {
    reject = box.addButton(FromUtf8(plan.reject), QMessageBox::RejectRole);
  }
  box.setDefaultButton(accept);
  box.setEscapeButton(reject != nullptr ? reject : accept);
  DressBox(box);
  // Wide enough for the title beside the window's own buttons.
  auto* label = box.findChild<QLabel*>("qt_msgbox_label");
  const int titled = box.fontMetrics().horizontalAdvance(box.windowTitle()) + 40;
  // A longer text knows its width itself, which a minimum would take from it.
  if (label != nullptr && label->sizeHint().width() < titled) label->setMinimumWidth(titled);
  box.exec();
  if (owner) owner->activateWindow();

  const bool accepted = reject == nullptr || (!asked.Gone() && box.clickedButton() == accept);
  return accepted ? plan.accepted : plan.rejected;
}

std::optional<std::string> QtBoxes::Input(const std::string& prompt, const std::string& title,
                                          const std::string& preset) {
  const view::Texts& texts = view::TextsOf(language_() == 1);
  const QPointer<QWidget> owner = Owner();
  Asked<QInputDialog> asked(owner);
  QInputDialog& dialog = asked.Get();
  dialog.setWindowTitle(FromUtf8(title));
  dialog.setLabelText(FromUtf8(prompt));
  dialog.setTextValue(FromUtf8(preset));
  dialog.setOkButtonText(FromUtf8(texts.ok));
  dialog.setCancelButtonText(FromUtf8(texts.cancel));
  dialog.setMinimumWidth(360);
  DressBox(dialog);
  const bool accepted = dialog.exec() == QDialog::Accepted;
  if (owner) owner->activateWindow();
  if (!accepted || asked.Gone()) return std::nullopt;
  return ToUtf8(dialog.textValue());
}

void QtBoxes::Error(const std::string& text, const std::string& title, const std::string& detail) {
  Show(text, box::kCritical, title, detail);
}

}  // namespace qvzj::qt
