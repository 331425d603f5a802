#include "frontends/view/act_pump.h"

#include <utility>

namespace qvzj::view {

ActPump::ActPump(ui::Form& form, PumpHooks hooks)
    : form_(&form), hooks_(std::move(hooks)), self_(std::make_shared<ActPump*>(this)) {}

ActPump::~ActPump() { *self_ = nullptr; }

bool ActPump::Act(const std::function<bool()>& act) {
  if (!Live()) return false;
  const std::shared_ptr<ActPump*> self = self_;
  if (acts_ == 0 && form_->Focused() != nullptr) {
    hooks_.commit(*form_->Focused());
    if (*self == nullptr || !Live()) return false;
  }
  ++acts_;
  const bool done = act();
  if (*self == nullptr) return false;
  --acts_;
  if (!Live()) return false;
  if (acts_ == 0) Flush();
  return done;
}

void ActPump::PutOff(ui::Control& control) {
  stale_.insert(&control);
  FlushLater();
}

void ActPump::FlushLater() {
  if (flush_posted_) return;
  flush_posted_ = true;
  hooks_.post([self = self_] {
    if (*self == nullptr) return;
    (*self)->flush_posted_ = false;
    (*self)->Flush();
  });
}

void ActPump::Flush() {
  if (!Live()) return;
  while (!stale_.empty()) {
    const auto batch = std::exchange(stale_, {});
    for (ui::Control* control : batch) hooks_.refresh(*control);
  }
  hooks_.follow_focus();
}

void ActPump::Detach() {
  stale_.clear();
  form_ = nullptr;
}

}  // namespace qvzj::view
