#include "frontends/qt/boxes.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPointer>
#include <QPushButton>

#include "frontends/qt/native_texts.h"
#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"

namespace qvzj::qt {

namespace {

constexpr int kIconMask = 0x70;
constexpr int kOkCancel = 1;
constexpr int kYesNo = 4;

struct Sign {
  QColor color;
  QString mark;
};

/// What a box shows beside its text; no mark for a plain one.
Sign SignOf(int style) {
  switch (style & kIconMask) {
    case 16:
      return {QColor(0xc0272d), "×"};
    case 32:
      return {QColor(0x2563b8), "?"};
    case 48:
      return {QColor(0xb7791f), "!"};
    case 64:
      return {QColor(0x2563b8), "i"};
    default:
      return {};
  }
}

/// A round sign, drawn so that it is sharp at the screen's scaling.
QPixmap Draw(const Sign& sign, const QWidget& on) {
  constexpr int kSize = 32;
  QPixmap pixmap(QSize(kSize, kSize) * on.devicePixelRatio());
  pixmap.setDevicePixelRatio(on.devicePixelRatio());
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(sign.color);
  painter.drawEllipse(QRectF(1, 1, kSize - 2, kSize - 2));
  QFont font = ThemeFont(false);
  font.setPixelSize(20);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(QRectF(0, 0, kSize, kSize), Qt::AlignCenter, sign.mark);
  return pixmap;
}

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

Answer QtBoxes::Show(const std::string& text, int style, const std::string& title) {
  const NativeTexts& texts = TextsOf(language_());
  const QPointer<QWidget> owner = Owner();
  QMessageBox box(owner);
  box.setWindowTitle(FromUtf8(title));
  box.setTextFormat(Qt::PlainText);
  box.setText(FromUtf8(text));
  const Sign sign = SignOf(style);
  if (!sign.mark.isEmpty()) box.setIconPixmap(Draw(sign, box));

  const int buttons = style & box::kButtonsMask;
  const bool yes_no = buttons == kYesNo;
  QPushButton* accept = box.addButton(yes_no ? texts.yes : texts.ok, QMessageBox::AcceptRole);
  QPushButton* reject = nullptr;
  if (yes_no || buttons == kOkCancel) {
    reject = box.addButton(yes_no ? texts.no : texts.cancel, QMessageBox::RejectRole);
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

  const bool accepted = reject == nullptr || box.clickedButton() == accept;
  if (yes_no) return accepted ? Answer::Yes : Answer::No;
  return accepted ? Answer::Ok : Answer::Cancel;
}

std::optional<std::string> QtBoxes::Input(const std::string& prompt, const std::string& title,
                                          const std::string& preset) {
  const NativeTexts& texts = TextsOf(language_());
  const QPointer<QWidget> owner = Owner();
  QInputDialog dialog(owner);
  dialog.setWindowTitle(FromUtf8(title));
  dialog.setLabelText(FromUtf8(prompt));
  dialog.setTextValue(FromUtf8(preset));
  dialog.setOkButtonText(texts.ok);
  dialog.setCancelButtonText(texts.cancel);
  dialog.setMinimumWidth(360);
  DressBox(dialog);
  const bool accepted = dialog.exec() == QDialog::Accepted;
  if (owner) owner->activateWindow();
  if (!accepted) return std::nullopt;
  return ToUtf8(dialog.textValue());
}

void QtBoxes::Error(const std::string& text, const std::string& title) {
  Show(text, box::kCritical, title);
}

}  // namespace qvzj::qt
