#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/ui/geometry.h"

namespace qvzj::ui {

class Form;

enum class Kind {
  Label,
  Button,
  TextBox,
  ComboBox,
  ListBox,
  CheckBox,
  OptionButton,
  Frame,
  Tabs,
  DatePicker,
  Menu,
  Grid
};

/// What about a control changed; front ends mirror it.
enum class Aspect {
  Caption,
  Text,
  Value,
  Items,
  Enabled,
  Visible,
  Locked,
  Bounds,
  Selection,
  Focus,
  Tabs,
  GridContents,  ///< rows, columns, headers or colours: repaint everything
  GridCurrent,   ///< the active cell moved, or should be brought into sight again
  GridMarked,    ///< a row should be brought into sight and marked for a moment
  WindowState,
  MousePointer,
  Closed  ///< the form was unloaded
};

/// State that every control on a form has, and the events that any of them can raise. Setters are
/// the program's and raise no user event; what the user does comes through the form (see form.h).
class Control {
 public:
  /// Joins `form` under `name`; `index` is the place in a control array, -1 for a single control.
  /// `container` is the frame, tab strip or null for the form itself; `page` is the tab page.
  Control(Form& form, Kind kind, std::string name, int index = -1, Control* container = nullptr,
          int page = -1);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Kind GetKind() const { return kind_; }
  const std::string& Name() const { return name_; }
  int Index() const { return index_; }
  /// "txtAcnt2(4)", or the bare name of a single control.
  std::string FullName() const;
  Form& GetForm() const { return form_; }
  Control* Container() const { return container_; }
  int Page() const { return page_; }

  /// The caption with its access-key mark ("存盘(&S)"); controls without one keep "".
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);
  /// Spare text that the behaviour keeps with the control; never shown.
  const std::string& Tag() const { return tag_; }
  void SetTag(std::string tag) { tag_ = std::move(tag); }
  bool Enabled() const { return enabled_; }
  /// `reason` says to the user why the control is disabled, as one short sentence; an enabled one
  /// has none.
  void SetEnabled(bool enabled, std::string reason = {});
  /// Why the control, or the container that disables it, cannot be used; "" when nobody said.
  const std::string& DisabledReason() const;
  /// The control's own flag; a hidden container or tab page hides it as well.
  bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  const Bounds& GetBounds() const { return bounds_; }
  void SetBounds(const Bounds& bounds);

  /// True when the control and all its containers are visible and its tab page is in front.
  bool OnScreen() const;
  /// True when the control and all its containers are enabled.
  bool Usable() const;
  /// True when it could take the focus now: a kind that can, on screen and usable.
  bool CanFocus() const;
  /// Place in the tab order; controls are numbered in the order of their creation.
  int TabIndex() const { return tab_index_; }
  void SetTabIndex(int index) { tab_index_ = index; }
  bool TabStop() const { return tab_stop_; }
  void SetTabStop(bool stop) { tab_stop_ = stop; }
  /// False for a button that gives up what the fields of its container hold (all fields for one
  /// that stands on the form itself), such as Cancel or Exit: such a field is not validated when
  /// the user presses it.
  bool CausesValidation() const { return causes_validation_; }
  void SetCausesValidation(bool causes) { causes_validation_ = causes; }
  /// Name for assistive technology; the caption without its mark where none is set.
  std::string AccessibleName() const;
  void SetAccessibleName(std::string name) { accessible_name_ = std::move(name); }

  /// A key with a character code came (see key.h); setting it to 0 drops the key.
  std::function<void(int& key)> onKeyPress;
  std::function<void()> onGotFocus;
  std::function<void()> onLostFocus;
  /// Esc was pressed in the control, or in one that it holds, and nothing nearer to the focus had a
  /// use for it; clearing `used` passes it on to the container.
  std::function<void(bool& used)> onEscape;
  /// The user wants to leave the control; setting `cancel` keeps the focus in it.
  std::function<void(bool& cancel)> onValidate;

 protected:
  /// Tells the front ends.
  void Changed(Aspect aspect);
  /// Tells the front ends, and looks whether the focused control can keep the focus.
  void ReachChanged(Aspect aspect);
  /// The control was hidden and is visible again.
  virtual void Reappeared() {}

 private:
  Form& form_;
  Kind kind_;
  std::string name_;
  int index_;
  Control* container_;
  int page_;
  std::string caption_;
  std::string tag_;
  std::string accessible_name_;
  std::string disabled_reason_;
  Bounds bounds_;
  int tab_index_ = 0;
  bool enabled_ = true;
  bool visible_ = true;
  bool tab_stop_ = true;
  bool causes_validation_ = true;
};

/// The access key of a caption ("S" in "存盘(&S)"), upper case; 0 when it has none. "&&" is a
/// plain ampersand.
char32_t AccessKey(const std::string& caption);
/// The caption as it is shown: without the marks.
std::string ShownCaption(const std::string& caption);

}  // namespace qvzj::ui
