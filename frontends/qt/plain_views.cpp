#include "frontends/qt/plain_views.h"

#include <QCheckBox>
#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStyleOption>

#include "frontends/qt/calm_style.h"
#include "frontends/qt/form_window.h"
#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"
#include "frontends/view/measure.h"

namespace qvzj::qt {

namespace {

/// Puts a caption with its access-key mark on a native button; the key itself is the form's.
void SetCaption(QAbstractButton& button, const std::string& caption) {
  button.setText(FromUtf8(caption));
  button.setShortcut(QKeySequence());
}

int TextWidth(const QWidget& widget, const ui::Control& control) {
  const QString shown = FromUtf8(ui::ShownCaption(control.Caption()));
  return widget.fontMetrics().horizontalAdvance(shown);
}

TextFit IndicatorFit(const QAbstractButton& button, const ui::Control& control,
                     QStyle::SubElement contents) {
  QStyleOptionButton option;
  option.initFrom(&button);
  return {TextWidth(button, control),
          button.style()->subElementRect(contents, &option, &button).width()};
}

}  // namespace

void ElidedLabel::SetCaption(const std::string& caption) {
  setText(FromUtf8(caption));
  whole_ = FromUtf8(ui::ShownCaption(caption));
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QString shown =
      fontMetrics().elidedText(text(), Qt::ElideRight, width(), Qt::TextShowMnemonic);
  style()->drawItemText(&painter, rect(), static_cast<int>(alignment()) | Qt::TextShowMnemonic,
                        palette(), isEnabled(), shown, foregroundRole());
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    setToolTip(fontMetrics().horizontalAdvance(whole_) > width() ? whole_ : QString());
  }
  return QLabel::event(event);
}

LabelView::LabelView(FormWindow& window, ui::Label& label, QWidget* parent)
    : ControlView(window, label), label_(new ElidedLabel(parent)) {
  Adopt(label_);
  label_->setFocusPolicy(Qt::NoFocus);
  label_->setTextFormat(Qt::PlainText);
  label_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  if (label.Heading()) {
    QFont font = ThemeFont(window.Traditional());
    font.setPointSizeF(font.pointSizeF() + view::kHeadingMore);
    font.setBold(true);
    label_->setFont(font);
  }
}

QWidget* LabelView::Widget() const { return label_; }

void LabelView::Mirror(ui::Aspect aspect) {
  ControlView::Mirror(aspect);
  if (aspect == ui::Aspect::Caption) {
    label_->SetCaption(GetControl().Caption());
  }
}

TextFit LabelView::Fit() const { return {TextWidth(*label_, GetControl()), label_->width()}; }

ButtonView::ButtonView(FormWindow& window, ui::Button& button, QWidget* parent)
    : ControlView(window, button), button_(button), native_(new QPushButton(parent)) {
  Adopt(native_);
  native_->setAutoDefault(false);
  native_->setAttribute(Qt::WA_Hover);
  // A button that answers to the press itself has done its work before the release.
  connect(native_, &QPushButton::pressed, this, [this] {
    if (Live() && button_.onMouseDown) Pressed();
  });
  connect(native_, &QPushButton::clicked, this, [this] {
    if (!Live() || button_.onMouseDown) return;
    Act([this] { return GetForm().UserClick(button_); });
  });
}

void ButtonView::Pressed() {
  const int32_t x = view::ToTwips(pressed_at_.x(), native_->logicalDpiX());
  const int32_t y = view::ToTwips(pressed_at_.y(), native_->logicalDpiY());
  if (Act([&] { return GetForm().UserPress(button_, x, y); })) native_->setDown(false);
}

bool ButtonView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) {
    pressed_at_ = static_cast<QMouseEvent*>(event)->position().toPoint();
  }
  return ControlView::eventFilter(watched, event);
}

QWidget* ButtonView::Widget() const { return native_; }

void ButtonView::Mirror(ui::Aspect aspect) {
  ControlView::Mirror(aspect);
  if (aspect == ui::Aspect::Caption) SetCaption(*native_, button_.Caption());
}

TextFit ButtonView::Fit() const {
  QStyleOptionButton option;
  option.initFrom(native_);
  return {
      TextWidth(*native_, button_),
      native_->style()->subElementRect(QStyle::SE_PushButtonContents, &option, native_).width()};
}

