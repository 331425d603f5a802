#include "screen/keys.h"

namespace qvzj {

bool EnterToTab(ui::Form& form, int& key) {
  if (key != ui::kKeyEnter) return false;
  key = 0;
  form.SendTab();
  return true;
}

void EnterWalksOn(ui::Control& control) {
  control.onKeyPress = [&form = control.GetForm()](int& key) { EnterToTab(form, key); };
}

void EnterJumpsTo(ui::Control& control, ui::Control& target) {
  control.onKeyPress = [&target](int& key) {
    if (key != ui::kKeyEnter) return;
    key = 0;
    ui::Form& form = target.GetForm();
    if (target.CanFocus()) {
      form.SetFocus(target);
    } else {
      form.SendTab();
    }
  };
}

}  // namespace qvzj
