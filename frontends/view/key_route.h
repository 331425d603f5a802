#pragma once

#include "platform/ui/form.h"

/// Where a native key press goes. One decision for every window: a view asks once and hands the key
/// to the form or leaves it to the native widget; nothing comes back.
namespace qvzj::view {

enum class KeyRoute {
  Form,       ///< the form's: Form::UserKey
  Native,     ///< the native widget's own: caret, selection, undo, dropping a list
  ShowMenu,   ///< the window's: the menu of what has the focus
  CopyRows,   ///< the window's: the selected rows of a grid to the clipboard
  Find,       ///< the window's: opens the line that finds texts in a grid
  FindAgain,  ///< the window's: the next place of the same text
  Extend,     ///< the window's: extends the selected rows of a grid; see grid_selection.h
  StepLeft,   ///< the window's: one column to the left as the user has arranged them
  StepRight,  ///< the same to the right
};

/// The way of `key` pressed while `focused` has the focus; null: no control has it.
KeyRoute RouteOf(const ui::Control* focused, const ui::Key& key);

/// True when the wheel scrolls the control wherever the focus is. Over anything else without the
/// focus it must not change a value.
bool ScrollsByWheel(const ui::Control& control);

}  // namespace qvzj::view
