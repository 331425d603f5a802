#include "frontends/qt/view.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QInputMethod>
#include <QKeyEvent>
#include <QTimer>
#include <QToolTip>

#include "frontends/qt/calm_style.h"
#include "frontends/qt/composition.h"
#include "frontends/qt/form_window.h"
#include "frontends/qt/keys.h"
#include "frontends/qt/text.h"
#include "frontends/view/look.h"
#include "frontends/view/measure.h"
#include "frontends/view/view_plan.h"

namespace qvzj::qt {

namespace {

QRect PlaceOf(const ui::Control& control, const QWidget& widget) {
  const view::PixelRect place =
      view::ToPixels(control.GetBounds(), widget.logicalDpiX(), widget.logicalDpiY());
  return {place.left, place.top, place.width, place.height};
}

}  // namespace

QWidget* ControlView::Inner(int) const { return Widget(); }

void ControlView::Mirror(ui::Aspect aspect) {
  switch (aspect) {
    case ui::Aspect::Caption:
      FocusWidget()->setAccessibleName(FromUtf8(control_->AccessibleName()));
      return;
    case ui::Aspect::Enabled:
      Widget()->setEnabled(control_->Enabled());
      return;
    case ui::Aspect::Visible:
      Widget()->setVisible(control_->Visible());
      return;
    case ui::Aspect::Bounds:
      Widget()->setGeometry(PlaceOf(*control_, *Widget()));
      return;
    default:
      return;
  }
}

void ControlView::MirrorAll() {
  for (ui::Aspect aspect : view::AllAspects()) Mirror(aspect);
}

void ControlView::Adopt(QWidget* widget, QWidget* also) {
  widget->setObjectName(FromUtf8(control_->FullName()));
  for (QWidget* watched : {widget, also}) {
    if (watched == nullptr) continue;
    watched->setFocusPolicy(Qt::TabFocus);
    watched->installEventFilter(this);
  }
}

bool ControlView::Live() const { return window_.Live(); }

bool ControlView::Act(const std::function<bool()>& act) { return window_.Act(act); }

bool ControlView::eventFilter(QObject* watched, QEvent* event) {
  if (!Live()) return false;
  Follow(composition_, *event);
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      return HandleKey(*static_cast<QKeyEvent*>(event), true);
    case QEvent::KeyPress:
      return HandleKey(*static_cast<QKeyEvent*>(event), false);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return FocusesOnPress() && HandlePress();
    case QEvent::Wheel: {
      // The wheel scrolls what has the focus; over anything else it must not change a value.
      const bool focused = FocusWidget()->hasFocus();
      const bool passes_over = !focused && !view::ScrollsByWheel(*control_);
      if (passes_over) event->ignore();
      return passes_over;
    }
    case QEvent::ToolTip:
      return ShowReason(static_cast<QHelpEvent*>(event)->globalPos());
    case QEvent::FocusOut:
      FocusWidget()->update();  // its frame tells the focus
      return false;
    case QEvent::FocusIn:
      FocusWidget()->update();
      if (!window_.Following()) HandleFocusIn(static_cast<QFocusEvent*>(event)->reason());
      return false;
    default:
      return QObject::eventFilter(watched, event);
  }
}

bool ControlView::HandleKey(QKeyEvent& event, bool only_ask) {
  const std::optional<ui::Key> key = KeyOf(event);
  const view::KeyRoute route = key ? view::RouteOf(control_, *key) : view::KeyRoute::Native;
  if (route == view::KeyRoute::Native) return false;
  if (composition_.UnderWay()) return true;
  if (only_ask) {
    event.accept();
  } else if (route == view::KeyRoute::Form) {
    SendKey(*key);
  } else if (route == view::KeyRoute::ShowMenu) {
    AskForMenu();
  } else {
    DoOwn(route, *key);
  }
  return true;
}

void ControlView::CommitComposition() {
  if (composition_.UnderWay()) QGuiApplication::inputMethod()->commit();
  // Some input methods hand over only when they are asked to begin anew.
  if (composition_.UnderWay()) QGuiApplication::inputMethod()->reset();
}

void ControlView::AskForMenu() {
  QWidget* asked = FocusWidget();
  const QPoint at = MenuPlace();
  QContextMenuEvent event(QContextMenuEvent::Keyboard, at, asked->mapToGlobal(at));
  QCoreApplication::sendEvent(asked, &event);
}

QPoint ControlView::MenuPlace() const { return FocusWidget()->rect().center(); }

void ControlView::TellRefusal() {
  QApplication::beep();
  QWidget* field = Widget();
  if (ShowReason(field->mapToGlobal(QPoint(0, field->height())))) return;
  field->setProperty(kRefused, true);
  field->update();
  QTimer::singleShot(view::kRefusalShownFor, field, [field] {
    field->setProperty(kRefused, false);
    field->update();
  });
}

bool ControlView::ShowReason(const QPoint& at) {
  if (control_->Usable() || control_->DisabledReason().empty()) return false;
  QToolTip::showText(at, FromUtf8(control_->DisabledReason()), Widget());
  return true;
}

void ControlView::SendKey(const ui::Key& key) {
  Act([&] { return GetForm().UserKey(key); });
}

bool ControlView::HandlePress() {
  if (GetForm().Focused() == control_ || !control_->CanFocus()) return false;
  if (!Act([this] { return GetForm().UserFocus(*control_); })) return true;
  return SwallowFocusingPress();
}

void ControlView::HandleFocusIn(Qt::FocusReason reason) {
  // A window that comes to the front takes up the focus where the form has it. Anything else that
  // moves the focus (assistive technology) speaks for the user.
  const bool chosen = reason == Qt::OtherFocusReason || reason == Qt::ShortcutFocusReason;
  QMetaObject::invokeMethod(
      this,
      [this, chosen] {
        if (!Live()) return;
        const bool elsewhere = GetForm().Focused() != control_;
        if (chosen && elsewhere && FocusWidget()->hasFocus() && control_->CanFocus()) {
          Act([this] { return GetForm().UserFocus(*control_); });
        }
        window_.Flush();
      },
      Qt::QueuedConnection);
}

}  // namespace qvzj::qt
