#include <gtest/gtest.h>

#include "tests/platform/ui/screen.h"

namespace qvzj::ui {
namespace {

/// The small screen with its date in front, on 15 March 2024.
struct DateScreen : Screen {
  DateScreen() {
    tabs.SetTab(1);
    date.SetValue(basic::Date::FromYmd(2024, 3, 15));
    date.onChange = [this] { ++changed; };
    changes.clear();
  }
  std::string Day() const { return basic::FormatIso(date.Value()); }
  std::string Shown() const { return date.Keyed().Shown(); }
  /// What a front end selects of the shown text.
  std::string Selected() const {
    return Shown().substr(static_cast<size_t>(date.Keyed().SelStart()),
                          static_cast<size_t>(date.Keyed().SelLength()));
  }

  int changed = 0;
};

TEST(KeyedDate, TakesDigitsAtOnceWhenTheProgramGaveTheFocus) {
  DateScreen screen;
  screen.SetFocus(screen.date);
  screen.Type(U"20261118");
  EXPECT_EQ(screen.Day(), "2026-11-18");
  EXPECT_EQ(screen.changed, 1);
  EXPECT_TRUE(screen.refused.empty());
}

TEST(KeyedDate, TakesDigitsAtOnceWhenTheUserCameByKeyOrMouse) {
  DateScreen screen;
  screen.SetFocus(screen.tabs);
  screen.Keys({"Tab"});
  ASSERT_EQ(screen.Focused(), &screen.date);
  screen.Type(U"20261118");
  EXPECT_EQ(screen.Day(), "2026-11-18");
  screen.UserFocus(screen.text);
  screen.UserFocus(screen.date);
  screen.Type(U"20250102");
  EXPECT_EQ(screen.Day(), "2025-01-02");
}

TEST(KeyedDate, BeginsAnewAfterCtrlA) {
  DateScreen screen;
  screen.SetFocus(screen.date);
  screen.Type(U"2025");
  screen.Keys({"Ctrl+A"});
  EXPECT_EQ(screen.Selected(), "2025");
  screen.Type(U"20261118");
  EXPECT_EQ(screen.Day(), "2026-11-18");
}

TEST(KeyedDate, BeginsAnewAfterAWholeDate) {
  DateScreen screen;
  screen.SetFocus(screen.date);
  screen.Type(U"2026111820261119");
  EXPECT_EQ(screen.Day(), "2026-11-19");
}

TEST(KeyedDate, ShowsWhatIsTypedBeforeItBecomesTheValue) {
  DateScreen screen;
  screen.SetFocus(screen.date);
  EXPECT_EQ(screen.Selected(), "2024");
  screen.Type(U"202");
  EXPECT_EQ(screen.Shown(), "202-03-15");
  EXPECT_EQ(screen.date.Keyed().SelStart(), 3);
  EXPECT_EQ(screen.Selected(), "");
  screen.Type(U"6");
  EXPECT_EQ(screen.Shown(), "2026-03-15");
  EXPECT_EQ(screen.Selected(), "03");
  EXPECT_EQ(screen.Day(), "2024-03-15");
  EXPECT_GE(screen.Told(screen.date, Aspect::Text), 4);
}

TEST(KeyedDate, BecomesTheValueWhenTheFieldIsLeft) {
  DateScreen screen;
  screen.SetFocus(screen.date);
  screen.Type(U"202611");
  screen.UserFocus(screen.text);
  EXPECT_EQ(screen.Day(), "2026-11-15");
  screen.SetFocus(screen.date);
  screen.Type(U"2027");
  screen.SetFocus(screen.text);
  EXPECT_EQ(screen.Day(), "2027-11-15");
  EXPECT_EQ(screen.changed, 2);
}

TEST(KeyedDate, IsReadyForAMenuEntryThatTakesNoFocus) {
  DateScreen screen;
  std::string seen;
  screen.entry.onClick = [&] { seen = screen.Day(); };
  screen.SetFocus(screen.date);
  screen.Type(U"2026");
  screen.UserClick(screen.entry);
  EXPECT_EQ(seen, "2026-03-15");
}

TEST(KeyedDate, IsGivenUpByAButtonThatGivesUpTheFields) {
  DateScreen screen;
  screen.button.SetCausesValidation(false);
  screen.SetFocus(screen.date);
  screen.Type(U"2026");
  screen.UserClick(screen.button);
  EXPECT_EQ(screen.Day(), "2024-03-15");
  EXPECT_EQ(screen.changed, 0);
}

TEST(KeyedDate, IsDroppedByEscAndByTheProgram) {
  DateScreen screen;
  screen.SetFocus(screen.date);
  screen.Type(U"2026");
  EXPECT_TRUE(screen.UserKey(Key::Named(Key::Name::Escape)));
  EXPECT_EQ(screen.Shown(), "2024-03-15");
  screen.Type(U"1");
  screen.date.SetValue(screen.date.Value());
  EXPECT_EQ(screen.Shown(), "2024-03-15");
  screen.UserFocus(screen.text);
  EXPECT_EQ(screen.changed, 0);
}

TEST(KeyedDate, TakesWhatPeoplePutBetweenTheParts) {
  for (const char32_t* typed : {U"2026-11-8", U"2026/1/8", U"2026.01.08", U"26-1-08",
                                U"2026年1月8日", U"２０２６０１０８"}) {
    DateScreen screen;
    screen.SetFocus(screen.date);
    screen.Type(typed);
    screen.UserFocus(screen.text);
    const bool november = std::u32string(typed) == U"2026-11-8";
    EXPECT_EQ(screen.Day(), november ? "2026-11-08" : "2026-01-08");
    EXPECT_TRUE(screen.refused.empty());
  }
}

TEST(KeyedDate, ReadsAYearOfTwoDigitsAsPeopleMeanIt) {
  DateScreen screen;
  screen.SetFocus(screen.date);
  screen.Type(U"29-");
  screen.UserFocus(screen.text);
  EXPECT_EQ(screen.Day(), "2029-03-15");
  screen.SetFocus(screen.date);
  screen.Type(U"30-");
  screen.UserFocus(screen.text);
  EXPECT_EQ(screen.Day(), "1930-03-15");
}

TEST(KeyedDate, RefusesKeysThatMakeNoDateAndKeepsWhatStoodThere) {
  DateScreen screen;
  screen.SetFocus(screen.date);
  const auto refuses = [&](const std::u32string& keys) {
    screen.refused.clear();
    for (const char32_t key : keys) {
      const std::string before = screen.Shown();
      screen.UserKey(Key::Character(key));
      if (screen.Shown() != before) return false;
    }
    return screen.refused == std::vector<Control*>(keys.size(), &screen.date);
  };
  EXPECT_TRUE(refuses(U"x-ü"));
  screen.Type(U"0");
  screen.Type(U"09");
  EXPECT_TRUE(refuses(U"9"));  // year 99
  screen.Keys({"Esc"});
  screen.Type(U"20260");
  EXPECT_TRUE(refuses(U"0"));  // month 0
  screen.Keys({"Backspace"});
  screen.Type(U"1");
  EXPECT_TRUE(refuses(U"3"));  // month 13
  screen.Keys({"Backspace"});
  screen.Type(U"023");
  EXPECT_TRUE(refuses(U"0"));  // 30 February
}

TEST(KeyedDate, TellsThatAPartWhichCannotBeOneWentBackToWhatItWas) {
  DateScreen screen;
  for (const char32_t* year : {U"2", U"202"}) {
    screen.refused.clear();
    screen.SetFocus(screen.date);
    screen.Type(year);
    screen.UserFocus(screen.text);
    EXPECT_EQ(screen.Day(), "2024-03-15");
    EXPECT_EQ(screen.refused.size(), 1u);
  }
}

TEST(KeyedDate, TakesTheEndOfAMonthThatIsShorter) {
  DateScreen screen;
  screen.date.SetValue(basic::Date::FromYmd(2024, 3, 31));
  screen.SetFocus(screen.date);
  screen.Keys({"Right", "0", "2"});
  screen.UserFocus(screen.text);
  EXPECT_EQ(screen.Day(), "2024-02-29");
}

TEST(KeyedDate, IsTypedPartByPartFromWhereTheArrowsLead) {
  DateScreen screen;
  screen.SetFocus(screen.date);
  screen.Keys({"Right", "Right", "Right"});
  EXPECT_EQ(screen.Selected(), "15");
  screen.Type(U"18");
  EXPECT_EQ(screen.Day(), "2024-03-18");
  screen.Type(U"19");  // the same part again
  EXPECT_EQ(screen.Day(), "2024-03-19");
  screen.Keys({"Home"});
  EXPECT_EQ(screen.Selected(), "2024");
  screen.Keys({"End", "Left"});
  EXPECT_EQ(screen.Selected(), "03");
  EXPECT_TRUE(screen.UserDatePart(screen.date, DatePart::Day));
  EXPECT_EQ(screen.Selected(), "19");
}

TEST(KeyedDate, TakesDigitsBackOverThePartsThatWereTyped) {
  DateScreen screen;
  screen.SetFocus(screen.date);
  screen.Type(U"20271");
  screen.Keys({"Backspace", "Backspace"});
  EXPECT_EQ(screen.Shown(), "202-03-15");
  screen.Type(U"61118");
  EXPECT_EQ(screen.Day(), "2026-11-18");
  screen.Keys({"Backspace"});
  EXPECT_EQ(screen.refused.size(), 1u);
}

TEST(KeyedDate, StepsFromWhatIsTyped) {
  DateScreen screen;
  screen.SetFocus(screen.date);
  screen.Type(U"20260430");
  screen.Keys({"Home"});
  screen.Type(U"2027");
  screen.Keys({"Up"});
  EXPECT_EQ(screen.Day(), "2027-05-01");
  screen.date.SetValue(basic::Date::FromYmd(9999, 12, 31));
  screen.Keys({"Up"});
  EXPECT_EQ(screen.Day(), "9999-12-31");
  EXPECT_EQ(screen.refused.size(), 1u);
}

TEST(KeyedDate, IsCopiedAndPasted) {
  DateScreen screen;
  screen.SetFocus(screen.date);
  screen.Keys({"Ctrl+C"});
  EXPECT_EQ(screen.clipboard, "2024-03-15");
  screen.clipboard = " 2026/11/18 ";
  screen.Keys({"Ctrl+V"});
  EXPECT_EQ(screen.Day(), "2026-11-18");
  for (const char* no_date : {"", "2026-11", "2026-02-30", "甲公司", "2026-11-18 12:00"}) {
    screen.refused.clear();
    screen.clipboard = no_date;
    screen.Keys({"Ctrl+V"});
    EXPECT_EQ(screen.Day(), "2026-11-18") << no_date;
    EXPECT_EQ(screen.refused.size(), 1u) << no_date;
  }
}

TEST(KeyedDate, IsLeftThoughItsChangeFails) {
  DateScreen screen;
  screen.date.onChange = [] { throw std::runtime_error("no connection"); };
  screen.SetFocus(screen.date);
  screen.Type(U"2026");
  EXPECT_FALSE(screen.UserFocus(screen.text));
  EXPECT_EQ(screen.errors.size(), 1u);
  EXPECT_TRUE(screen.UserFocus(screen.text));
  EXPECT_EQ(screen.Day(), "2026-03-15");
}

}  // namespace
}  // namespace qvzj::ui
