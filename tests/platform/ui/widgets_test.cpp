#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/platform/ui/screen.h"

namespace qvzj::ui {
namespace {

TEST(Controls, AreFoundByNameAndIndex) {
  Screen screen;
  EXPECT_EQ(screen.Find("text"), &screen.text);
  EXPECT_EQ(screen.Find("option", 2), &screen.option(2));
  EXPECT_EQ(screen.FindFullName("option(1)"), &screen.option(1));
  EXPECT_EQ(screen.Find("option"), nullptr);
  EXPECT_EQ(screen.FindFullName("option(3)"), nullptr);
  EXPECT_EQ(screen.option(1).FullName(), "option(1)");
  EXPECT_EQ(screen.Controls().front(), &screen.label);
}

TEST(Controls, TellOnlyWhatChanged) {
  Screen screen;
  screen.text.SetEnabled(true);
  screen.text.SetVisible(true);
  screen.text.SetBounds({});
  screen.check.SetValue(0);
  screen.tabs.SetTab(0);
  screen.combo.SetListIndex(-1);
  screen.combo.SetItems({});
  screen.text.SetLocked(false);
  screen.option(0).SetCaption("");
  screen.grid.SetRowCount(0);
  screen.SetMousePointer(MousePointer::Default);
  EXPECT_TRUE(screen.changes.empty());
  screen.text.SetBounds({15, 15, 300, 285});
  screen.text.SetLocked(true);
  screen.tabs.SetTabCaption(1, "进帐");
  EXPECT_EQ(screen.changes.size(), 3u);
}

TEST(Controls, AreNamedForAssistiveTechnologyByTheirCaption) {
  Screen screen;
  EXPECT_EQ(screen.button.AccessibleName(), "存盘(S)");
  screen.button.SetAccessibleName("保存凭证");
  EXPECT_EQ(screen.button.AccessibleName(), "保存凭证");
}

TEST(Controls, AreHiddenAndDisabledWithTheirContainer) {
  Screen screen;
  screen.frame.SetEnabled(false);
  EXPECT_FALSE(screen.inner_button.Usable());
  EXPECT_TRUE(screen.inner_button.Enabled());
  screen.frame.SetVisible(false);
  EXPECT_FALSE(screen.inner_button.OnScreen());
  EXPECT_FALSE(screen.date.OnScreen());
  EXPECT_TRUE(screen.grid.OnScreen());
}

TEST(OptionButton, ExcludesTheOthersOfItsArray) {
  Screen screen;
  screen.option(0).Select();
  screen.option(2).Select();
  EXPECT_FALSE(screen.option(0).Selected());
  EXPECT_TRUE(screen.option(2).Selected());
  EXPECT_EQ(screen.Told(screen.option(0), Aspect::Value), 2);
  EXPECT_EQ(screen.Told(screen.option(1), Aspect::Value), 0);
}

TEST(OptionButton, RaisesItsClickOnlyForTheUser) {
  Screen screen;
  int clicks = 0;
  screen.option(1).onClick = [&] { ++clicks; };
  screen.option(1).Select();
  EXPECT_EQ(clicks, 0);
  EXPECT_TRUE(screen.UserClick(screen.option(1)));
  EXPECT_EQ(clicks, 1);
}

TEST(CheckBox, IsTickedByAClickWhenItWasClearAndClearedOtherwise) {
  Screen screen;
  screen.UserClick(screen.check);
  EXPECT_TRUE(screen.check.Ticked());
  screen.check.SetValue(2);
  EXPECT_FALSE(screen.check.Ticked());
  screen.UserClick(screen.check);
  EXPECT_EQ(screen.check.Value(), 0);
  EXPECT_THROW(screen.check.SetValue(3), std::out_of_range);
}

TEST(Button, RaisesThePressBeforeTheClick) {
  Screen screen;
  std::string log;
  screen.button.onMouseDown = [&](int32_t x, int32_t) { log += std::to_string(x) + " "; };
  screen.button.onClick = [&] { log += "click"; };
  EXPECT_TRUE(screen.UserPress(screen.button, 30, 0));
  EXPECT_EQ(log, "30 click");
}

TEST(Button, IsNotClickedWhileDisabled) {
  Screen screen;
  bool clicked = false;
  screen.button.onClick = [&] { clicked = true; };
  screen.button.SetEnabled(false);
  EXPECT_FALSE(screen.UserClick(screen.button));
  EXPECT_FALSE(screen.UserPress(screen.button, 0, 0));
  EXPECT_FALSE(clicked);
}

TEST(Label, CannotBeClicked) {
  Screen screen;
  EXPECT_FALSE(screen.UserClick(screen.label));
}

TEST(Menu, EntriesAreClickedWithoutMovingTheFocus) {
  Screen screen;
  bool clicked = false;
  screen.menu.SetVisible(false);
  screen.entry.onClick = [&] { clicked = true; };
  screen.SetFocus(screen.text);
  EXPECT_TRUE(screen.UserClick(screen.entry));
  EXPECT_TRUE(clicked);
  EXPECT_EQ(screen.Focused(), &screen.text);
  screen.entry.SetVisible(false);
  EXPECT_FALSE(screen.UserClick(screen.entry));
}

TEST(Menu, AnEntryWaitsForAFieldThatFailsItsCheck) {
  Screen screen;
  bool clicked = false;
  screen.entry.onClick = [&] { clicked = true; };
  screen.text.onValidate = [](bool& cancel) { cancel = true; };
  screen.SetFocus(screen.text);
  EXPECT_FALSE(screen.UserClick(screen.entry));
  EXPECT_FALSE(clicked);
}

TEST(Menu, SeparatorsCannotBeClicked) {
  Screen screen;
  screen.entry.SetCaption("-");
  EXPECT_FALSE(screen.UserClick(screen.entry));
}

TEST(Menu, IsPoppedUpByTheFrontEnd) {
  Screen screen;
  screen.PopUp(screen.menu, 100, 200);
  EXPECT_EQ(screen.popped_up, &screen.menu);
}

TEST(Tabs, AreTurnedByTheUserWithTheTabThatWasInFront) {
  Screen screen;
  int previous = -1;
  screen.tabs.onClick = [&](int tab) { previous = tab; };
  EXPECT_TRUE(screen.UserTab(screen.tabs, 2));
  EXPECT_EQ(previous, 0);
  EXPECT_EQ(screen.tabs.Tab(), 2);
  previous = -1;
  EXPECT_TRUE(screen.UserTab(screen.tabs, 2));
  EXPECT_EQ(previous, -1);
  EXPECT_FALSE(screen.UserTab(screen.tabs, 3));
  EXPECT_THROW(screen.tabs.SetTab(3), std::out_of_range);
}

TEST(Tabs, StayWhenTheFieldThatIsLeftFailsItsCheck) {
  Screen screen;
  screen.text.onValidate = [](bool& cancel) { cancel = true; };
  screen.SetFocus(screen.text);
  EXPECT_FALSE(screen.UserTab(screen.tabs, 1));
  EXPECT_EQ(screen.tabs.Tab(), 0);
}

TEST(ListBox, SelectsAndOpensItems) {
  Screen screen;
  screen.tabs.SetTab(2);
  screen.list.SetItems({"a", "b"});
  std::string log;
  screen.list.onClick = [&] { log += screen.list.Text(); };
  screen.list.onDblClick = [&] { log += "!"; };
  EXPECT_FALSE(screen.UserDoubleClick(screen.list));  // nothing is selected
  EXPECT_TRUE(screen.UserChoose(screen.list, 1));
  EXPECT_TRUE(screen.UserDoubleClick(screen.list));
  EXPECT_FALSE(screen.UserChoose(screen.list, 2));
  EXPECT_EQ(log, "b!");
}

TEST(DatePicker, RaisesItsChangeOnlyForAnotherDay) {
  Screen screen;
  screen.tabs.SetTab(1);
  int changes = 0;
  screen.date.onChange = [&] { ++changes; };
  const basic::Date day = basic::Date::FromYmd(2024, 2, 29);
  EXPECT_TRUE(screen.UserDate(screen.date, day));
  EXPECT_TRUE(screen.UserDate(screen.date, day));
  EXPECT_EQ(changes, 1);
  EXPECT_FALSE(screen.UserDate(screen.date, basic::Date::FromYmd(9999, 12, 31 + 1)));
}

TEST(Window, TellsItsNewSizeOnce) {
  Screen screen;
  int resizes = 0;
  screen.onResize = [&] { ++resizes; };
  screen.UserResize(12000, 8565, WindowState::Normal);
  screen.UserResize(12000, 8565, WindowState::Normal);
  EXPECT_EQ(resizes, 1);
  screen.UserResize(12000, 8565, WindowState::Maximised);
  EXPECT_EQ(resizes, 2);
  EXPECT_EQ(screen.GetWindowState(), WindowState::Maximised);
}

TEST(Observer, MayLeaveWhileItIsTold) {
  struct Leaving : FormObserver {
    void ControlChanged(Control& control, Aspect) override {
      ++told;
      control.GetForm().RemoveObserver(this);
    }
    void FormChanged(Form&, Aspect) override {}
    void PopUpMenu(Form&, MenuItem&, int32_t, int32_t) override {}
    int told = 0;
  } leaving;
  Screen screen;
  screen.AddObserver(&leaving);
  screen.text.SetText("a");
  screen.text.SetText("b");
  EXPECT_EQ(leaving.told, 1);
  EXPECT_EQ(screen.Told(screen.text, Aspect::Text), 2);
}

}  // namespace
}  // namespace qvzj::ui
