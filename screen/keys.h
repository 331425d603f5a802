#pragma once

#include "platform/ui/form.h"
#include "platform/ui/key.h"

namespace qvzj {

/// Turns the Enter key into a Tab key: moves the focus on and drops the key. False when `key` is
/// another one, which passes unchanged.
bool EnterToTab(ui::Form& form, int& key);
/// Makes Enter walk on from `control` to the next one in tab order; its only key-press rule.
void EnterWalksOn(ui::Control& control);
/// Makes Enter in `control` jump to `target`; on to the next control where `target` cannot take the
/// focus, as one on a page that is not in front.
void EnterJumpsTo(ui::Control& control, ui::Control& target);

}  // namespace qvzj
