#include "frontends/qt/presenter.h"

#include <QApplication>
#include <QScreen>

#include "frontends/qt/layout_store.h"

namespace qvzj::qt {

QtPresenter::~QtPresenter() {
  for (auto& [form, shown] : shown_) delete shown.window.data();
}

FormWindow* QtPresenter::WindowOf(const ui::Form& form) const {
  const auto found = shown_.find(&form);
  return found == shown_.end() ? nullptr : found->second.window;
}

void QtPresenter::Place(FormWindow& window, const QWidget* owner) const {
  if (window.Resizable() && options_.layouts != nullptr &&
      window.restoreGeometry(options_.layouts->Place(window.objectName()))) {
    return;
  }
  // Dialogs of a fixed size stand in the middle of the screen, wherever their owner is.
  const bool over_owner = owner != nullptr && window.Resizable();
  const QRect room = over_owner ? owner->frameGeometry() : window.screen()->availableGeometry();
  window.move(room.center() - QRect(QPoint(), window.size()).center());
}

void QtPresenter::Show(ui::Form& form, bool modal) {
  if (FormWindow* open = WindowOf(form)) {
    if (open->isMinimized()) open->showNormal();
    open->raise();
    open->activateWindow();
    return;
  }
  const QPointer<QWidget> owner = modal ? QApplication::activeWindow() : nullptr;
  auto* window = new FormWindow(form, options_, owner);
  if (modal) window->setWindowModality(Qt::ApplicationModal);
  Place(*window, owner);
  QEventLoop loop;
  shown_[&form] = {window, modal ? QPointer(&loop) : nullptr};
  window->show();
  window->activateWindow();
  if (!modal) return;
  // A host that deletes the owner takes the window along. One that lets go of the control may take
  // this presenter along: nothing of it is touched afterwards.
  QObject::connect(window, &QObject::destroyed, &loop, &QEventLoop::quit);
  loop.exec();
  if (owner) owner->activateWindow();
}

void QtPresenter::Closed(ui::Form& form) {
  const auto found = shown_.find(&form);
  if (found == shown_.end()) return;
  const Shown shown = found->second;
  shown_.erase(found);
  if (shown.window) {
    if (options_.layouts != nullptr && form.onResize) {
      options_.layouts->KeepPlace(shown.window->objectName(), shown.window->saveGeometry());
    }
    shown.window->Detach();
    shown.window->hide();
    shown.window->deleteLater();
  }
  if (shown.loop) shown.loop->quit();
}

}  // namespace qvzj::qt
