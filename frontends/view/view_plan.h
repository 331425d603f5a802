#pragma once

#include <functional>
#include <vector>

#include "platform/ui/form.h"

/// Which controls of a form need a native widget, when, and in which order. Most of a form lies on
/// other tab pages and in hidden panels: their widgets are made when they are first seen.
namespace qvzj::view {

/// False for menu entries, which exist only while popped up.
bool HasView(const ui::Control& control);

/// The controls that can be seen now, containers before what they hold.
std::vector<ui::Control*> SeenControls(const ui::Form& form);

/// True when the change may have brought controls to the screen that were not there before.
bool MayShowMore(const ui::Control& control, ui::Aspect aspect);

/// The control under whose widget that of `control` is stacked: which of two neighbours lies above
/// the other, and which is read out first, is the form's order. Null: it lies on top. `made` tells
/// whether a control has its widget already.
ui::Control* StackedUnder(const ui::Form& form, const ui::Control& control,
                          const std::function<bool(const ui::Control&)>& made);

/// The aspects of a new widget in the order in which they are shown first.
const std::vector<ui::Aspect>& AllAspects();

/// What a menu that pops up shows, from top to bottom.
std::vector<ui::Control*> MenuEntries(const ui::Form& form, const ui::MenuItem& menu);
/// True for an entry that is a line between others.
bool IsSeparator(const ui::Control& entry);

/// True for a form that arranges itself to its window; others are dialogs of a fixed size.
bool IsResizable(const ui::Form& form);

}  // namespace qvzj::view