CheckView::CheckView(FormWindow& window, ui::CheckBox& check, QWidget* parent)
    : ControlView(window, check), check_(check), native_(new QCheckBox(parent)) {
  Adopt(native_);
  connect(native_, &QCheckBox::clicked, this, [this] {
    if (!Live()) return;
    Mirror(ui::Aspect::Value);  // the native tick has run ahead, and the act may show a box first
    Act([this] { return GetForm().UserClick(check_); });
  });
}

QWidget* CheckView::Widget() const { return native_; }

void CheckView::Mirror(ui::Aspect aspect) {
  ControlView::Mirror(aspect);
  const QSignalBlocker quiet(native_);
  if (aspect == ui::Aspect::Caption) SetCaption(*native_, check_.Caption());
  if (aspect == ui::Aspect::Value) {
    native_->setTristate(check_.Value() == 2);
    native_->setCheckState(check_.Value() == 2   ? Qt::PartiallyChecked
                           : check_.Value() == 1 ? Qt::Checked
                                                 : Qt::Unchecked);
  }
}

TextFit CheckView::Fit() const {
  return IndicatorFit(*native_, check_, QStyle::SE_CheckBoxContents);
}

OptionView::OptionView(FormWindow& window, ui::OptionButton& option, QWidget* parent)
    : ControlView(window, option), option_(option), native_(new QRadioButton(parent)) {
  Adopt(native_);
  native_->setAutoExclusive(false);
  connect(native_, &QRadioButton::clicked, this, [this] {
    if (!Live()) return;
    Mirror(ui::Aspect::Value);  // no two options look chosen while the act shows a box
    Act([this] { return GetForm().UserClick(option_); });
  });
}

QWidget* OptionView::Widget() const { return native_; }

void OptionView::Mirror(ui::Aspect aspect) {
  ControlView::Mirror(aspect);
  const QSignalBlocker quiet(native_);
  if (aspect == ui::Aspect::Caption) SetCaption(*native_, option_.Caption());
  if (aspect == ui::Aspect::Value) native_->setChecked(option_.Selected());
}

TextFit OptionView::Fit() const {
  return IndicatorFit(*native_, option_, QStyle::SE_RadioButtonContents);
}

void Panel::SetTitle(const QString& title) {
  title_ = title;
  LeaveTop();
  update();
}

int Panel::LineTop() const {
  constexpr int kUntitled = 6;
  if (!title_.isEmpty()) return fontMetrics().height() / 2;
  // A panel of one line is the outline of something beside it.
  return outlined_ && height() > 2 * fontMetrics().height() ? kUntitled : 0;
}

void Panel::LeaveTop() {
  if (title_.isEmpty() && LineTop() > 0) {
    setMask(rect().adjusted(0, LineTop(), 0, 0));
  } else {
    clearMask();
  }
}

void Panel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  LeaveTop();
}

void Panel::paintEvent(QPaintEvent*) {
  if (!outlined_) return;
  QPainter painter(this);
  const view::Colors& colors = ColorsFor(palette());
  DrawRounded(painter, rect().adjusted(0, LineTop(), 0, 0), colors.card, colors.border);
  if (title_.isEmpty()) return;
  const int width = fontMetrics().horizontalAdvance(title_);
  const QRect place(8, 0, width + 8, fontMetrics().height());
  painter.fillRect(place, colors.card);
  painter.setPen(colors.muted);
  painter.drawText(place, Qt::AlignCenter, title_);
}

FrameView::FrameView(FormWindow& window, ui::Frame& frame, QWidget* parent)
    : ControlView(window, frame), panel_(new Panel(frame.Outlined(), parent)) {
  Adopt(panel_);
  panel_->setFocusPolicy(Qt::NoFocus);
}

QWidget* FrameView::Widget() const { return panel_; }

void FrameView::Mirror(ui::Aspect aspect) {
  ControlView::Mirror(aspect);
  if (aspect == ui::Aspect::Caption) {
    panel_->SetTitle(FromUtf8(ui::ShownCaption(GetControl().Caption())));
  }
}

}  // namespace qvzj::qt
