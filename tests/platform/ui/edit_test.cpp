#include <gtest/gtest.h>

#include "platform/basic/text.h"
#include "tests/platform/ui/screen.h"

namespace qvzj::ui {
namespace {

TEST(TextBox, TakesTypedCharactersOfAnyScript) {
  Screen screen;
  std::vector<int> keys;
  int changes = 0;
  screen.text.onKeyPress = [&](int& key) { keys.push_back(key); };
  screen.text.onChange = [&] { ++changes; };
  screen.SetFocus(screen.text);
  screen.Type(U"张 𠮷");
  EXPECT_EQ(screen.text.Text(), "张 𠮷");
  EXPECT_EQ(keys, (std::vector<int>{U'张', U' ', U'𠮷'}));
  EXPECT_EQ(changes, 3);
}

TEST(TextBox, LeavesOutAKeyThatTheHandlerDrops) {
  Screen screen;
  screen.text.onKeyPress = [](int& key) {
    if (key >= '0' && key <= '9') key = 0;
  };
  screen.SetFocus(screen.text);
  screen.Type(U"a1b2");
  EXPECT_EQ(screen.text.Text(), "ab");
}

TEST(TextBox, PutsInWhatTheHandlerMadeOfTheKey) {
  Screen screen;
  screen.text.onKeyPress = [](int& key) {
    if (key >= 'a' && key <= 'z') key -= 'a' - 'A';
  };
  screen.SetFocus(screen.text);
  screen.Type(U"rmb");
  EXPECT_EQ(screen.text.Text(), "RMB");
}

TEST(TextBox, RunsEveryInsertionThroughTheEditHandler) {
  Screen screen;
  screen.text.onEdit = [](std::string& inserted) { inserted = inserted.substr(0, 1); };
  screen.SetFocus(screen.text);
  screen.clipboard = "xyz";
  screen.Type(U"a");
  screen.Keys({"Ctrl+V"});
  screen.UserInsert(screen.text, "mno");
  screen.UserEdited(screen.text, "axmpqr", 6);
  EXPECT_EQ(screen.text.Text(), "axmp");
}

TEST(TextBox, KeepsTheSelectionWhenTheInsertionIsRefused) {
  Screen screen;
  screen.text.SetText("abc");
  screen.text.SelectAll();
  screen.text.onEdit = [](std::string& inserted) { inserted.clear(); };
  screen.SetFocus(screen.text);
  screen.Type(U"x");
  EXPECT_EQ(screen.text.Text(), "abc");
  EXPECT_EQ(screen.text.SelLength(), 3);
}

TEST(TextBox, ReplacesTheSelectionCountedInCharacters) {
  Screen screen;
  screen.text.SetText("客户往来帐");
  screen.SetFocus(screen.text);
  screen.UserSelect(screen.text, 2, 2);
  screen.Type(U"总");
  EXPECT_EQ(screen.text.Text(), "客户总帐");
  EXPECT_EQ(screen.text.SelStart(), 3);
  EXPECT_EQ(screen.text.SelLength(), 0);
}

TEST(TextBox, CutsASelectionToItsText) {
  Screen screen;
  screen.text.SetText("abc");
  screen.text.Select(2, 10);
  EXPECT_EQ(screen.text.SelLength(), 1);
  screen.text.Select(-5, 2);
  EXPECT_EQ(screen.text.SelStart(), 0);
  screen.text.Select(9, 1);
  EXPECT_EQ(screen.text.SelStart(), 3);
}

TEST(TextBox, DeletesTheCharacterBeforeOrBehindTheCaret) {
  Screen screen;
  screen.text.SetText("一二三四");
  screen.SetFocus(screen.text);
  screen.Keys({"Delete", "End", "Backspace"});
  EXPECT_EQ(screen.text.Text(), "二三");
  screen.Keys({"Delete", "Home", "Backspace"});
  EXPECT_EQ(screen.text.Text(), "二三");
}

TEST(TextBox, MovesAndSelectsWithTheKeyboard) {
  Screen screen;
  screen.text.SetText("abcd");
  screen.SetFocus(screen.text);
  screen.Keys({"Right", "Shift+Right", "Shift+Right"});
  EXPECT_EQ(screen.text.SelText(), "bc");
  screen.Keys({"Shift+Left"});
  EXPECT_EQ(screen.text.SelText(), "b");
  screen.Keys({"Left"});
  EXPECT_EQ(screen.text.SelStart(), 1);
  screen.Keys({"Shift+End", "Right", "Shift+Home"});
  EXPECT_EQ(screen.text.SelText(), "abcd");
  EXPECT_EQ(screen.text.Caret(), 0);
}

TEST(TextBox, CopiesCutsAndPastes) {
  Screen screen;
  screen.text.SetText("票号");
  screen.SetFocus(screen.text);
  screen.Keys({"Ctrl+A", "Ctrl+C", "End", "Ctrl+V"});
  EXPECT_EQ(screen.text.Text(), "票号票号");
  screen.Keys({"Ctrl+A", "Ctrl+X"});
  EXPECT_EQ(screen.text.Text(), "");
  EXPECT_EQ(screen.clipboard, "票号票号");
}

TEST(TextBox, AsksTheKeyHandlerBeforeItPastes) {
  Screen screen;
  int seen = 0;
  screen.text.onKeyPress = [&](int& key) {
    seen = key;
    key = 0;
  };
  screen.clipboard = "x";
  screen.SetFocus(screen.text);
  screen.Keys({"Ctrl+V"});
  EXPECT_EQ(seen, kKeyCtrlV);
  EXPECT_EQ(screen.text.Text(), "");
}

TEST(TextBox, OfOneLineTakesNoLineBreaks) {
  Screen screen;
  screen.clipboard = "a\r\nb\nc\rd";
  screen.SetFocus(screen.text);
  screen.Keys({"Ctrl+V", "Enter"});
  EXPECT_EQ(screen.text.Text(), "abcd");
}

TEST(TextBox, OfSeveralLinesKeepsLineBreaksInOneForm) {
  Screen screen;
  screen.memo.SetMultiLine(true);
  screen.memo.SetText("a\r\nb");
  EXPECT_EQ(screen.memo.Text(), "a\nb");
  screen.clipboard = "1\r\n2";
  screen.SetFocus(screen.memo);
  screen.Keys({"Ctrl+V", "Enter"});
  EXPECT_EQ(screen.memo.Text(), "1\n2\na\nb");
}

TEST(TextBox, OfSeveralLinesIsWalkedLineByLine) {
  Screen screen;
  screen.memo.SetMultiLine(true);
  screen.memo.SetText("客户一\n二\n联系人三");
  screen.SetFocus(screen.memo);
  screen.Keys({"End"});
  EXPECT_EQ(screen.memo.SelStart(), 3);
  screen.Keys({"Down"});
  EXPECT_EQ(screen.memo.SelStart(), 5);
  screen.Keys({"Down", "End"});
  EXPECT_EQ(screen.memo.SelStart(), 10);
  screen.Keys({"Home", "Up"});
  EXPECT_EQ(screen.memo.SelStart(), 4);
  screen.Keys({"Ctrl+End"});
  EXPECT_EQ(screen.memo.SelStart(), 10);
  screen.Keys({"Down", "Ctrl+Home", "Up"});
  EXPECT_EQ(screen.memo.SelStart(), 0);
}

TEST(TextBox, RefusesEveryEditWhileLockedButCopies) {
  Screen screen;
  screen.text.SetText("abc");
  screen.text.SetLocked(true);
  screen.SetFocus(screen.text);
  screen.Keys({"Ctrl+A", "Ctrl+C"});
  EXPECT_EQ(screen.clipboard, "abc");
  screen.Keys({"x", "Delete", "Backspace", "Ctrl+X", "Ctrl+V", "Esc"});
  EXPECT_FALSE(screen.UserInsert(screen.text, "y"));
  EXPECT_FALSE(screen.UserEdited(screen.text, "abcd", 4));
  EXPECT_EQ(screen.text.Text(), "abc");
}

TEST(TextBox, StillSeesKeysWhileLocked) {
  Screen screen;
  screen.text.SetLocked(true);
  screen.text.onKeyPress = [&](int& key) {
    if (key == kKeyEnter) screen.SendTab();
  };
  screen.SetFocus(screen.text);
  screen.Keys({"Enter"});
  EXPECT_EQ(screen.Focused(), &screen.memo);
}

TEST(TextBox, GoesBackWithEscToTheTextTheFocusFound) {
  Screen screen;
  screen.text.SetText("12.50");
  screen.SetFocus(screen.text);
  screen.Keys({"End"});
  screen.Type(U"'x");
  screen.Keys({"Esc"});
  EXPECT_EQ(screen.text.Text(), "12.50");
  EXPECT_EQ(screen.text.SelLength(), 5);
}

TEST(TextBox, GoesBackWithEscToTheTextTheProgramSetLast) {
  Screen screen;
  screen.SetFocus(screen.text);
  screen.Type(U"a");
  screen.text.SetText("0.00");
  screen.Type(U"7");
  screen.Keys({"Esc"});
  EXPECT_EQ(screen.text.Text(), "0.00");
}

TEST(TextBox, IsLeftAfterEscThoughItFailedItsCheck) {
  Screen screen;
  screen.text.onValidate = [&](bool& cancel) {
    cancel = screen.text.Text().find('\'') != std::string::npos;
  };
  screen.SetFocus(screen.text);
  screen.Type(U"O'Neill");
  EXPECT_FALSE(screen.UserFocus(screen.memo));
  screen.Keys({"Esc"});
  EXPECT_TRUE(screen.UserFocus(screen.memo));
  EXPECT_EQ(screen.text.Text(), "");
}

TEST(TextBox, RaisesNoUserEventWhenTheProgramSetsIt) {
  Screen screen;
  int events = 0;
  screen.text.onChange = [&] { ++events; };
  screen.text.onEdit = [&](std::string&) { ++events; };
  screen.text.SetText("x");
  EXPECT_EQ(events, 0);
  EXPECT_EQ(screen.Told(screen.text, Aspect::Text), 1);
  screen.text.SetText("x");
  EXPECT_EQ(screen.Told(screen.text, Aspect::Text), 1);
}

TEST(TextBox, MayBeSetByItsOwnChangeHandler) {
  Screen screen;
  screen.text.onChange = [&] { screen.text.SetText("set"); };
  screen.SetFocus(screen.text);
  screen.Type(U"a");
  EXPECT_EQ(screen.text.Text(), "set");
}

TEST(NativeEdit, IsFoundAsOneReplacement) {
  const Replacement typed = FindReplacement("往来帐", "往来总帐", 3);
  EXPECT_EQ(typed.start, 2);
  EXPECT_EQ(typed.length, 0);
  EXPECT_EQ(typed.inserted, "总");
  const Replacement removed = FindReplacement("aaa", "aa", 1);
  EXPECT_EQ(removed.start, 1);
  EXPECT_EQ(removed.length, 1);
  EXPECT_EQ(removed.inserted, "");
  const Replacement doubled = FindReplacement("aa", "aaa", 1);
  EXPECT_EQ(doubled.start, 0);
  EXPECT_EQ(doubled.inserted, "a");
  const Replacement all = FindReplacement("abc", "xyz", 3);
  EXPECT_EQ(all.start, 0);
  EXPECT_EQ(all.length, 3);
  const Replacement none = FindReplacement("abc", "abc", 99);
  EXPECT_EQ(none.length, 0);
  EXPECT_EQ(none.inserted, "");
}

TEST(NativeEdit, ChangesTheBoxAndItsCaret) {
  Screen screen;
  screen.text.SetText("往来帐");
  EXPECT_TRUE(screen.UserEdited(screen.text, "往来总帐", 3));
  EXPECT_EQ(screen.text.Text(), "往来总帐");
  EXPECT_EQ(screen.text.Caret(), 3);
  EXPECT_EQ(screen.Focused(), &screen.text);
}

TEST(NativeEdit, IsMirroredBackWhenItWasRefused) {
  Screen screen;
  screen.text.SetText("ab");
  screen.text.onEdit = [](std::string& inserted) { inserted.clear(); };
  screen.SetFocus(screen.text);
  screen.changes.clear();
  screen.UserEdited(screen.text, "abc", 3);
  EXPECT_EQ(screen.text.Text(), "ab");
  EXPECT_EQ(screen.Told(screen.text, Aspect::Text), 1);
}

TEST(ComboBox, ShowsATextThatIsNotInItsList) {
  Screen screen;
  screen.combo.SetItems({"张三", "李四"});
  screen.combo.SetText("李四");
  EXPECT_EQ(screen.combo.ListIndex(), 1);
  screen.combo.SetText("王五");
  EXPECT_EQ(screen.combo.ListIndex(), -1);
  EXPECT_EQ(screen.combo.Text(), "王五");
}

TEST(ComboBox, FollowsTheTextThatTheUserTypes) {
  Screen screen;
  screen.combo.SetItems({"ab", "b"});
  screen.combo.SetEditable(true);
  int clicks = 0;
  screen.combo.onClick = [&] { ++clicks; };
  screen.SetFocus(screen.combo);
  screen.Type(U"ab");
  EXPECT_EQ(screen.combo.ListIndex(), 0);
  screen.Keys({"Backspace"});
  EXPECT_EQ(screen.combo.ListIndex(), -1);
  EXPECT_EQ(screen.combo.Text(), "a");
  EXPECT_EQ(clicks, 0);
  screen.Keys({"Down"});
  EXPECT_EQ(screen.combo.Text(), "ab");
  EXPECT_EQ(clicks, 1);
}

TEST(ComboBox, HidesWhatAnItemCarriesBehindItsShownLength) {
  Screen screen;
  const std::string item = basic::Pad("工商银行", 40) + "17";
  screen.combo.SetItems({item});
  screen.combo.SetShownLength(40);
  screen.combo.SetListIndex(0);
  EXPECT_EQ(screen.combo.Text(), item);
  EXPECT_EQ(screen.combo.Shown(screen.combo.Text()), "工商银行");
}

TEST(ComboBox, RefusesAnItemThatIsNotThere) {
  Screen screen;
  screen.combo.SetItems({"a"});
  EXPECT_THROW(screen.combo.SetListIndex(1), std::out_of_range);
  EXPECT_FALSE(screen.UserChoose(screen.combo, 1));
  EXPECT_FALSE(screen.UserChoose(screen.combo, -1));
  screen.combo.SetClearable(true);
  EXPECT_TRUE(screen.UserChoose(screen.combo, 0));
  EXPECT_TRUE(screen.UserChoose(screen.combo, -1));
  EXPECT_EQ(screen.combo.Text(), "");
}

TEST(ComboBox, KeepsItsChoiceWhenTheHandlerObjects) {
  Screen screen;
  screen.combo.SetItems({"a", "b"});
  screen.combo.SetListIndex(0);
  int clicks = 0;
  int32_t wanted = -1;
  screen.combo.onClick = [&] { ++clicks; };
  screen.combo.onChoosing = [&](int32_t index, bool& cancel) {
    wanted = index;
    cancel = true;
  };
  screen.changes.clear();
  EXPECT_FALSE(screen.UserChoose(screen.combo, 1));
  screen.Keys({"Down"});
  EXPECT_EQ(wanted, 1);
  EXPECT_EQ(screen.combo.Text(), "a");
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(screen.Told(screen.combo, Aspect::Value), 2);  // a native list shows the old one again
}

TEST(ComboBox, LosesItsChoiceWithItsList) {
  Screen screen;
  screen.combo.SetItems({"a"});
  screen.combo.SetListIndex(0);
  screen.combo.SetItems({"a", "b"});
  EXPECT_EQ(screen.combo.ListIndex(), -1);
  EXPECT_EQ(screen.combo.Text(), "");
}

}  // namespace
}  // namespace qvzj::ui
