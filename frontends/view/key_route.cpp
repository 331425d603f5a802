#include "frontends/view/key_route.h"

namespace qvzj::view {
namespace {

using Name = ui::Key::Name;

bool Plain(const ui::Key& key) { return !key.ctrl && !key.alt; }

/// The keys that belong to the form whatever has the focus: Enter, Tab (also with Ctrl), Esc and
/// Alt with a character.
bool IsFormKey(const ui::Key& key) {
  switch (key.name) {
    case Name::Tab:
      return !key.alt;
    case Name::Enter:
    case Name::Escape:
      return Plain(key);
    case Name::Character:
      return key.alt && !key.ctrl;
    default:
      return false;
  }
}

bool IsStep(const ui::Key& key) {
  return key.name == Name::Up || key.name == Name::Down || key.name == Name::PageUp ||
         key.name == Name::PageDown;
}

bool MovesInList(const ui::Key& key) {
  return IsStep(key) || key.name == Name::Home || key.name == Name::End;
}

/// The keys that move within a list. With Shift or Ctrl they select.
bool IsListKey(const ui::Key& key) { return MovesInList(key) && Plain(key) && !key.shift; }

bool IsCtrl(const ui::Key& key, char32_t letter) {
  return key.ctrl && !key.alt && !key.shift && key.name == Name::Character &&
         (key.character | 0x20) == letter;
}

bool IsFunctionKey(const ui::Key& key) { return key.name >= Name::F1 && key.name <= Name::F12; }

bool IsClipboardKey(const ui::Key& key) {
  return IsCtrl(key, U'c') || IsCtrl(key, U'v') || IsCtrl(key, U'x');
}

/// Keys that change the text of a line, and the clipboard's.
bool IsEditKey(const ui::Key& key) {
  if (key.alt) return false;
  if (key.ctrl) return IsClipboardKey(key);
  return key.name == Name::Character || key.name == Name::Space || key.name == Name::Backspace ||
         (key.name == Name::Delete && !key.shift);
}

bool IsButtonKey(const ui::Key& key) {
  switch (key.name) {
    case Name::Space:
    case Name::Left:
    case Name::Right:
    case Name::Up:
    case Name::Down:
      return Plain(key);
    default:
      return false;
  }
}

bool IsComboKey(const ui::ComboBox& combo, const ui::Key& key) {
  if (combo.Editable()) return IsEditKey(key) || (IsStep(key) && Plain(key));
  const bool typed =
      key.name == Name::Character || key.name == Name::Delete || key.name == Name::Backspace;
  return (typed && Plain(key)) || IsListKey(key) || IsClipboardKey(key);
}

KeyRoute GridRoute(const ui::Key& key) {
  if (IsCtrl(key, U'c')) return KeyRoute::CopyRows;
  if (IsCtrl(key, U'f')) return KeyRoute::Find;
  if (key.name == Name::F3) return KeyRoute::FindAgain;
  if (MovesInList(key) && key.shift && !key.alt) return KeyRoute::Extend;
  const bool unmodified = Plain(key) && !key.shift;
  if (unmodified && key.name == Name::Left) return KeyRoute::StepLeft;
  if (unmodified && key.name == Name::Right) return KeyRoute::StepRight;
  return IsListKey(key) ? KeyRoute::Form : KeyRoute::Native;
}

/// True for the keys that the form handles for this control beside its own.
bool IsControlKey(const ui::Control& control, const ui::Key& key) {
  switch (control.GetKind()) {
    case ui::Kind::Button:
    case ui::Kind::CheckBox:
    case ui::Kind::OptionButton:
      return IsButtonKey(key);
    case ui::Kind::TextBox:
      return !static_cast<const ui::TextBox&>(control).MultiLine() && IsEditKey(key);
    case ui::Kind::ComboBox:
      return IsComboKey(static_cast<const ui::ComboBox&>(control), key);
    case ui::Kind::ListBox:
      return IsListKey(key) || (key.name == Name::Character && Plain(key));
    case ui::Kind::Tabs:
      return key.name == Name::Left || key.name == Name::Right;
    case ui::Kind::DatePicker:
      // A date is typed in the form, and its native field only shows it and drops a calendar.
      return !key.alt && !IsFunctionKey(key);
    default:
      return false;
  }
}

bool IsMemo(const ui::Control& control) {
  return control.GetKind() == ui::Kind::TextBox &&
         static_cast<const ui::TextBox&>(control).MultiLine();
}

}  // namespace

KeyRoute RouteOf(const ui::Control* focused, const ui::Key& key) {
  if (key.name == Name::F10 && key.shift && Plain(key)) return KeyRoute::ShowMenu;
  if (IsFormKey(key)) {
    // In a text of several lines Enter is an edit like any other and comes in through the text.
    const bool new_line = focused != nullptr && key.name == Name::Enter && IsMemo(*focused);
    return new_line ? KeyRoute::Native : KeyRoute::Form;
  }
  if (focused == nullptr) return KeyRoute::Native;
  if (focused->GetKind() == ui::Kind::Grid) return GridRoute(key);
  return IsControlKey(*focused, key) ? KeyRoute::Form : KeyRoute::Native;
}

bool ScrollsByWheel(const ui::Control& control) {
  return control.GetKind() == ui::Kind::Grid || control.GetKind() == ui::Kind::ListBox ||
         control.GetKind() == ui::Kind::TextBox;
}

}  // namespace qvzj::view
