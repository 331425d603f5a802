#pragma once

#include <functional>
#include <memory>
#include <unordered_set>

#include "platform/ui/form.h"

namespace qvzj::view {

/// What a pump asks of its window.
struct PumpHooks {
  /// Runs a step from the window's event loop, when everything that waits there now is done.
  std::function<void(std::function<void()>)> post;
  /// Has the native editor of the focused control hand over what it still keeps to itself (a date
  /// half typed, a word half composed). Called before an act that is not part of another one.
  std::function<void(ui::Control&)> commit;
  /// Shows the contents of a control that were put off.
  std::function<void(ui::Control&)> refresh;
  /// Brings the native focus where the form has it.
  std::function<void()> follow_focus;
};

/// Runs the user's acts on a form and brings its window in step with it when the outermost one has
/// ended: filling a list changes it many times in one act, and the window shows it once. The act
/// may close the form and destroy the pump.
class ActPump {
 public:
  ActPump(ui::Form& form, PumpHooks hooks);
  ~ActPump();
  ActPump(const ActPump&) = delete;
  ActPump& operator=(const ActPump&) = delete;

  /// Runs an act; false when it was refused or the form has gone meanwhile.
  bool Act(const std::function<bool()>& act);
  /// Shows the control's contents at the end of the running act rather than at once, or from the
  /// event loop: an act that waits in a message box shows its state meanwhile.
  void PutOff(ui::Control& control);
  /// Shows now what was put off, the focus too.
  void Flush();
  void FlushLater();
  /// The form goes away; nothing of it is touched any more.
  void Detach();
  /// False after Detach.
  bool Live() const { return form_ != nullptr; }
  ui::Form& GetForm() const { return *form_; }

 private:
  ui::Form* form_;
  PumpHooks hooks_;
  std::shared_ptr<ActPump*> self_;  // null inside once the pump is gone
  std::unordered_set<ui::Control*> stale_;
  int acts_ = 0;  // depth of running acts
  bool flush_posted_ = false;
};

}  // namespace qvzj::view
