#pragma once

#include <string>

#include "platform/ui/widgets.h"

/// Rules that the fields of the form share.
namespace qvzj {

/// Connects the keys of a text field: Enter walks on to the next one, and what is typed, pasted or
/// committed by an input method stays within MaxLength bytes. A numeric field takes only what can
/// belong to a number.
void ConnectKeys(ui::TextBox& box, bool numeric = false);
/// The same for an editable list.
void ConnectKeys(ui::ComboBox& box);
/// A text with a single quote keeps the focus in its field, after a message.
void RefuseQuotes(ui::TextBox& box);
void RefuseQuotes(ui::ComboBox& box);

}  // namespace qvzj
