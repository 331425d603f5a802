#include "frontends/qt/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScreen>
#include <algorithm>

#include "frontends/qt/keys.h"
#include "frontends/qt/text.h"
#include "frontends/qt/theme.h"
#include "frontends/view/measure.h"
#include "frontends/view/view_plan.h"

namespace qvzj::qt {

FormWindow::FormWindow(ui::Form& form, const WindowOptions& options, QWidget* parent)
    : QWidget(parent, Qt::Window), pump_(form, Hooks()), options_(options) {
  setObjectName(FromUtf8(form.Name()));
  setFocusPolicy(Qt::NoFocus);
  ApplyTheme();
  TakeInitialSize();
  MakeSeen();
  form.AddObserver(this);
  FormChanged(form, ui::Aspect::Caption);
  FormChanged(form, ui::Aspect::MousePointer);
  Flush();
}

FormWindow::~FormWindow() { Detach(); }

void FormWindow::Detach() {
  if (!Live()) return;
  SetHourglass(false);
  GetForm().RemoveObserver(this);
  for (const auto& [control, view] : views_) view->Detach();
  pump_.Detach();
}

bool FormWindow::Resizable() const { return Live() && view::IsResizable(GetForm()); }

bool FormWindow::Traditional() const { return options_.language && options_.language() == 1; }

void FormWindow::ApplyTheme() {
  setFont(ThemeFont(Traditional()));
  setPalette(ThemePalette(Appearance::System));
  setStyle(ThemeStyle());
}

void FormWindow::TakeInitialSize() {
  const QSize wanted(view::ToPixels(GetForm().Width(), logicalDpiX()),
                     view::ToPixels(GetForm().Height(), logicalDpiY()));
  if (!Resizable()) {
    setFixedSize(wanted);
    return;
  }
  const QSize room = screen()->availableSize();
  resize(wanted.boundedTo(room));
  // A screen too small for the designed size is used whole; forms arrange themselves to it then.
  if (wanted.boundedTo(room) != wanted) setWindowState(windowState() | Qt::WindowMaximized);
}

QWidget* FormWindow::ParentFor(ui::Control& control) {
  return control.Container() == nullptr ? this
                                        : ViewOf(*control.Container())->Inner(control.Page());
}

void FormWindow::MakeSeen() {
  for (ui::Control* control : view::SeenControls(GetForm())) ViewOf(*control);
}

ControlView* FormWindow::MadeView(const ui::Control& control) const {
  const auto found = views_.find(&control);
  return found == views_.end() ? nullptr : found->second.get();
}

ControlView* FormWindow::ViewOf(ui::Control& control) {
  if (!view::HasView(control)) return nullptr;
  ControlView* made = MadeView(control);
  return made != nullptr ? made : Make(control);
}

std::vector<ControlView*> FormWindow::Views() {
  std::vector<ControlView*> views;
  for (ui::Control* control : GetForm().Controls()) {
    if (ControlView* view = ViewOf(*control)) views.push_back(view);
  }
  return views;
}

ControlView* FormWindow::Make(ui::Control& control) {
  ControlView& view = *(views_[&control] = MakeView(*this, control, ParentFor(control)));
  view.Widget()->setStyle(ThemeStyle());
  for (QWidget* part : view.Widget()->findChildren<QWidget*>()) part->setStyle(ThemeStyle());
  PutInTurn(control, *view.Widget());
  view.MirrorAll();
  return &view;
}

void FormWindow::PutInTurn(const ui::Control& control, QWidget& widget) {
  const ui::Control* above = view::StackedUnder(
      GetForm(), control, [this](const ui::Control& other) { return MadeView(other) != nullptr; });
  if (above != nullptr) widget.stackUnder(MadeView(*above)->Widget());
}

view::PumpHooks FormWindow::Hooks() {
  return {[this](std::function<void()> step) {
            QMetaObject::invokeMethod(this, std::move(step), Qt::QueuedConnection);
          },
          [this](ui::Control& control) {
            if (ControlView* view = ViewOf(control)) view->CommitEdit();
          },
          [this](ui::Control& control) { ViewOf(control)->Refresh(); }, [this] { SyncFocus(); }};
}

void FormWindow::SyncFocus() {
  ui::Control* focused = GetForm().Focused();
  ControlView* view = focused == nullptr ? nullptr : ViewOf(*focused);
  QWidget* wanted = view == nullptr ? this : view->FocusWidget();
  // An editor inside the widget, such as the find line of a grid, counts as the widget.
  if (focusWidget() == wanted || (view != nullptr && wanted->isAncestorOf(focusWidget()))) return;
  const QScopedValueRollback<bool> following(following_, true);
  wanted->setFocus(Qt::OtherFocusReason);
}

void FormWindow::ControlChanged(ui::Control& control, ui::Aspect aspect) {
  if (aspect == ui::Aspect::Focus) {
    pump_.FlushLater();
    return;
  }
  if (ControlView* view = MadeView(control)) view->Mirror(aspect);
  // What has come to the screen with it (a panel, a tab page) may have no views so far.
  if (view::MayShowMore(control, aspect)) MakeSeen();
}

void FormWindow::FormChanged(ui::Form& form, ui::Aspect aspect) {
  switch (aspect) {
    case ui::Aspect::Caption:
      setWindowTitle(FromUtf8(form.Caption()));
      return;
    case ui::Aspect::Focus:
      pump_.FlushLater();
      return;
    case ui::Aspect::MousePointer:
      SetHourglass(form.GetMousePointer() == ui::MousePointer::Hourglass);
      return;
    case ui::Aspect::Closed:
      Detach();
      hide();
      return;
    default:
      return;
  }
}

void FormWindow::SetHourglass(bool on) {
  if (on == hourglass_) return;
  hourglass_ = on;
  if (on) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

void FormWindow::PopUpMenu(ui::Form&, ui::MenuItem& menu, int32_t left, int32_t top) {
  auto* native = new QMenu(this);
  native->setAttribute(Qt::WA_DeleteOnClose);
  native->setFont(font());
  native->setStyle(ThemeStyle());
  FillMenu(*native, menu);
  native->popup(
      mapToGlobal(QPoint(view::ToPixels(left, logicalDpiX()), view::ToPixels(top, logicalDpiY()))));
}

void FormWindow::KeyRefused(ui::Control& control) {
  if (ControlView* view = ViewOf(control)) view->TellRefusal();
}

void FormWindow::FillMenu(QMenu& native, ui::MenuItem& menu) {
  for (ui::Control* control : view::MenuEntries(GetForm(), menu)) {
    if (view::IsSeparator(*control)) {
      native.addSeparator();
      continue;
    }
    QAction* action = native.addAction(FromUtf8(control->Caption()));
    action->setEnabled(control->Enabled());
    // The menu must be gone before the act, which may open a box.
    connect(
        action, &QAction::triggered, this,
        [this, control] { Act([this, control] { return GetForm().UserClick(*control); }); },
        Qt::QueuedConnection);
  }
}

void FormWindow::closeEvent(QCloseEvent* event) {
  if (!Live()) return;
  event->ignore();  // the form decides; its end closes the window
  Act([this] {
    GetForm().UserClose();
    return true;
  });
  if (!Live()) event->accept();
}

void FormWindow::ReportSize() {
  if (!Live() || !Resizable() || !isVisible()) return;
  const ui::WindowState state = isMinimized()   ? ui::WindowState::Minimised
                                : isMaximized() ? ui::WindowState::Maximised
                                                : ui::WindowState::Normal;
  Act([&] {
    return GetForm().UserResize(view::ToTwips(width(), logicalDpiX()),
                                view::ToTwips(height(), logicalDpiY()), state);
  });
}

void FormWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  ReportSize();
}

void FormWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) ReportSize();
}

bool FormWindow::event(QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange) {
    // The application went from light to dark or back; the window's own colours follow.
    setPalette(ThemePalette(Appearance::System));
  }
  return QWidget::event(event);
}

void FormWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  ReportSize();
  pump_.FlushLater();
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  // No control has the focus: the form's own keys still work.
  const std::optional<ui::Key> key = KeyOf(*event);
  if (!Live() || !key || view::RouteOf(nullptr, *key) != view::KeyRoute::Form) {
    QWidget::keyPressEvent(event);
    return;
  }
  Act([&] { return GetForm().UserKey(*key); });
}

bool FormWindow::focusNextPrevChild(bool) {
  // Tab is the form's; a hidden widget hands its focus to whatever the form says.
  pump_.FlushLater();
  return true;
}

}  // namespace qvzj::qt
