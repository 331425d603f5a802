#pragma once

#include <QEventLoop>
#include <QPointer>
#include <unordered_map>

#include "frontends/qt/form_window.h"
#include "platform/components.h"

namespace qvzj::qt {

/// Shows forms in windows of their own: modeless ones beside each other, a modal one in front of
/// everything until it is closed.
class QtPresenter : public Presenter {
 public:
  explicit QtPresenter(WindowOptions options) : options_(std::move(options)) {}
  ~QtPresenter() override;

  void Show(ui::Form& form, bool modal) override;
  void Closed(ui::Form& form) override;

  /// The window of a form that is on the screen; null otherwise.
  FormWindow* WindowOf(const ui::Form& form) const;

 private:
  struct Shown {
    QPointer<FormWindow> window;
    QPointer<QEventLoop> loop;  // of a modal form
  };

  void Place(FormWindow& window, const QWidget* owner) const;

  WindowOptions options_;
  std::unordered_map<const ui::Form*, Shown> shown_;
};

}  // namespace qvzj::qt
