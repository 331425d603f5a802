#pragma once

#include <QKeyEvent>
#include <optional>

#include "platform/ui/key.h"

namespace qvzj::qt {

/// The key press as the control model takes it; empty for keys that it does not know (modifiers
/// alone, media keys, dead keys).
std::optional<ui::Key> KeyOf(const QKeyEvent& event);

}  // namespace qvzj::qt
