#pragma once

#include <QEvent>
#include <QInputMethodEvent>

namespace qvzj::qt {

/// Follows what an input method composes in a field. While something stands there that has not
/// been handed over, every key belongs to it: Enter chooses a word, it does not walk on.
class Composition {
 public:
  /// To be shown every event of the field.
  void See(const QEvent& event) {
    if (event.type() == QEvent::InputMethod) {
      under_way_ = !static_cast<const QInputMethodEvent&>(event).preeditString().isEmpty();
    } else if (event.type() == QEvent::FocusOut) {
      under_way_ = false;
    }
  }
  bool UnderWay() const { return under_way_; }

 private:
  bool under_way_ = false;
};

}  // namespace qvzj::qt
