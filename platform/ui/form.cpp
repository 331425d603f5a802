#include "platform/ui/form.h"

#include <algorithm>
#include <cassert>
#include <exception>
#include <utility>

#include "platform/basic/errors.h"

namespace qvzj::ui {

namespace {

/// Puts a value back when a scope ends.
template <class Value>
class Kept {
 public:
  Kept(Value& place, Value value)
      : place_(place), before_(std::exchange(place, std::move(value))) {}
  ~Kept() { place_ = std::move(before_); }
  Kept(const Kept&) = delete;
  Kept& operator=(const Kept&) = delete;

 private:
  Value& place_;
  Value before_;
};

}  // namespace

Form::~Form() { *life_ = Life::Destroyed; }

std::shared_ptr<Form::Life>& Form::Running() {
  static std::shared_ptr<Life> running;
  return running;
}

void Form::EndActOfClosedForm() {
  if (Running() && *Running() != Life::Open) throw Closed{};
}

void Form::ApartFromActs(const std::function<void()>& step) {
  const Kept<std::shared_ptr<Life>> none(Running(), nullptr);
  step();
}

void Form::SetCaption(std::string caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  Notify(Aspect::Caption);
}

void Form::SetSize(int32_t width, int32_t height) {
  if (width == width_ && height == height_) return;
  width_ = width;
  height_ = height;
  Notify(Aspect::Bounds);
}

void Form::SetMousePointer(MousePointer pointer) {
  if (pointer == mouse_pointer_) return;
  mouse_pointer_ = pointer;
  Notify(Aspect::MousePointer);
}

Control* Form::Find(std::string_view name, int index) const {
  std::string full_name(name);
  if (index >= 0) full_name += "(" + std::to_string(index) + ")";
  return FindFullName(full_name);
}

Control* Form::FindFullName(std::string_view full_name) const {
  const auto found = by_full_name_.find(std::string(full_name));
  return found == by_full_name_.end() ? nullptr : found->second;
}

void Form::AddObserver(FormObserver* observer) { observers_.push_back(observer); }

void Form::RemoveObserver(FormObserver* observer) { std::erase(observers_, observer); }

void Form::PopUp(MenuItem& menu, int32_t left, int32_t top) {
  const std::vector<FormObserver*> told = observers_;
  for (FormObserver* observer : told) observer->PopUpMenu(*this, menu, left, top);
}

void Form::Unload() {
  if (*life_ != Life::Open) return;
  const std::shared_ptr<Life> life = life_;
  *life = Life::Unloading;
  loaded_ = false;
  Notify(Aspect::Closed);
  const std::function<void()> unload = onUnload;  // it may destroy the form
  if (unload) unload();
  if (*life == Life::Unloading) *life = Life::Unloaded;
}

void Form::SetLoaded(bool loaded) {
  loaded_ = loaded;
  if (loaded) *life_ = Life::Open;
}

bool Form::Guard(const std::function<void()>& act) {
  if (depth_ > 0) {
    act();
    return true;
  }
  const std::shared_ptr<Form> alive = weak_from_this().lock();
  const std::shared_ptr<Life> life = life_;
  const Kept<std::shared_ptr<Life>> running(Running(), life);
  depth_ = 1;
  bool done = true;
  const auto failed = [&](const std::exception& error) {
    done = false;
    // What fails on a form that was closed meanwhile fails because it was; the closing itself may
    // fail too.
    if (*life == Life::Open || *life == Life::Unloading) Report(error);
  };
  const auto guarded = [&](const std::function<void()>& step) {
    try {
      step();
    } catch (const Closed&) {
      // The act ends here, as it should.
    } catch (const std::exception& error) {
      failed(error);
    } catch (...) {
      failed(Error("Unknown error"));
    }
  };
  guarded(act);
  if (*life == Life::Open) guarded([this] { SettleFocus(); });
  if (*life != Life::Destroyed) depth_ = 0;
  return done;
}

void Form::Report(const std::exception& error) const {
  assert(onError && "an error escaped and the form has nobody to report it to");
  if (!onError) return;
  try {
    const auto report = onError;
    report(error);
  } catch (...) {
    // The report itself failed: there is no further place to turn to, and the host must not see it.
  }
}

bool Form::Act(const std::function<bool()>& act) {
  if (*life_ != Life::Open) return false;
  bool possible = true;  // an act that closed the form was possible
  const bool done = Guard([&] { possible = act(); });
  return done && possible;
}

void Form::Run(const std::function<void()>& step) const {
  const bool nested = depth_ > 0;
  try {
    step();
  } catch (const Closed&) {
    if (nested) throw;
  }
}

void Form::Join(Control& control) {
  control.SetTabIndex(static_cast<int>(controls_.size()));
  controls_.push_back(&control);
  [[maybe_unused]] const bool added = by_full_name_.emplace(control.FullName(), &control).second;
  assert(added && "two controls of one name");
}

void Form::Notify(Control& control, Aspect aspect) {
  if (observers_.empty()) return;
  const std::vector<FormObserver*> told = observers_;  // one may leave while it is told
  for (FormObserver* observer : told) observer->ControlChanged(control, aspect);
}

bool Form::Refuse(Control& control) {
  const std::vector<FormObserver*> told = observers_;
  for (FormObserver* observer : told) observer->KeyRefused(control);
  return true;
}

void Form::Notify(Aspect aspect) {
  const std::vector<FormObserver*> told = observers_;
  for (FormObserver* observer : told) observer->FormChanged(*this, aspect);
}

}  // namespace qvzj::ui
