#include <algorithm>

#include "platform/ui/form.h"

/// The focus of a form: who has it, who may take it, and the order in which Tab walks.
namespace qvzj::ui {
namespace {

/// True when the focus stops at `control` on its way with Tab. Of an option group that is the
/// selected option, or the first one that can take the focus while none is selected.
bool IsStop(const Control& control, const std::vector<Control*>& order) {
  if (!control.TabStop() || !control.CanFocus()) return false;
  if (control.GetKind() != Kind::OptionButton) return true;
  const auto& option = static_cast<const OptionButton&>(control);
  if (option.Selected()) return true;
  bool first = true;
  for (const Control* other : order) {
    if (other == &control) {
      first = false;
    } else if (option.Excludes(*other) && other->CanFocus() &&
               (first || static_cast<const OptionButton*>(other)->Selected())) {
      return false;
    }
  }
  return true;
}

/// True when pressing `control` gives up what `field` holds.
bool GivesUp(const Control& control, const Control* field) {
  if (control.CausesValidation()) return false;
  while (field && field != control.Container()) field = field->Container();
  return field == control.Container();
}

bool SameOptionGroup(const Control& from, const Control& to) {
  return from.GetKind() == Kind::OptionButton &&
         static_cast<const OptionButton&>(from).Excludes(to);
}

}  // namespace

bool Form::UserFocus(Control& control) {
  return Act([&] { return Enter(control); });
}

void Form::SetFocus(Control& control) {
  if (control.CanFocus()) Run([&] { MoveFocus(&control); });
}

bool Form::SendTab(bool backwards) {
  return Act([&] { return Step(backwards); });
}

bool Form::Step(bool backwards) {
  Control* const from = focused_;
  if (!MayLeave()) return false;
  if (focused_ != from) return true;  // the handler has put the focus somewhere else
  Control* const next = NextStop(from, backwards);
  if (!next) return false;
  MoveFocus(next);
  return true;
}

/// Gives the user's focus to a control; false when the control cannot take it or the field that is
/// left keeps it.
bool Form::Enter(Control& control) {
  if (!control.CanFocus()) return false;
  if (&control == focused_) return true;
  if (GivesUp(control, focused_)) {
    DropKeyedDate(focused_);
  } else if (!MayLeave()) {
    return false;
  }
  if (!control.CanFocus()) return false;
  MoveFocus(&control);
  return focused_ == &control;
}

/// Validates the focused field. A box that the validation shows gives the window's focus away and
/// back, which must not validate again.
bool Form::MayLeave() {
  if (validating_) return false;
  if (!focused_ || !focused_->CanFocus()) return true;
  Control& field = *focused_;
  TakeKeyedDate(&field);
  if (focused_ != &field) return true;
  bool cancel = false;
  if (field.onValidate) {
    const std::shared_ptr<Life> life = life_;
    struct Validating {
      explicit Validating(Form& form, const std::shared_ptr<Life>& life) : form(form), life(*life) {
        form.validating_ = true;
      }
      ~Validating() {
        if (life != Life::Destroyed) form.validating_ = false;
      }
      Form& form;
      const Life& life;
    } validating(*this, life);
    Raise(field.onValidate, cancel);
  }
  if (cancel) return false;
  if (EditBox* const box = AsEditBox(&field)) box->valid_text_ = box->Text();
  return true;
}

void Form::MoveFocus(Control* control) {
  Control* const old = focused_;
  if (old == control) return;
  if (old && old->CanFocus()) TakeKeyedDate(old);
  if (focused_ != old) return;  // a handler has put the focus somewhere else
  for (Control* date : {old, control}) DropKeyedDate(date);
  focused_ = control;
  if (control && control->GetKind() == Kind::Grid) last_list_ = static_cast<Grid*>(control);
  if (EditBox* const box = AsEditBox(control)) box->valid_text_ = box->Text();
  if (EditBox* const box = AsEditBox(old)) box->Select(box->Caret(), 0);
  if (old) Notify(*old, Aspect::Focus);
  if (control) Notify(*control, Aspect::Focus);
  if (old) Raise(old->onLostFocus);
  if (focused_ == control && control) Raise(control->onGotFocus);
}

std::vector<Control*> Form::TabOrder() const {
  std::vector<Control*> order = controls_;
  std::stable_sort(order.begin(), order.end(), [](const Control* a, const Control* b) {
    return a->TabIndex() < b->TabIndex();
  });
  return order;
}

/// The next stop after `from` (null: from the start), around at the end; null when there is none
/// besides `from` itself.
Control* Form::NextStop(const Control* from, bool backwards) const {
  std::vector<Control*> order = TabOrder();
  if (backwards) std::reverse(order.begin(), order.end());
  const std::vector<Control*> forwards = backwards ? TabOrder() : order;
  auto at = std::find(order.begin(), order.end(), from);
  at = at == order.end() ? order.begin() : at + 1;
  std::rotate(order.begin(), at, order.end());
  for (Control* control : order) {
    if (control == from || (from && SameOptionGroup(*from, *control))) continue;
    if (IsStop(*control, forwards)) return control;
  }
  return nullptr;
}

/// A control was hidden, disabled or covered. Inside an act this waits for the act's end: what is
/// hidden only while it is filled keeps the focus.
void Form::CheckFocus() {
  if (depth_ == 0) Run([this] { SettleFocus(); });
}

void Form::SettleFocus() {
  if (focused_ && !focused_->CanFocus()) MoveFocus(NextStop(focused_, false));
}

}  // namespace qvzj::ui
