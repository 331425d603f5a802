#include "frontends/view/view_plan.h"

#include <algorithm>

namespace qvzj::view {

bool HasView(const ui::Control& control) { return control.GetKind() != ui::Kind::Menu; }

std::vector<ui::Control*> SeenControls(const ui::Form& form) {
  std::vector<ui::Control*> seen;
  for (ui::Control* control : form.Controls()) {
    if (HasView(*control) && control->OnScreen()) seen.push_back(control);
  }
  return seen;
}

bool MayShowMore(const ui::Control& control, ui::Aspect aspect) {
  const bool shows = aspect == ui::Aspect::Visible || aspect == ui::Aspect::Tabs;
  return shows && control.OnScreen();
}

ui::Control* StackedUnder(const ui::Form& form, const ui::Control& control,
                          const std::function<bool(const ui::Control&)>& made) {
  const std::vector<ui::Control*>& all = form.Controls();
  const auto next = std::find_if(std::find(all.rbegin(), all.rend(), &control).base(), all.end(),
                                 [&](ui::Control* other) {
                                   return other->Container() == control.Container() &&
                                          other->Page() == control.Page() && made(*other);
                                 });
  return next == all.end() ? nullptr : *next;
}

const std::vector<ui::Aspect>& AllAspects() {
  static const std::vector<ui::Aspect> aspects{
      ui::Aspect::Caption, ui::Aspect::Items,        ui::Aspect::Tabs,       ui::Aspect::Text,
      ui::Aspect::Value,   ui::Aspect::Locked,       ui::Aspect::Enabled,    ui::Aspect::Bounds,
      ui::Aspect::Visible, ui::Aspect::GridContents, ui::Aspect::GridCurrent};
  return aspects;
}

std::vector<ui::Control*> MenuEntries(const ui::Form& form, const ui::MenuItem& menu) {
  std::vector<ui::Control*> entries;
  for (ui::Control* control : form.Controls()) {
    if (control->Container() == &menu && control->Visible()) entries.push_back(control);
  }
  return entries;
}

bool IsSeparator(const ui::Control& entry) { return entry.Caption() == "-"; }

bool IsResizable(const ui::Form& form) { return form.onResize != nullptr; }

}  // namespace qvzj::view
