#include "frontends/qt/boxes.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

#include "frontends/qt/native_texts.h"
#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"

namespace qvzj::qt {

namespace {

constexpr int kIconMask = 0x70;
constexpr int kOkCancel = 1;
constexpr int kYesNo = 4;

QMessageBox::Icon IconOf(int style) {
  switch (style & kIconMask) {
    case 16:
      return QMessageBox::Critical;
    case 32:
      return QMessageBox::Question;
    case 48:
      return QMessageBox::Warning;
    case 64:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

/// The window that a box belongs to: the one in front, whichever part of it is active.
QWidget* Owner() {
  QWidget* modal = QApplication::activeModalWidget();
  return modal != nullptr ? modal : QApplication::activeWindow();
}

}  // namespace

void QtBoxes::Dress(QDialog& dialog) const {
  dialog.setFont(ThemeFont(language_() == 1));
  dialog.setPalette(ThemePalette(Appearance::System));
  for (QWidget* part : dialog.findChildren<QWidget*>()) part->setStyle(ThemeStyle());
  for (QPushButton* button : dialog.findChildren<QPushButton*>()) button->setMinimumSize(80, 28);
}

Answer QtBoxes::Show(const std::string& text, int style, const std::string& title) {
  const NativeTexts& texts = TextsOf(language_());
  QMessageBox box(Owner());
  box.setWindowTitle(FromUtf8(title));
  box.setTextFormat(Qt::PlainText);
  box.setText(FromUtf8(text));
  box.setIcon(IconOf(style));

  const int buttons = style & box::kButtonsMask;
  const bool yes_no = buttons == kYesNo;
  QPushButton* accept = box.addButton(yes_no ? texts.yes : texts.ok, QMessageBox::AcceptRole);
  QPushButton* reject = nullptr;
  if (yes_no || buttons == kOkCancel) {
    reject = box.addButton(yes_no ? texts.no : texts.cancel, QMessageBox::RejectRole);
  }
  box.setDefaultButton(accept);
  box.setEscapeButton(reject != nullptr ? reject : accept);
  Dress(box);
  box.exec();

  const bool accepted = reject == nullptr || box.clickedButton() == accept;
  if (yes_no) return accepted ? Answer::Yes : Answer::No;
  return accepted ? Answer::Ok : Answer::Cancel;
}

std::optional<std::string> QtBoxes::Input(const std::string& prompt, const std::string& title,
                                          const std::string& preset) {
  const NativeTexts& texts = TextsOf(language_());
  QInputDialog dialog(Owner());
  dialog.setWindowTitle(FromUtf8(title));
  dialog.setLabelText(FromUtf8(prompt));
  dialog.setTextValue(FromUtf8(preset));
  dialog.setOkButtonText(texts.ok);
  dialog.setCancelButtonText(texts.cancel);
  dialog.setMinimumWidth(360);
  Dress(dialog);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return ToUtf8(dialog.textValue());
}

void QtBoxes::Error(const std::string& text, const std::string& title) {
  Show(text, box::kCritical, title);
}

}  // namespace qvzj::qt
