#include "frontends/view/key_route.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

namespace qvzj::view {
namespace {

using Name = ui::Key::Name;

std::vector<ui::Key> AllKeys() {
  std::vector<ui::Key> plain;
  for (int name = static_cast<int>(Name::Enter); name <= static_cast<int>(Name::F12); ++name) {
    plain.push_back(ui::Key::Named(static_cast<Name>(name)));
    if (plain.back().name == Name::Space) plain.back().character = U' ';
  }
  for (char32_t letter : U"acfvxz17甲") {
    if (letter != 0) plain.push_back(ui::Key::Character(letter));
  }
  std::vector<ui::Key> keys;
  for (ui::Key key : plain) {
    for (int held = 0; held < 8; ++held) {
      key.ctrl = (held & 1) != 0;
      key.alt = (held & 2) != 0;
      key.shift = (held & 4) != 0;
      keys.push_back(key);
    }
  }
  return keys;
}

std::string Told(const ui::Key& key) {
  std::string told;
  if (key.ctrl) told += "Ctrl+";
  if (key.alt) told += "Alt+";
  if (key.shift) told += "Shift+";
  return told + "key " + std::to_string(static_cast<int>(key.name)) + " U+" +
         std::to_string(static_cast<uint32_t>(key.character));
}

/// A form with one control of a kind that has the focus, in a state in which every key of its kind
/// does something, and a neighbour to walk to.
struct Desk {
  explicit Desk(ui::Kind kind, bool memo_or_editable = false) {
    form.SetLoaded(true);
    form.readClipboard = [] { return std::string("pasted"); };
    form.writeClipboard = [](const std::string&) {};
    form.onError = [](const std::exception& error) { ADD_FAILURE() << error.what(); };
    Make(kind, memo_or_editable);
    neighbour = std::make_unique<ui::Button>(form, "cmdOther");
    neighbour->SetCaption("O(&Z)");
    form.UserFocus(*control);
  }
  void Make(ui::Kind kind, bool memo_or_editable) {
    const std::vector<std::string> items{"a1", "z2", "c3", "f4", "a5"};
    switch (kind) {
      case ui::Kind::Button:
        control = std::make_unique<ui::Button>(form, "c");
        return;
      case ui::Kind::CheckBox:
        control = std::make_unique<ui::CheckBox>(form, "c");
        return;
      case ui::Kind::OptionButton: {
        control = std::make_unique<ui::OptionButton>(form, "c", 0);
        second_option = std::make_unique<ui::OptionButton>(form, "c", 1);
        return;
      }
      case ui::Kind::TextBox: {
        auto box = std::make_unique<ui::TextBox>(form, "c");
        box->SetMultiLine(memo_or_editable);
        box->SetText("one two");
        box->Select(2, 2);
        control = std::move(box);
        return;
      }
      case ui::Kind::ComboBox: {
        auto combo = std::make_unique<ui::ComboBox>(form, "c");
        combo->SetEditable(memo_or_editable);
        combo->SetClearable(true);
        combo->SetItems(items);
        combo->SetListIndex(2);
        control = std::move(combo);
        return;
      }
      case ui::Kind::ListBox: {
        auto list = std::make_unique<ui::ListBox>(form, "c");
        list->SetItems(items);
        list->SetListIndex(2);
        control = std::move(list);
        return;
      }
      case ui::Kind::Tabs: {
        auto tabs = std::make_unique<ui::Tabs>(form, "c", 3);
        tabs->SetTab(1);
        control = std::move(tabs);
        return;
      }
      case ui::Kind::DatePicker: {
        auto date = std::make_unique<ui::DatePicker>(form, "c");
        date->SetValue(basic::Date::FromYmd(2024, 3, 15));
        control = std::move(date);
        return;
      }
      default: {
        auto grid = std::make_unique<ui::Grid>(form, "c");
        grid->SetColumnCount(3);
        grid->SetRowCount(3);
        grid->SetActive(2, 2);
        control = std::move(grid);
        return;
      }
    }
  }

