#include <gtest/gtest.h>

#include "tests/platform/ui/screen.h"

namespace qvzj::ui {
namespace {

using Refused = std::vector<Control*>;

TEST(RefusedKey, IsToldWhereAFieldCannotTakeIt) {
  Screen screen;
  screen.SetFocus(screen.text);
  screen.text.SetLocked(true);
  screen.Keys({"a", "Backspace", "Delete", "Ctrl+V"});
  EXPECT_EQ(screen.refused, Refused(4, &screen.text));
}

TEST(RefusedKey, IsToldWhereTheBehaviourDropsIt) {
  Screen screen;
  screen.text.onKeyPress = [](int& key) { key = key == 'x' ? 0 : key; };
  screen.SetFocus(screen.text);
  screen.Keys({"x", "y"});
  EXPECT_EQ(screen.refused, Refused{&screen.text});
}

TEST(RefusedKey, IsToldWhereAnInsertionIsEmptiedOrCut) {
  Screen screen;
  screen.text.onEdit = [](std::string& inserted) { inserted = inserted.substr(0, 1); };
  screen.SetFocus(screen.text);
  screen.UserInsert(screen.text, "a");
  EXPECT_TRUE(screen.refused.empty());
  screen.UserInsert(screen.text, "bc");
  EXPECT_EQ(screen.refused.size(), 1u);
  screen.text.onEdit = [](std::string& inserted) { inserted.clear(); };
  screen.UserEdited(screen.text, "abd", 3);
  EXPECT_EQ(screen.refused.size(), 2u);
  EXPECT_EQ(screen.text.Text(), "ab");
}

TEST(RefusedKey, IsToldWhereNoItemBeginsWithIt) {
  Screen screen;
  screen.combo.SetItems({"RMB", "USD"});
  screen.SetFocus(screen.combo);
  screen.Keys({"u", "x"});
  EXPECT_EQ(screen.combo.Text(), "USD");
  EXPECT_EQ(screen.refused, Refused{&screen.combo});
  screen.combo.SetLocked(true);
  screen.Keys({"r"});
  EXPECT_EQ(screen.refused.size(), 2u);
}

TEST(RefusedKey, IsNoneThatTheBehaviourUses) {
  Screen screen;
  screen.text.onKeyPress = [](int& key) { key = key == kKeyEnter ? 0 : key; };
  screen.list.onKeyPress = [&](int& key) {
    key = 0;
    screen.SetFocus(screen.text);
  };
  screen.tabs.SetTab(2);
  screen.SetFocus(screen.list);
  screen.Keys({"q", "Enter", "a", "Left", "Esc"});
  EXPECT_TRUE(screen.refused.empty());
}

TEST(DisabledReason, IsToldWithTheAccessKeyOfADisabledButton) {
  Screen screen;
  screen.SetFocus(screen.text);
  screen.check.SetEnabled(false, "已审核的帐目不能再审核");
  EXPECT_FALSE(screen.UserKey(ParseKey("Alt+K").value()));
  EXPECT_EQ(screen.refused, Refused{&screen.check});
  EXPECT_EQ(screen.check.DisabledReason(), "已审核的帐目不能再审核");
  screen.check.SetEnabled(true);
  EXPECT_EQ(screen.check.DisabledReason(), "");
  EXPECT_TRUE(screen.UserKey(ParseKey("Alt+K").value()));
}

TEST(DisabledReason, FollowsTheStateThatItExplains) {
  Screen screen;
  screen.button.SetEnabled(false, "a");
  screen.button.SetEnabled(false, "b");
  EXPECT_EQ(screen.button.DisabledReason(), "b");
  screen.button.SetEnabled(false);
  EXPECT_EQ(screen.button.DisabledReason(), "");
}

TEST(DisabledReason, IsThatOfTheContainerForWhatItHolds) {
  Screen screen;
  screen.frame.SetEnabled(false, "没有权限");
  EXPECT_EQ(screen.inner_button.DisabledReason(), "没有权限");
  screen.inner_button.SetEnabled(false, "没有修改");
  EXPECT_EQ(screen.inner_button.DisabledReason(), "没有修改");
}

TEST(AccessKey, GoesToAUsableControlRatherThanToADisabledOneNearer) {
  Screen screen;
  int clicks = 0;
  screen.button.onClick = [&] { ++clicks; };
  screen.inner_button.SetCaption("存盘(&S)");
  screen.inner_button.SetEnabled(false, "没有修改");
  screen.SetFocus(screen.inner_text);
  screen.Keys({"Alt+S"});
  EXPECT_EQ(clicks, 1);
  EXPECT_TRUE(screen.refused.empty());
}

/// Two lists, each with a button that prints it by the same letter.
struct TwoLists : Screen {
  TwoLists() {
    grid.offers.print = &button;
    other.offers.print = &inner_button;
    button.SetCaption("打印(&P)");
    inner_button.SetCaption("帐目打印(&P)");
    button.onClick = [this] { printed += "1"; };
    inner_button.onClick = [this] { printed += "2"; };
  }
  Grid other{*this, "other"};
  std::string printed;
};

TEST(AccessKey, PrintsTheListThatHasTheFocusOrHadItLast) {
  TwoLists screen;
  screen.SetFocus(screen.grid);
  screen.Keys({"Alt+P"});
  screen.SetFocus(screen.inner_text);  // nearer to the other list's button
  screen.Keys({"Alt+P"});
  EXPECT_EQ(screen.printed, "11");
  screen.SetFocus(screen.other);
  screen.Keys({"Alt+P"});
  screen.SetFocus(screen.text);
  screen.Keys({"Alt+P"});
  EXPECT_EQ(screen.printed, "1122");
}

TEST(AccessKey, PrintsNoOtherListWhereTheOneAtHandCannotBe) {
  TwoLists screen;
  screen.SetFocus(screen.other);
  screen.inner_button.SetEnabled(false, "没有打印权限");
  screen.Keys({"Alt+P"});
  EXPECT_EQ(screen.printed, "");
  EXPECT_EQ(screen.refused, Refused{&screen.inner_button});
}

TEST(Escape, IsAskedFromTheInsideOutWhenTheFieldHasNothingToRestore) {
  Screen screen;
  std::string log;
  screen.frame.onEscape = [&](bool&) { log += "frame "; };
  screen.SetFocus(screen.inner_text);
  screen.Keys({"a", "Esc"});
  EXPECT_EQ(log, "");
  EXPECT_EQ(screen.inner_text.Text(), "");
  EXPECT_TRUE(screen.UserKey(Key::Named(Key::Name::Escape)));
  EXPECT_EQ(log, "frame ");
  screen.inner_text.onEscape = [&](bool& used) {
    log += "text ";
    used = false;
  };
  screen.Keys({"Esc"});
  EXPECT_EQ(log, "frame text frame ");
}

TEST(Escape, LeavesAContainerFromEveryKindOfControl) {
  Screen screen;
  int left = 0;
  screen.tabs.onEscape = [&](bool&) { ++left; };
  for (int page = 0; page <= 2; ++page) {
    screen.tabs.SetTab(page);
    const std::vector<Control*> pages = {&screen.grid, &screen.date, &screen.list};
    screen.SetFocus(*pages[static_cast<size_t>(page)]);
    screen.Keys({"Esc"});
  }
  screen.SetFocus(screen.tabs);
  screen.Keys({"Esc"});
  EXPECT_EQ(left, 4);
  screen.SetFocus(screen.text);
  EXPECT_FALSE(screen.UserKey(Key::Named(Key::Name::Escape)));
}

TEST(Escape, PassesALockedList) {
  Screen screen;
  int left = 0;
  ComboBox inner(screen, "inner", -1, &screen.frame);
  inner.SetLocked(true);
  screen.frame.onEscape = [&](bool&) { ++left; };
  screen.SetFocus(inner);
  screen.Keys({"Esc"});
  EXPECT_EQ(left, 1);
  EXPECT_TRUE(screen.refused.empty());
}

}  // namespace
}  // namespace qvzj::ui
