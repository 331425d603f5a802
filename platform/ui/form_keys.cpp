#include <algorithm>

#include "platform/basic/text.h"
#include "platform/ui/form.h"

/// What each key does. Alt with a letter goes to the control whose caption bears it; Tab walks the
/// tab order, Ctrl+Tab the tab pages around the focus. Every other key goes to the focused control:
/// first onKeyPress where the key has a code, then what the kind of control does with it.
namespace qvzj::ui {
namespace {

using Name = Key::Name;

/// The code that onKeyPress sees; 0 for keys that have none.
int KeyCode(const Key& key) {
  if (key.alt) return 0;
  switch (key.name) {
    case Name::Enter:
      return kKeyEnter;
    case Name::Escape:
      return kKeyEscape;
    case Name::Backspace:
      return kKeyBackspace;
    case Name::Space:
      return key.ctrl ? 0 : ' ';
    case Name::Character:
      break;
    default:
      return 0;
  }
  if (!key.ctrl) return static_cast<int>(key.character);
  switch (key.character | 0x20) {
    case U'c':
      return kKeyCtrlC;
    case U'v':
      return kKeyCtrlV;
    case U'x':
      return kKeyCtrlX;
    default:
      return 0;
  }
}

/// Where a key of movement leads in a list of `count` rows from `at` (0-based, -1 = nowhere yet);
/// `at` itself for any other key.
int32_t ListTarget(Name name, int32_t at, int32_t count, int32_t page) {
  int32_t to = at;
  switch (name) {
    case Name::Up:
      to = at - 1;
      break;
    case Name::Down:
      to = at + 1;
      break;
    case Name::PageUp:
      to = at - page;
      break;
    case Name::PageDown:
      to = at + page;
      break;
    case Name::Home:
      to = 0;
      break;
    case Name::End:
      to = count - 1;
      break;
    default:
      return at;
  }
  return std::clamp(to, std::min(0, count - 1), count - 1);
}

bool IsListKey(Name name) {
  return name == Name::Up || name == Name::Down || name == Name::PageUp || name == Name::PageDown ||
         name == Name::Home || name == Name::End;
}

bool BeginsWith(const std::vector<std::string>& items, int32_t index, int code) {
  if (index < 0) return false;
  const std::string wanted = basic::Upper(basic::FromCodePoint(static_cast<char32_t>(code)));
  return basic::Upper(basic::Left(items[static_cast<size_t>(index)], 1)) == wanted;
}

/// The next item after `at` that begins with the typed character, around at the end; `at` when
/// there is none.
int32_t NextBeginningWith(const std::vector<std::string>& items, int32_t at, int code) {
  const auto count = static_cast<int32_t>(items.size());
  for (int32_t step = 1; step <= count; ++step) {
    const int32_t index = (at + step) % count;
    if (BeginsWith(items, index, code)) return index;
  }
  return at;
}

/// Number of containers that two controls have in common from the form inwards.
int SharedContainers(const Control& a, const Control* b) {
  int shared = 0;
  for (const Control* outer = a.Container(); outer; outer = outer->Container()) {
    for (const Control* other = b; other; other = other->Container()) {
      if (outer == other) {
        ++shared;
        break;
      }
    }
  }
  return shared;
}

}  // namespace

bool Form::UserKey(const Key& key) {
  return Act([&] { return HandleKey(key); });
}

bool Form::HandleKey(const Key& key) {
  if (key.name == Name::Tab) return key.ctrl ? TurnTabs(key.shift) : Step(key.shift);
  if (key.alt && key.name == Name::Character) return AltKey(key.character);
  if (!focused_ || !focused_->CanFocus()) return false;
  Control& control = *focused_;
  if (control.GetKind() == Kind::Button && key.name == Name::Enter) {
    return Press(static_cast<Button&>(control));
  }
  int code = KeyCode(key);
  if (code != 0) {
    const bool typed = code >= ' ' || code == kKeyCtrlV;
    Raise(control.onKeyPress, code);
    // A key that the behaviour dropped, or that moved the focus on, is used up.
    if (focused_ != &control) return true;
    if (code == 0) return typed ? Refuse(control) : true;
  }
  if (ControlKey(control, key, code)) return true;
  return key.name == Name::Escape && Escape();
}

/// Esc that the focused control has no use for: its containers are asked from the inside out.
bool Form::Escape() {
  for (Control* control = focused_; control; control = control->Container()) {
    bool used = control->onEscape != nullptr;
    Raise(control->onEscape, used);
    if (used) return true;
  }
  return false;
}

bool Form::ControlKey(Control& control, const Key& key, int code) {
  const bool space = key.name == Name::Space && !key.ctrl && !key.alt;
  switch (control.GetKind()) {
    case Kind::Button:
      return space && Press(static_cast<Button&>(control));
    case Kind::CheckBox:
      return space && Click(control);
    case Kind::OptionButton:
      return space ? Click(control) : OptionKey(static_cast<OptionButton&>(control), key);
    case Kind::TextBox:
      return EditKey(static_cast<EditBox&>(control), key, code);
    case Kind::ComboBox:
      return ComboKey(static_cast<ComboBox&>(control), key, code);
    case Kind::ListBox:
      return ListKey(static_cast<ListBox&>(control), key, code);
    case Kind::Tabs:
      return TabsKey(static_cast<Tabs&>(control), key);
    case Kind::DatePicker:
      return DateKey(static_cast<DatePicker&>(control), key, code);
    case Kind::Grid:
      return GridKey(static_cast<Grid&>(control), key);
    default:
      return false;
  }
}

/// The arrows select the neighbour in the group, around at the ends.
bool Form::OptionKey(OptionButton& option, const Key& key) {
  const bool back = key.name == Name::Up || key.name == Name::Left;
  if (!back && key.name != Name::Down && key.name != Name::Right) return false;
  std::vector<Control*> group;
  for (Control* control : TabOrder()) {
    if (control == &option || (option.Excludes(*control) && control->CanFocus())) {
      group.push_back(control);
    }
  }
  if (back) std::reverse(group.begin(), group.end());
  const auto at = std::find(group.begin(), group.end(), &option);
  Control* const next = at + 1 == group.end() ? group.front() : *(at + 1);
  return next == &option || Click(*next);
}

bool Form::ComboKey(ComboBox& combo, const Key& key, int code) {
  const bool clears = key.name == Name::Delete || key.name == Name::Backspace;
  const bool lists = key.name == Name::Up || key.name == Name::Down || key.name == Name::PageUp ||
                     key.name == Name::PageDown;
  if (combo.Editable() && !lists) return EditKey(combo, key, code);
  if (key.name == Name::Escape) return false;
  if (key.ctrl && key.name == Name::Character) return EditKey(combo, key, code);
  if (combo.Locked()) return Refuse(combo);
  const int32_t at = combo.ListIndex();
  int32_t to = at;
  if (clears && combo.Clearable()) {
    to = -1;
  } else if (IsListKey(key.name)) {
    to = ListTarget(key.name, at, static_cast<int32_t>(combo.Items().size()), 10);
  } else if (code > ' ') {
    to = NextBeginningWith(combo.Items(), at, code);
    if (!BeginsWith(combo.Items(), to, code)) return Refuse(combo);
  } else {
    return clears && Refuse(combo);
  }
  return to == at || Choose(combo, to);
}

bool Form::ListKey(ListBox& list, const Key& key, int code) {
  const int32_t at = list.ListIndex();
  int32_t to = at;
  if (IsListKey(key.name)) {
    to = ListTarget(key.name, at, static_cast<int32_t>(list.Items().size()), 10);
  } else if (code > ' ') {
    to = NextBeginningWith(list.Items(), at, code);
    if (!BeginsWith(list.Items(), to, code)) return Refuse(list);
  } else {
    return false;
  }
  return to == at || Choose(list, to);
}

bool Form::TabsKey(Tabs& tabs, const Key& key) {
  const bool back = key.name == Name::Left;
  if (!back && key.name != Name::Right) return false;
  const int to = tabs.Tab() + (back ? -1 : 1);
  return to < 0 || to >= tabs.Count() || PickTab(tabs, to);
}

/// Ctrl+Tab: the next page of the innermost tabs around the focus, around at the end.
bool Form::TurnTabs(bool backwards) {
  for (Control* control = focused_; control; control = control->Container()) {
    if (control->GetKind() != Kind::Tabs) continue;
    auto& tabs = static_cast<Tabs&>(*control);
    return PickTab(tabs, (tabs.Tab() + (backwards ? tabs.Count() - 1 : 1)) % tabs.Count());
  }
  return false;
}

bool Form::GridKey(Grid& grid, const Key& key) {
  int32_t column = grid.ActiveColumn();
  if (key.name == Name::Left || key.name == Name::Right) {
    const int32_t step = key.name == Name::Left ? -1 : 1;
    do column += step;
    while (column >= 1 && column <= grid.ColumnCount() && grid.ColumnHidden(column));
    if (column < 1 || column > grid.ColumnCount()) return true;
  } else if (!IsListKey(key.name)) {
    return false;
  }
  const int32_t row =
      1 + ListTarget(key.name, grid.ActiveRow() - 1, grid.RowCount(), grid.PageRows());
  return row < 1 || MoveCell(grid, column, row);
}

/// The button that prints the list which has the focus or had it last; null when there is none.
Control* Form::PrintButton() const { return last_list_ ? last_list_->offers.print : nullptr; }

/// Among the controls on the screen whose caption bears the letter, usable ones before disabled
/// ones: the one that shares the innermost container with the focus, and of several of these the
/// next in tab order, around at the end. Null when none bears it.
Control* Form::BearerOf(char32_t letter) const {
  const std::string upper = basic::Upper(basic::FromCodePoint(letter));
  std::vector<Control*> order = TabOrder();
  const auto focus = std::find(order.begin(), order.end(), focused_);
  if (focus != order.end()) std::rotate(order.begin(), focus + 1, order.end());
  Control* best = nullptr;
  int most = -1;
  for (Control* control : order) {
    const char32_t access_key = AccessKey(control->Caption());
    if (access_key == 0 || basic::FromCodePoint(access_key) != upper) continue;
    if (!control->OnScreen()) continue;
    // Two lists may be printed by one letter: it is the one that the user is at.
    if (control == PrintButton()) return control;
    const int rank = control->Usable() ? 1 + SharedContainers(*control, focused_) : 0;
    if (rank <= most) continue;
    best = control;
    most = rank;
  }
  return best;
}

/// Alt with a letter: a label or frame that bears it passes it on to the control after it. A
/// control that is disabled says why.
bool Form::AltKey(char32_t letter) {
  Control* const bearer = BearerOf(letter);
  if (!bearer) return false;
  if (!bearer->Usable()) {
    Refuse(*bearer);
    return false;
  }
  if (bearer->GetKind() != Kind::Label && bearer->GetKind() != Kind::Frame) return Click(*bearer);
  Control* const next = NextStop(bearer, false);
  return next && Enter(*next);
}

}  // namespace qvzj::ui
