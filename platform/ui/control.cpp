#include "platform/ui/control.h"

#include "platform/basic/text.h"
#include "platform/ui/form.h"
#include "platform/ui/widgets.h"

namespace qvzj::ui {
namespace {

bool TakesFocus(Kind kind) {
  return kind != Kind::Label && kind != Kind::Frame && kind != Kind::Menu;
}

/// False when the control lies on a tab page that another one covers.
bool PageInFront(const Control& control) {
  const Control* const container = control.Container();
  if (!container || container->GetKind() != Kind::Tabs || control.Page() < 0) return true;
  return static_cast<const Tabs*>(container)->Tab() == control.Page();
}

/// A menu that is no part of a menu bar is hidden until it is popped up; its entries are as
/// visible as they say themselves.
bool HiddenPopUp(const Control& control) {
  return control.GetKind() == Kind::Menu && !control.Container();
}

}  // namespace

Control::Control(Form& form, Kind kind, std::string name, int index, Control* container, int page)
    : form_(form),
      kind_(kind),
      name_(std::move(name)),
      index_(index),
      container_(container),
      page_(page) {
  form_.Join(*this);
}

std::string Control::FullName() const {
  return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::SetCaption(std::string caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  Changed(Aspect::Caption);
}

void Control::SetEnabled(bool enabled, std::string reason) {
  disabled_reason_ = enabled ? std::string() : std::move(reason);
  if (enabled == enabled_) return;
  enabled_ = enabled;
  ReachChanged(Aspect::Enabled);
}

void Control::SetVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  ReachChanged(Aspect::Visible);
  if (visible_) Reappeared();
}

void Control::SetBounds(const Bounds& bounds) {
  if (bounds == bounds_) return;
  bounds_ = bounds;
  Changed(Aspect::Bounds);
}

bool Control::OnScreen() const {
  if (!visible_ || !PageInFront(*this)) return false;
  if (!container_) return true;
  return HiddenPopUp(*container_) || container_->OnScreen();
}

bool Control::Usable() const { return enabled_ && (!container_ || container_->Usable()); }

const std::string& Control::DisabledReason() const {
  const bool outer = enabled_ && container_ && !container_->Usable();
  return outer ? container_->DisabledReason() : disabled_reason_;
}

bool Control::CanFocus() const { return TakesFocus(kind_) && OnScreen() && Usable(); }

std::string Control::AccessibleName() const {
  return accessible_name_.empty() ? ShownCaption(caption_) : accessible_name_;
}

void Control::Changed(Aspect aspect) { form_.Notify(*this, aspect); }

void Control::ReachChanged(Aspect aspect) {
  Changed(aspect);
  form_.CheckFocus();
}

char32_t AccessKey(const std::string& caption) {
  for (size_t at = caption.find('&'); at != std::string::npos; at = caption.find('&', at + 2)) {
    if (at + 1 >= caption.size()) return 0;
    if (caption[at + 1] == '&') continue;
    return basic::CodePoints(basic::Upper(basic::Mid(caption.substr(at + 1), 1, 1)))[0];
  }
  return 0;
}

std::string ShownCaption(const std::string& caption) {
  std::string shown;
  for (size_t at = 0; at < caption.size(); ++at) {
    if (caption[at] == '&' && ++at == caption.size()) break;
    shown += caption[at];
  }
  return shown;
}

}  // namespace qvzj::ui
