#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/platform/ui/screen.h"

namespace qvzj::ui {
namespace {

TEST(Focus, GoesFromTheLeftFieldToTheEnteredOne) {
  Screen screen;
  std::string log;
  screen.text.onLostFocus = [&] { log += "lost "; };
  screen.memo.onGotFocus = [&] { log += "got "; };
  screen.UserFocus(screen.text);
  EXPECT_TRUE(screen.UserFocus(screen.memo));
  EXPECT_EQ(screen.Focused(), &screen.memo);
  EXPECT_EQ(log, "lost got ");
  EXPECT_EQ(screen.Told(screen.memo, Aspect::Focus), 1);
}

TEST(Focus, LeavesNoSelectionBehindInAField) {
  Screen screen;
  screen.text.SetText("202403PZ00001");
  screen.text.onGotFocus = [&] { screen.text.SelectAll(); };
  screen.SetFocus(screen.text);
  screen.SetFocus(screen.button);
  EXPECT_EQ(screen.text.SelLength(), 0);
}

TEST(Focus, IsGivenUnaskedToAButtonThatGivesUpWhatTheFieldHolds) {
  Screen screen;
  int checks = 0;
  bool pressed = false;
  screen.text.onValidate = [&](bool& cancel) {
    ++checks;
    cancel = true;
  };
  screen.button.onClick = [&] { pressed = true; };
  screen.button.SetCausesValidation(false);
  screen.SetFocus(screen.text);
  EXPECT_TRUE(screen.UserClick(screen.button));
  EXPECT_TRUE(pressed);
  EXPECT_EQ(checks, 0);
}

TEST(Focus, StaysInAFieldOutsideTheContainerOfAButtonThatGivesUp) {
  Screen screen;
  screen.text.onValidate = [](bool& cancel) { cancel = true; };
  screen.inner_button.SetCausesValidation(false);
  screen.SetFocus(screen.text);
  ASSERT_NE(screen.inner_button.Container(), screen.text.Container());
  EXPECT_FALSE(screen.UserClick(screen.inner_button));
  EXPECT_EQ(screen.Focused(), &screen.text);
}

TEST(Focus, StaysInAFieldThatFailsValidation) {
  Screen screen;
  screen.text.onValidate = [](bool& cancel) { cancel = true; };
  screen.UserFocus(screen.text);
  EXPECT_FALSE(screen.UserFocus(screen.memo));
  EXPECT_EQ(screen.Focused(), &screen.text);
  EXPECT_FALSE(screen.SendTab());
  EXPECT_EQ(screen.Focused(), &screen.text);
}

TEST(Focus, AClickDoesNotHappenWhenTheFieldThatIsLeftFailsValidation) {
  Screen screen;
  int clicks = 0;
  screen.button.onClick = [&] { ++clicks; };
  screen.text.onValidate = [](bool& cancel) { cancel = true; };
  screen.UserFocus(screen.text);
  EXPECT_FALSE(screen.UserClick(screen.button));
  EXPECT_EQ(clicks, 0);
}

TEST(Focus, ValidatesNothingWhenTheProgramMovesIt) {
  Screen screen;
  int validations = 0;
  screen.text.onValidate = [&](bool& cancel) {
    ++validations;
    cancel = true;
  };
  screen.UserFocus(screen.text);
  screen.SetFocus(screen.memo);
  EXPECT_EQ(screen.Focused(), &screen.memo);
  EXPECT_EQ(validations, 0);
}

TEST(Focus, IsNotValidatedAgainByABoxThatTheValidationShows) {
  Screen screen;
  int validations = 0;
  screen.text.onValidate = [&](bool& cancel) {
    ++validations;
    cancel = true;
    EXPECT_FALSE(screen.UserFocus(screen.memo));  // the box takes the window's focus away and back
  };
  screen.UserFocus(screen.text);
  screen.UserFocus(screen.memo);
  EXPECT_EQ(validations, 1);
}

TEST(Focus, DoesNotEnterAHiddenOrDisabledControl) {
  Screen screen;
  screen.memo.SetEnabled(false);
  screen.frame.SetVisible(false);
  EXPECT_FALSE(screen.UserFocus(screen.memo));
  EXPECT_FALSE(screen.UserFocus(screen.inner_text));
  EXPECT_FALSE(screen.UserFocus(screen.date));  // on a page that is covered
  EXPECT_FALSE(screen.UserFocus(screen.label));
  screen.SetFocus(screen.memo);
  EXPECT_EQ(screen.Focused(), nullptr);
}

TEST(Focus, LeavesAControlThatIsDisabledForTheNextInTabOrder) {
  Screen screen;
  screen.SetFocus(screen.text);
  screen.text.SetEnabled(false);
  EXPECT_EQ(screen.Focused(), &screen.memo);
}

TEST(Focus, LeavesAHiddenContainer) {
  Screen screen;
  screen.SetFocus(screen.inner_text);
  screen.frame.SetVisible(false);
  EXPECT_EQ(screen.Focused(), &screen.tabs);
}

TEST(Focus, LeavesAPageThatIsCovered) {
  Screen screen;
  screen.SetFocus(screen.grid);
  screen.tabs.SetTab(1);
  EXPECT_EQ(screen.Focused(), &screen.date);
}

TEST(Focus, StaysInAControlThatAnActHidesAndShowsAgain) {
  Screen screen;
  int moves = 0;
  screen.grid.onLostFocus = [&] { ++moves; };
  screen.grid.onKeyPress = [&](int&) {
    screen.grid.SetVisible(false);
    screen.grid.SetVisible(true);
  };
  screen.SetFocus(screen.grid);
  screen.Keys({"Enter"});
  EXPECT_EQ(screen.Focused(), &screen.grid);
  EXPECT_EQ(moves, 0);
}

TEST(Focus, LeavesAtTheEndOfAnActWhatTheActHid) {
  Screen screen;
  screen.button.onClick = [&] { screen.button.SetVisible(false); };
  screen.UserClick(screen.button);
  EXPECT_EQ(screen.Focused(), &screen.inner_text);
}

TEST(TabOrder, WalksTheControlsInTheirOrderAndAround) {
  Screen screen;
  std::vector<std::string> walked;
  for (int i = 0; i < 10; ++i) {
    screen.Keys({"Tab"});
    walked.push_back(screen.Focused()->FullName());
  }
  EXPECT_EQ(walked,
            (std::vector<std::string>{"text", "memo", "combo", "check", "option(0)", "button",
                                      "inner_text", "inner_button", "tabs", "grid"}));
  screen.Keys({"Tab"});
  EXPECT_EQ(screen.Focused(), &screen.text);
  screen.Keys({"Shift+Tab"});
  EXPECT_EQ(screen.Focused(), &screen.grid);
}

TEST(TabOrder, FollowsTheTabIndex) {
  Screen screen;
  screen.button.SetTabIndex(screen.text.TabIndex());
  screen.text.SetTabIndex(100);
  screen.SetFocus(screen.button);
  screen.SendTab();
  EXPECT_EQ(screen.Focused(), &screen.memo);
}

TEST(TabOrder, LeavesOutControlsThatAreNoTabStopOrCannotTakeTheFocus) {
  Screen screen;
  screen.memo.SetTabStop(false);
  screen.combo.SetEnabled(false);
  screen.SetFocus(screen.text);
  screen.SendTab();
  EXPECT_EQ(screen.Focused(), &screen.check);
}

TEST(TabOrder, StopsAtTheSelectedOptionOfAGroup) {
  Screen screen;
  screen.option(2).Select();
  screen.SetFocus(screen.check);
  screen.SendTab();
  EXPECT_EQ(screen.Focused(), &screen.option(2));
  screen.SendTab();
  EXPECT_EQ(screen.Focused(), &screen.button);
  screen.SendTab(true);
  screen.SendTab(true);
  EXPECT_EQ(screen.Focused(), &screen.check);
}

TEST(TabOrder, StopsAtTheFirstOptionThatCanTakeTheFocusWhileNoneIsSelected) {
  Screen screen;
  screen.option(0).SetEnabled(false);
  screen.SetFocus(screen.check);
  screen.SendTab();
  EXPECT_EQ(screen.Focused(), &screen.option(1));
}

TEST(TabOrder, StaysWhereTheValidationHandlerPutsTheFocus) {
  Screen screen;
  screen.text.onValidate = [&](bool&) { screen.SetFocus(screen.button); };
  screen.SetFocus(screen.text);
  screen.Keys({"Tab"});
  EXPECT_EQ(screen.Focused(), &screen.button);
}

TEST(Guard, ReportsAnErrorThatEscapesAHandlerAndGoesOn) {
  Screen screen;
  screen.button.onClick = [] { throw std::runtime_error("no such table"); };
  EXPECT_FALSE(screen.UserClick(screen.button));
  EXPECT_EQ(screen.errors, std::vector<std::string>{"no such table"});
  EXPECT_TRUE(screen.UserFocus(screen.text));
}

TEST(Guard, ReportsWhatIsNoStandardException) {
  Screen screen;
  screen.button.onClick = [] { throw 7; };
  EXPECT_FALSE(screen.UserClick(screen.button));
  EXPECT_EQ(screen.errors.size(), 1u);
}

TEST(Guard, LetsAnErrorOfANestedActEndTheOuterOne) {
  Screen screen;
  bool went_on = false;
  screen.inner_button.onClick = [] { throw std::runtime_error("inner"); };
  screen.button.onClick = [&] {
    screen.UserClick(screen.inner_button);
    went_on = true;
  };
  screen.UserClick(screen.button);
  EXPECT_FALSE(went_on);
  EXPECT_EQ(screen.errors, std::vector<std::string>{"inner"});
}

TEST(Guard, SurvivesAReportThatFails) {
  Screen screen;
  screen.onError = [](const std::exception&) { throw std::runtime_error("no display"); };
  screen.button.onClick = [] { throw std::runtime_error("first"); };
  EXPECT_FALSE(screen.UserClick(screen.button));
}

TEST(Unload, IsRaisedOnceAndTellsTheFrontEnds) {
  Screen screen;
  int unloads = 0;
  screen.onUnload = [&] { ++unloads; };
  screen.UserClose();
  screen.Unload();
  EXPECT_EQ(unloads, 1);
  EXPECT_EQ(screen.form_changes, std::vector<Aspect>{Aspect::Closed});
  EXPECT_FALSE(screen.Loaded());
}

TEST(Unload, ByTheUserWaitsForWhoeverObjects) {
  Screen screen;
  bool objects = true;
  int asked = 0;
  screen.SetLoaded(true);
  screen.onQueryClose = [&](bool& cancel) {
    ++asked;
    cancel = objects;
  };
  screen.UserClose();
  EXPECT_TRUE(screen.Loaded());
  objects = false;
  screen.UserClose();
  EXPECT_FALSE(screen.Loaded());
  EXPECT_EQ(asked, 2);
}

TEST(Unload, ByTheHostAsksNobody) {
  Screen screen;
  screen.SetLoaded(true);
  screen.onQueryClose = [](bool& cancel) { cancel = true; };
  screen.Close();
  EXPECT_FALSE(screen.Loaded());
}

TEST(Unload, WorksWhileAFieldFailsValidation) {
  Screen screen;
  screen.text.onValidate = [](bool& cancel) { cancel = true; };
  bool unloaded = false;
  screen.onUnload = [&] { unloaded = true; };
  screen.SetFocus(screen.text);
  screen.UserClose();
  EXPECT_TRUE(unloaded);
}

TEST(Unload, ByItsOwnButtonWorksWhileAFieldFailsValidation) {
  Screen screen;
  screen.text.onValidate = [](bool& cancel) { cancel = true; };
  screen.button.SetCausesValidation(false);
  screen.button.onClick = [&] { screen.Unload(); };
  screen.SetFocus(screen.text);
  EXPECT_TRUE(screen.UserClick(screen.button));
  EXPECT_FALSE(screen.Loaded());
}

TEST(Unload, ByItsOwnButtonNeedsTheButtonToBeThere) {
  Screen screen;
  int clicks = 0;
  screen.button.SetCausesValidation(false);
  screen.button.onClick = [&] { ++clicks; };
  screen.button.SetEnabled(false);
  EXPECT_FALSE(screen.UserClick(screen.button));
  EXPECT_FALSE(screen.UserPress(screen.button, 0, 0));
  EXPECT_EQ(clicks, 0);
}

TEST(Unload, EndsTheActThatWasUnderWay) {
  Screen screen;
  int clicks = 0;
  screen.button.onMouseDown = [&](int32_t, int32_t) { screen.Unload(); };
  screen.button.onClick = [&] { ++clicks; };
  EXPECT_TRUE(screen.UserPress(screen.button, 10, 10));
  EXPECT_EQ(clicks, 0);
  EXPECT_FALSE(screen.UserClick(screen.button));  // a closed form takes no acts
}

TEST(Unload, MayDestroyTheFormInTheMiddleOfAnAct) {
  auto screen = std::make_unique<Screen>();
  Screen& form = *screen;
  form.onUnload = [&] { screen.reset(); };
  form.inner_button.onLostFocus = [&] { form.Unload(); };
  form.SetFocus(form.inner_button);
  EXPECT_TRUE(form.UserFocus(form.text));
  EXPECT_EQ(screen, nullptr);
}

TEST(Unload, MayDestroyTheFormWhileTheProgramMovesTheFocus) {
  auto screen = std::make_unique<Screen>();
  Screen& form = *screen;
  form.onUnload = [&] { screen.reset(); };
  form.text.onGotFocus = [&] { form.Unload(); };
  form.SetFocus(form.text);
  EXPECT_EQ(screen, nullptr);
}

TEST(Unload, IsUndoneByLoadingAgain) {
  Screen screen;
  screen.Unload();
  screen.SetLoaded(true);
  EXPECT_TRUE(screen.UserFocus(screen.text));
}

}  // namespace
}  // namespace qvzj::ui
