#include <gtest/gtest.h>

#include "tests/platform/ui/screen.h"

namespace qvzj::ui {
namespace {

TEST(KeyText, NamesAKeyWithItsModifiers) {
  const Key key = ParseKey("ctrl+Shift+tab").value();
  EXPECT_EQ(key.name, Key::Name::Tab);
  EXPECT_TRUE(key.ctrl);
  EXPECT_TRUE(key.shift);
  EXPECT_FALSE(key.alt);
}

TEST(KeyText, TakesASingleCharacterOfAnyScript) {
  EXPECT_EQ(ParseKey("张")->character, U'张');
  EXPECT_EQ(ParseKey("𠮷")->character, U'𠮷');
  EXPECT_EQ(ParseKey("+")->character, U'+');
  EXPECT_EQ(ParseKey("Ctrl++")->character, U'+');
  EXPECT_EQ(ParseKey(" ")->name, Key::Name::Space);
  EXPECT_EQ(ParseKey("Space")->character, U' ');
}

TEST(KeyText, IsRefusedWhenItNamesNoKey) {
  EXPECT_FALSE(ParseKey(""));
  EXPECT_FALSE(ParseKey("Entr"));
  EXPECT_FALSE(ParseKey("Ctrl+"));
  EXPECT_FALSE(ParseKey("F13"));
}

TEST(Keys, EnterAndSpacePressAFocusedButton) {
  Screen screen;
  int clicks = 0;
  screen.button.onClick = [&] { ++clicks; };
  screen.SetFocus(screen.button);
  screen.Keys({"Enter", "Space", "x"});
  EXPECT_EQ(clicks, 2);
}

TEST(Keys, PressAButtonThatKnowsOnlyTheMouseAtItsCorner) {
  Screen screen;
  int32_t at = -1;
  screen.button.onMouseDown = [&](int32_t x, int32_t y) { at = x + y; };
  screen.SetFocus(screen.button);
  screen.Keys({"Enter"});
  EXPECT_EQ(at, 0);
}

TEST(Keys, EnterIsSeenByOtherControlsAsThirteen) {
  Screen screen;
  int seen = 0;
  screen.check.onKeyPress = [&](int& key) {
    seen = key;
    key = 0;
    screen.SendTab();
  };
  screen.SetFocus(screen.check);
  screen.Keys({"Enter"});
  EXPECT_EQ(seen, kKeyEnter);
  EXPECT_EQ(screen.Focused(), &screen.option(0));
}

TEST(Keys, GoOnInNoOtherControlWhenTheHandlerMovedTheFocus) {
  Screen screen;
  screen.text.onKeyPress = [&](int&) { screen.SendTab(); };  // does not drop the key
  screen.SetFocus(screen.text);
  screen.Keys({"Enter", "a"});
  EXPECT_EQ(screen.text.Text(), "");
  EXPECT_EQ(screen.memo.Text(), "a");
}

TEST(Keys, SpaceTogglesACheckBox) {
  Screen screen;
  int clicks = 0;
  screen.check.onClick = [&] { ++clicks; };
  screen.SetFocus(screen.check);
  screen.Keys({"Space"});
  EXPECT_EQ(screen.check.Value(), 1);
  screen.Keys({"Space"});
  EXPECT_EQ(screen.check.Value(), 0);
  EXPECT_EQ(clicks, 2);
}

TEST(Keys, ArrowsMoveTheSelectionOfAnOptionGroupAround) {
  Screen screen;
  std::string clicked;
  for (int i = 0; i <= 2; ++i) screen.option(i).onClick = [&, i] { clicked += std::to_string(i); };
  screen.option(1).Select();
  screen.SetFocus(screen.option(1));
  screen.Keys({"Down", "Right", "Up"});
  EXPECT_EQ(clicked, "202");
  EXPECT_TRUE(screen.option(2).Selected());
  EXPECT_EQ(screen.Focused(), &screen.option(2));
}

TEST(Keys, ArrowsPassOverADisabledOption) {
  Screen screen;
  screen.option(1).SetEnabled(false);
  screen.option(0).Select();
  screen.SetFocus(screen.option(0));
  screen.Keys({"Down"});
  EXPECT_TRUE(screen.option(2).Selected());
}

TEST(Keys, ArrowsChooseInACombo) {
  Screen screen;
  screen.combo.SetItems({"RMB", "USD", "GBP"});
  int clicks = 0;
  screen.combo.onClick = [&] { ++clicks; };
  screen.SetFocus(screen.combo);
  screen.Keys({"Down", "Down", "Up", "Up"});
  EXPECT_EQ(screen.combo.Text(), "RMB");
  EXPECT_EQ(clicks, 3);  // the last Up found no item above
  screen.Keys({"End"});
  EXPECT_EQ(screen.combo.Text(), "GBP");
}

TEST(Keys, ACharacterJumpsToTheNextItemThatBeginsWithIt) {
  Screen screen;
  screen.combo.SetItems({"USD", "GBP", "usx", "张三"});
  screen.SetFocus(screen.combo);
  screen.Keys({"u"});
  EXPECT_EQ(screen.combo.ListIndex(), 0);
  screen.Keys({"u"});
  EXPECT_EQ(screen.combo.ListIndex(), 2);
  screen.Keys({"张"});
  EXPECT_EQ(screen.combo.ListIndex(), 3);
  screen.Keys({"q"});
  EXPECT_EQ(screen.combo.ListIndex(), 3);
}

TEST(Keys, DeleteClearsTheChoiceOfAClearableCombo) {
  Screen screen;
  screen.combo.SetItems({"RMB", "USD"});
  screen.combo.SetListIndex(1);
  int clicks = 0;
  screen.combo.onClick = [&] { ++clicks; };
  screen.SetFocus(screen.combo);
  screen.Keys({"Delete"});
  EXPECT_EQ(screen.combo.ListIndex(), 1);
  screen.combo.SetClearable(true);
  screen.Keys({"Backspace", "Delete"});
  EXPECT_EQ(screen.combo.ListIndex(), -1);
  EXPECT_EQ(screen.combo.Text(), "");
  EXPECT_EQ(clicks, 1);
}

TEST(Keys, ALockedComboRefusesThem) {
  Screen screen;
  screen.combo.SetItems({"RMB", "USD"});
  screen.combo.SetListIndex(0);
  screen.combo.SetLocked(true);
  screen.combo.SetClearable(true);
  screen.SetFocus(screen.combo);
  screen.Keys({"Down", "u", "Delete"});
  EXPECT_EQ(screen.combo.ListIndex(), 0);
}

TEST(Keys, ArrowsAndCharactersMoveInAList) {
  Screen screen;
  screen.tabs.SetTab(2);
  screen.list.SetItems({"001\t张三", "002\t李四", "103\t王五"});
  int clicks = 0;
  screen.list.onClick = [&] { ++clicks; };
  screen.SetFocus(screen.list);
  screen.Keys({"Down", "Down", "1", "Home"});
  EXPECT_EQ(screen.list.ListIndex(), 0);
  EXPECT_EQ(clicks, 4);
}

TEST(Keys, MoveTheDateOfAPicker) {
  Screen screen;
  screen.tabs.SetTab(1);
  screen.date.SetValue(basic::Date::FromYmd(2024, 1, 30));
  int changes = 0;
  screen.date.onChange = [&] { ++changes; };
  screen.SetFocus(screen.date);
  screen.Keys({"Up"});
  EXPECT_EQ(basic::FormatIso(screen.date.Value()), "2024-01-31");
  screen.Keys({"PageUp"});
  EXPECT_EQ(basic::FormatIso(screen.date.Value()), "2024-02-29");
  screen.Keys({"PageDown", "Down"});
  EXPECT_EQ(basic::FormatIso(screen.date.Value()), "2024-01-28");
  EXPECT_EQ(changes, 4);
}

TEST(Keys, TurnThePagesOfTabs) {
  Screen screen;
  std::string left;
  screen.tabs.onClick = [&](int previous) { left += std::to_string(previous); };
  screen.SetFocus(screen.tabs);
  screen.Keys({"Right", "Right", "Right", "Left"});
  EXPECT_EQ(screen.tabs.Tab(), 1);
  EXPECT_EQ(left, "012");
}

TEST(Keys, CtrlTabTurnsThePagesFromInside) {
  Screen screen;
  screen.SetFocus(screen.grid);
  screen.Keys({"Ctrl+Tab"});
  EXPECT_EQ(screen.tabs.Tab(), 1);
  screen.Keys({"Ctrl+Shift+Tab", "Ctrl+Shift+Tab"});
  EXPECT_EQ(screen.tabs.Tab(), 2);
  screen.SetFocus(screen.text);
  EXPECT_FALSE(screen.UserKey(ParseKey("Ctrl+Tab").value()));
}

TEST(Keys, AreNotTakenByAFormWithoutAFocus) {
  Screen screen;
  EXPECT_FALSE(screen.UserKey(Key::Character(U'a')));
}

TEST(Keys, ThatNothingUsesAreLeftToTheFrontEnd) {
  Screen screen;
  screen.SetFocus(screen.text);
  EXPECT_FALSE(screen.UserKey(Key::Named(Key::Name::F5)));
}

TEST(AccessKey, IsTheMarkedCharacterOfACaption) {
  EXPECT_EQ(AccessKey("存盘(&S)"), U'S');
  EXPECT_EQ(AccessKey("&open"), U'O');
  EXPECT_EQ(AccessKey("A && B"), 0u);
  EXPECT_EQ(AccessKey("A && &B"), U'B');
  EXPECT_EQ(AccessKey("客户&"), 0u);
  EXPECT_EQ(AccessKey(""), 0u);
  EXPECT_EQ(ShownCaption("存盘(&S)"), "存盘(S)");
  EXPECT_EQ(ShownCaption("A && B&"), "A & B");
}

TEST(AccessKey, ClicksTheButtonThatBearsIt) {
  Screen screen;
  int clicks = 0;
  screen.check.onClick = [&] { ++clicks; };
  EXPECT_TRUE(screen.UserKey(ParseKey("Alt+k").value()));
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(screen.check.Value(), 1);
  EXPECT_EQ(screen.Focused(), &screen.check);
}

TEST(AccessKey, OfALabelGoesToTheControlAfterIt) {
  Screen screen;
  screen.Keys({"Alt+N"});
  EXPECT_EQ(screen.Focused(), &screen.text);
}

TEST(AccessKey, PrefersTheControlInTheContainerOfTheFocus) {
  Screen screen;
  std::string clicked;
  screen.button.onClick = [&] { clicked += "outer "; };
  screen.inner_button.onClick = [&] { clicked += "inner "; };
  screen.SetFocus(screen.inner_text);
  screen.Keys({"Alt+S"});
  screen.SetFocus(screen.text);
  screen.Keys({"Alt+S"});
  EXPECT_EQ(clicked, "inner outer ");
}

TEST(AccessKey, CyclesAmongControlsThatShareIt) {
  Screen screen;
  screen.button.SetCaption("A(&P)");
  screen.check.SetCaption("B(&P)");
  screen.inner_button.SetCaption("C(&P)");
  screen.SetFocus(screen.text);
  std::string walked;
  for (int i = 0; i < 3; ++i) {
    screen.Keys({"Alt+P"});
    walked += screen.Focused()->Name() + " ";
    if (screen.Focused() == &screen.inner_button) screen.SetFocus(screen.tabs);
  }
  EXPECT_EQ(walked, "check button inner_button ");
}

TEST(AccessKey, PassesOverDisabledAndHiddenControls) {
  Screen screen;
  screen.button.SetEnabled(false);
  int clicks = 0;
  screen.inner_button.onClick = [&] { ++clicks; };
  screen.SetFocus(screen.text);
  screen.Keys({"Alt+S"});
  EXPECT_EQ(clicks, 1);
  screen.frame.SetVisible(false);
  EXPECT_FALSE(screen.UserKey(ParseKey("Alt+S").value()));
}

TEST(AccessKey, ReachesAMenuEntryAndLeavesTheFocus) {
  Screen screen;
  screen.menu.SetVisible(false);  // a pop-up menu
  screen.entry.SetCaption("联系(&T)");
  int clicks = 0;
  screen.entry.onClick = [&] { ++clicks; };
  screen.SetFocus(screen.text);
  screen.Keys({"Alt+T"});
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(screen.Focused(), &screen.text);
}

TEST(AccessKey, ValidatesTheFieldThatIsLeft) {
  Screen screen;
  int clicks = 0;
  screen.button.onClick = [&] { ++clicks; };
  screen.text.onValidate = [](bool& cancel) { cancel = true; };
  screen.SetFocus(screen.text);
  screen.Keys({"Alt+S"});
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(screen.Focused(), &screen.text);
}

}  // namespace
}  // namespace qvzj::ui
