#include "platform/basic/date.h"

#include <gtest/gtest.h>

namespace qvzj::basic {
namespace {

TEST(Date, IsKeptAsDaysSinceTheEndOf1899) {
  EXPECT_EQ(Date::FromYmd(1899, 12, 30).serial, 0);
  EXPECT_EQ(Date::FromYmd(1900, 1, 1).serial, 2);
  EXPECT_EQ(Date::FromYmd(2024, 1, 1).serial, 45292);
  EXPECT_LT(Date::FromYmd(1700, 1, 1), Date::FromYmd(1899, 12, 29));
}

TEST(Date, KnowsLeapYears) {
  const Date day{Date::FromYmd(2024, 2, 28).serial + 1};
  EXPECT_EQ(day.Month(), 2);
  EXPECT_EQ(day.Day(), 29);
  EXPECT_TRUE(ParseIso("2000-02-29"));
  EXPECT_FALSE(ParseIso("1900-02-29"));
  EXPECT_FALSE(ParseIso("2023-02-29"));
}

TEST(Date, IsWrittenInItsTwoForms) {
  const Date day = Date::FromYmd(2024, 3, 5);
  EXPECT_EQ(FormatIso(day), "2024-03-05");
  EXPECT_EQ(FormatMonthDayYear(day), "03/05/2024");
  EXPECT_EQ(FormatIso(Date::FromYmd(101, 1, 1)), "0101-01-01");
}

TEST(Date, IsReadWithOrWithoutATimeOfDay) {
  const Date day = Date::FromYmd(2024, 3, 5);
  EXPECT_EQ(ParseIso("2024-03-05"), day);
  EXPECT_EQ(ParseIso("2024-3-5"), day);
  EXPECT_EQ(ParseIso("2024/03/05"), day);
  EXPECT_EQ(ParseIso("2024-03-05 13:30:00"), day);
  EXPECT_EQ(ParseIso("2024-03-05T13:30:00"), day);
  EXPECT_EQ(ParseMonthDayYear("03/05/2024"), day);
  EXPECT_EQ(ParseMonthDayYear("3-5-2024"), day);
}

TEST(Date, IsRefusedWhenThereIsNoSuchDay) {
  for (const char* text : {"", "2024", "2024-13-01", "2024-00-10", "2024-04-31", "24-01-01",
                           "2024-01-01x", "2024--1-01", "10000-01-01", "99999999999-1-1"}) {
    EXPECT_FALSE(ParseIso(text)) << text;
  }
  EXPECT_FALSE(ParseMonthDayYear("15/03/2024"));
  EXPECT_FALSE(ParseMonthDayYear("2024-03-05"));
}

TEST(Date, GoesRoundThroughItsSerialForFourCenturies) {
  for (int32_t serial = Date::FromYmd(1800, 1, 1).serial;
       serial <= Date::FromYmd(2200, 1, 1).serial; ++serial) {
    const Date day{serial};
    ASSERT_EQ(Date::FromYmd(day.Year(), day.Month(), day.Day()), day);
  }
}

}  // namespace
}  // namespace qvzj::basic
