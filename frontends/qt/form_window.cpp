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

namespace qvzj::qt {

FormWindow::FormWindow(ui::Form& form, const WindowOptions& options, QWidget* parent)
    : QWidget(parent, Qt::Window), form_(&form), options_(options) {
  setObjectName(FromUtf8(form.Name()));
  setFocusPolicy(Qt::NoFocus);
  ApplyTheme();
  TakeInitialSize();
  MakeSeen();
  form_->AddObserver(this);
  FormChanged(form, ui::Aspect::Caption);
  FormChanged(form, ui::Aspect::MousePointer);
  Flush();
}

FormWindow::~FormWindow() { Detach(); }

void FormWindow::Detach() {
  if (!Live()) return;
  SetHourglass(false);
  form_->RemoveObserver(this);
  for (const auto& [control, view] : views_) view->Detach();
  stale_.clear();
  form_ = nullptr;
}

bool FormWindow::Resizable() const { return Live() && form_->onResize != nullptr; }

bool FormWindow::Traditional() const { return options_.language && options_.language() == 1; }

void FormWindow::ApplyTheme() {
  setFont(ThemeFont(Traditional()));
  setPalette(ThemePalette(Appearance::System));
  setStyle(ThemeStyle());
}

void FormWindow::TakeInitialSize() {
  const QSize wanted(view::ToPixels(form_->Width(), logicalDpiX()),
                     view::ToPixels(form_->Height(), logicalDpiY()));
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
  for (ui::Control* control : form_->Controls()) {
    if (control->OnScreen()) ViewOf(*control);
  }
}

ControlView* FormWindow::MadeView(const ui::Control& control) const {
  const auto found = views_.find(&control);
  return found == views_.end() ? nullptr : found->second.get();
}

ControlView* FormWindow::ViewOf(ui::Control& control) {
  if (control.GetKind() == ui::Kind::Menu) return nullptr;
  ControlView* made = MadeView(control);
  return made != nullptr ? made : Make(control);
}

std::vector<ControlView*> FormWindow::Views() {
  std::vector<ControlView*> views;
  for (ui::Control* control : form_->Controls()) {
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
  // Which of two neighbours lies above the other, and which is read out first, is the form's order.
  const std::vector<ui::Control*>& all = form_->Controls();
  for (auto next = std::find(all.rbegin(), all.rend(), &control).base(); next != all.end();
       ++next) {
    const ControlView* view = MadeView(**next);
    if (view == nullptr || view->Widget()->parentWidget() != widget.parentWidget()) continue;
    widget.stackUnder(view->Widget());
    return;
  }
}

bool FormWindow::Act(const std::function<bool()>& act) {
  if (!Live()) return false;
  const QPointer<FormWindow> self(this);
  if (acts_ == 0 && form_->Focused() != nullptr) {
    if (ControlView* focused = ViewOf(*form_->Focused())) focused->CommitEdit();
    if (!self || !Live()) return false;
  }
  ++acts_;
  const bool done = act();
  if (!self) return false;
  --acts_;
  if (!Live()) return false;
  if (acts_ == 0) Flush();
  return done;
}

void FormWindow::PutOff(ControlView& view) {
  stale_.insert(&view);
  FlushLater();
}

void FormWindow::FlushLater() {
  // An act that waits in a message box shows its state meanwhile.
  if (flush_posted_) return;
  flush_posted_ = true;
  QMetaObject::invokeMethod(
      this,
      [this] {
        flush_posted_ = false;
        Flush();
      },
      Qt::QueuedConnection);
}

void FormWindow::Flush() {
  if (!Live()) return;
  while (!stale_.empty()) {
    const auto batch = std::exchange(stale_, {});
    for (ControlView* view : batch) view->Refresh();
  }
  SyncFocus();
}

void FormWindow::SyncFocus() {
  ui::Control* focused = form_->Focused();
  ControlView* view = focused == nullptr ? nullptr : ViewOf(*focused);
  QWidget* wanted = view == nullptr ? this : view->FocusWidget();
  // An editor inside the widget, such as the find line of a grid, counts as the widget.
  if (focusWidget() == wanted || (view != nullptr && wanted->isAncestorOf(focusWidget()))) return;
  const QScopedValueRollback<bool> following(following_, true);
  wanted->setFocus(Qt::OtherFocusReason);
}

void FormWindow::ControlChanged(ui::Control& control, ui::Aspect aspect) {
  if (aspect == ui::Aspect::Focus) {
    FlushLater();
    return;
  }
  if (ControlView* view = MadeView(control)) view->Mirror(aspect);
  // What has come to the screen with it (a panel, a tab page) may have no views so far.
  const bool shows = aspect == ui::Aspect::Visible || aspect == ui::Aspect::Tabs;
  if (shows && control.OnScreen()) MakeSeen();
}

void FormWindow::FormChanged(ui::Form& form, ui::Aspect aspect) {
  switch (aspect) {
    case ui::Aspect::Caption:
      setWindowTitle(FromUtf8(form.Caption()));
      return;
    case ui::Aspect::Focus:
      FlushLater();
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

void FormWindow::FillMenu(QMenu& native, ui::MenuItem& menu) {
  for (ui::Control* control : form_->Controls()) {
    if (control->Container() != &menu || !control->Visible()) continue;
    if (control->Caption() == "-") {
      native.addSeparator();
      continue;
    }
    QAction* action = native.addAction(FromUtf8(control->Caption()));
    action->setEnabled(control->Enabled());
    // The menu must be gone before the act, which may open a box.
    connect(
        action, &QAction::triggered, this,
        [this, control] { Act([this, control] { return form_->UserClick(*control); }); },
        Qt::QueuedConnection);
  }
}

void FormWindow::closeEvent(QCloseEvent* event) {
  if (!Live()) return;
  event->ignore();  // the form decides; its end closes the window
  Act([this] {
    form_->UserClose();
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
    return form_->UserResize(view::ToTwips(width(), logicalDpiX()),
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
  FlushLater();
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  // No control has the focus: the form's own keys still work.
  const std::optional<ui::Key> key = KeyOf(*event);
  if (!Live() || !key || !IsFormKey(*key)) {
    QWidget::keyPressEvent(event);
    return;
  }
  Act([&] { return form_->UserKey(*key); });
}

bool FormWindow::focusNextPrevChild(bool) {
  // Tab is the form's; a hidden widget hands its focus to whatever the form says.
  FlushLater();
  return true;
}

}  // namespace qvzj::qt