  ui::Form form{"frm"};
  std::unique_ptr<ui::Control> control;
  std::unique_ptr<ui::Control> second_option;
  std::unique_ptr<ui::Button> neighbour;
};

struct Case {
  const char* name;
  ui::Kind kind;
  bool memo_or_editable;
};

constexpr Case kCases[] = {{"button", ui::Kind::Button, false},
                           {"check box", ui::Kind::CheckBox, false},
                           {"option", ui::Kind::OptionButton, false},
                           {"line", ui::Kind::TextBox, false},
                           {"memo", ui::Kind::TextBox, true},
                           {"list-only combo", ui::Kind::ComboBox, false},
                           {"editable combo", ui::Kind::ComboBox, true},
                           {"list", ui::Kind::ListBox, false},
                           {"tabs", ui::Kind::Tabs, false},
                           {"date", ui::Kind::DatePicker, false},
                           {"grid", ui::Kind::Grid, false}};

/// Keys that are offered to the form always, whether it has a use for them now or not: a container
/// that answers to Esc, a caption that bears the letter, tabs around the focus. Arrows on a button
/// are among them, since the toolkit would walk to another one on its own, and whatever a native
/// date field would edit.
bool IsOffered(ui::Kind kind, const ui::Key& key) {
  const bool button = kind == ui::Kind::Button || kind == ui::Kind::CheckBox;
  const bool arrow = key.name == Name::Left || key.name == Name::Right || key.name == Name::Up ||
                     key.name == Name::Down;
  return key.name == Name::Enter || key.name == Name::Escape ||
         (key.name == Name::Tab && key.ctrl) || (key.name == Name::Character && key.alt) ||
         (button && arrow) || kind == ui::Kind::DatePicker;
}

/// Held with Alt or Ctrl the desktop and the native widget have uses of their own for a key; of
/// these only the clipboard's are the form's.
bool IsHeld(const ui::Key& key) {
  const char32_t letter = key.character | 0x20;
  const bool clipboard = key.ctrl && key.name == Name::Character && !key.shift &&
                         (letter == U'c' || letter == U'v' || letter == U'x');
  return key.alt || (key.ctrl && !clipboard);
}

/// Keys with which native editors and lists move caret, selection and current row or cut a text
/// themselves; what comes of it reaches the form as a whole.
bool IsNativesOwn(const ui::Key& key) {
  switch (key.name) {
    case Name::Left:
    case Name::Right:
    case Name::Up:
    case Name::Down:
    case Name::Home:
    case Name::End:
    case Name::PageUp:
    case Name::PageDown:
      return true;
    case Name::Delete:
      return key.shift;  // cuts
    default:
      return false;
  }
}

bool HasKeysOfItsOwn(ui::Kind kind) {
  return kind == ui::Kind::TextBox || kind == ui::Kind::ComboBox || kind == ui::Kind::ListBox ||
         kind == ui::Kind::Grid || kind == ui::Kind::DatePicker;
}

TEST(KeyRoute, SendsTheFormNoKeyThatItHasNoUseFor) {
  for (const Case& each : kCases) {
    for (const ui::Key& key : AllKeys()) {
      Desk desk(each.kind, each.memo_or_editable);
      if (RouteOf(desk.control.get(), key) != KeyRoute::Form || IsOffered(each.kind, key)) continue;
      EXPECT_TRUE(desk.form.UserKey(key)) << each.name << ": " << Told(key);
    }
  }
}

TEST(KeyRoute, KeepsNoKeyFromTheFormThatTheWidgetDoesNotDoItself) {
  for (const Case& each : kCases) {
    const bool memo = each.kind == ui::Kind::TextBox && each.memo_or_editable;
    for (const ui::Key& key : AllKeys()) {
      Desk desk(each.kind, each.memo_or_editable);
      if (RouteOf(desk.control.get(), key) != KeyRoute::Native) continue;
      if (memo || IsHeld(key) || (HasKeysOfItsOwn(each.kind) && IsNativesOwn(key))) continue;
      EXPECT_FALSE(desk.form.UserKey(key)) << each.name << ": " << Told(key);
    }
  }
}

TEST(KeyRoute, LeavesEveryEditOfAMemoToItsEditor) {
  Desk desk(ui::Kind::TextBox, true);
  EXPECT_EQ(RouteOf(desk.control.get(), ui::Key::Named(Name::Enter)), KeyRoute::Native);
  EXPECT_EQ(RouteOf(desk.control.get(), ui::Key::Character(U'a')), KeyRoute::Native);
  EXPECT_EQ(RouteOf(desk.control.get(), ui::Key::Named(Name::Tab)), KeyRoute::Form);
}

TEST(KeyRoute, GivesTheWindowItsOwnKeysInAGrid) {
  Desk desk(ui::Kind::Grid);
  const auto route = [&](const char* key) {
    return RouteOf(desk.control.get(), *ui::ParseKey(key));
  };
  EXPECT_EQ(route("Ctrl+C"), KeyRoute::CopyRows);
  EXPECT_EQ(route("Ctrl+F"), KeyRoute::Find);
  EXPECT_EQ(route("F3"), KeyRoute::FindAgain);
  EXPECT_EQ(route("Left"), KeyRoute::StepLeft);
  EXPECT_EQ(route("Right"), KeyRoute::StepRight);
  EXPECT_EQ(route("Shift+Down"), KeyRoute::Extend);
  EXPECT_EQ(route("Ctrl+Shift+End"), KeyRoute::Extend);
  EXPECT_EQ(route("Down"), KeyRoute::Form);
}

TEST(KeyRoute, AsksForTheMenuWhereverTheFocusIs) {
  ui::Key key = ui::Key::Named(Name::F10);
  EXPECT_EQ(RouteOf(nullptr, key), KeyRoute::Native);
  key.shift = true;
  EXPECT_EQ(RouteOf(nullptr, key), KeyRoute::ShowMenu);
  Desk desk(ui::Kind::TextBox);
  EXPECT_EQ(RouteOf(desk.control.get(), key), KeyRoute::ShowMenu);
}

TEST(KeyRoute, SendsTheFormItsOwnKeysWhenNothingHasTheFocus) {
  EXPECT_EQ(RouteOf(nullptr, ui::Key::Named(Name::Escape)), KeyRoute::Form);
  EXPECT_EQ(RouteOf(nullptr, *ui::ParseKey("Alt+N")), KeyRoute::Form);
  EXPECT_EQ(RouteOf(nullptr, ui::Key::Character(U'a')), KeyRoute::Native);
}

TEST(KeyRoute, LetsTheWheelScrollListsButChangeNoValueInPassing) {
  EXPECT_TRUE(ScrollsByWheel(*Desk(ui::Kind::Grid).control));
  EXPECT_FALSE(ScrollsByWheel(*Desk(ui::Kind::ComboBox).control));
  EXPECT_FALSE(ScrollsByWheel(*Desk(ui::Kind::DatePicker).control));
}

}  // namespace
}  // namespace qvzj::view
