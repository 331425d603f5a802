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
/// A single quote that the user put into the field keeps the focus there, after a message. A text
/// that came with one may be looked at and left again: a save refuses it.
void RefuseQuotes(ui::EditBox& box);
/// The check of RefuseQuotes alone; true when the field may be left.
bool MayLeaveText(const ui::EditBox& box);
/// An amount as people write it, as a plain number: characters that an input method made full-width
/// become plain ones, and commas between groups of three digits go. Any other text stays no number.
std::string PlainNumber(const std::string& text);

}  // namespace qvzj
