#pragma once

#include <QEvent>
#include <QInputMethodEvent>

#include "frontends/view/composition.h"

namespace qvzj::qt {

/// To be shown every event of a field that takes input methods.
inline void Follow(view::Composition& composition, const QEvent& event) {
  if (event.type() == QEvent::InputMethod) {
    composition.Preedit(static_cast<const QInputMethodEvent&>(event).preeditString().size());
  } else if (event.type() == QEvent::FocusOut) {
    composition.FocusLost();
  }
}

}  // namespace qvzj::qt
