#pragma once

#include <QKeyEvent>
#include <optional>

#include "platform/ui/key.h"

namespace qvzj::qt {

/// The key press as the control model takes it; empty for keys that it does not know (modifiers
/// alone, media keys, dead keys).
std::optional<ui::Key> KeyOf(const QKeyEvent& event);

/// True for the keys that belong to the form whatever has the focus: Enter, Tab (also with Ctrl),
/// Esc and Alt with a character.
bool IsFormKey(const ui::Key& key);
/// True for the unmodified keys that move within a list.
bool IsListKey(const ui::Key& key);

}  // namespace qvzj::qt
