#include "suite/import/field_values.h"

#include <gtest/gtest.h>

namespace qvzj::imports {
namespace {

std::string Iso(std::string_view text, DateOrder order = DateOrder::Unknown) {
  std::string why;
  const auto date = ReadDate(text, order, why);
  return date ? basic::FormatIso(*date) : why;
}

TEST(FieldValues, ReadsPlainNumbers) {
  EXPECT_EQ(ReadNumber("4725.00"), 4725.0);
  EXPECT_EQ(ReadNumber(" -0.5 "), -0.5);
  EXPECT_EQ(ReadNumber("+12"), 12.0);
  EXPECT_EQ(ReadNumber("007"), 7.0);
}

TEST(FieldValues, ReadsThousandsCommasThatStandInGroupsOfThree) {
  EXPECT_EQ(ReadNumber("1,234.50"), 1234.5);
  EXPECT_EQ(ReadNumber("-12,345,678"), -12345678.0);
}

TEST(FieldValues, RefusesCommasAnywhereElse) {
  EXPECT_FALSE(ReadNumber("1234,50"));
  EXPECT_FALSE(ReadNumber("1,23,456"));
  EXPECT_FALSE(ReadNumber("1234,567"));
  EXPECT_FALSE(ReadNumber(",500"));
  EXPECT_FALSE(ReadNumber("1,234,"));
  EXPECT_FALSE(ReadNumber("1.234,50"));
}

TEST(FieldValues, RefusesWhatIsNoPlainNumber) {
  for (const char* text : {"", " ", "-", ".", ".5", "5.", "1e3", "(12.00)", "¥12", "12元", "0x10",
                           "1 234", "--1", "nan", "inf", "12.3.4"}) {
    EXPECT_FALSE(ReadNumber(text)) << text;
  }
}

TEST(FieldValues, ReadsWholeNumbersOf32Bits) {
  EXPECT_EQ(ReadWholeNumber(" 12 "), 12);
  EXPECT_EQ(ReadWholeNumber("-2147483648"), INT32_MIN);
  EXPECT_FALSE(ReadWholeNumber("2147483648"));
  EXPECT_FALSE(ReadWholeNumber("1.0"));
  EXPECT_FALSE(ReadWholeNumber(""));
}

TEST(FieldValues, ReadsDatesWithTheYearFirst) {
  EXPECT_EQ(Iso("2024-03-05"), "2024-03-05");
  EXPECT_EQ(Iso("2024/3/5"), "2024-03-05");
  EXPECT_EQ(Iso("2024.3.5"), "2024-03-05");
  EXPECT_EQ(Iso("20240305"), "2024-03-05");
  EXPECT_EQ(Iso("2024年3月5日"), "2024-03-05");
}

TEST(FieldValues, PassesOverATimeOfDay) {
  EXPECT_EQ(Iso("2024-03-05 13:45:00"), "2024-03-05");
  EXPECT_EQ(Iso("2024-03-05T13:45"), "2024-03-05");
}

TEST(FieldValues, ReadsADateWithTheYearLastWhenOnlyOneOrderMakesItADay) {
  EXPECT_EQ(Iso("03/15/2024"), "2024-03-15");
  EXPECT_EQ(Iso("15.3.2024"), "2024-03-15");
  EXPECT_EQ(Iso("4/4/2024"), "2024-04-04");
}

TEST(FieldValues, RefusesADateThatCouldBeTwoDays) {
  EXPECT_EQ(Iso("03/04/2024"), "it could be month/day or day/month");
}

TEST(FieldValues, ReadsADateWithTheYearLastInTheOrderGiven) {
  EXPECT_EQ(Iso("03/04/2024", DateOrder::MonthFirst), "2024-03-04");
  EXPECT_EQ(Iso("03/04/2024", DateOrder::DayFirst), "2024-04-03");
  EXPECT_EQ(Iso("03/15/2024", DateOrder::DayFirst), "it is no day of the calendar");
}

TEST(FieldValues, RefusesWhatIsNoDay) {
  for (const char* text :
       {"", "2024-02-30", "2023-02-29", "2024-13-01", "2024-00-10", "20240230", "2024-3",
        "2024-03-05-06", "2024/03-05", "tomorrow", "45000", "3月5日"}) {
    EXPECT_EQ(Iso(text), "it is no day of the calendar") << text;
  }
  EXPECT_EQ(Iso("5/3/24"), "its year has two digits");
}

TEST(FieldValues, RefusesAYearThatNoLedgerHolds) {
  EXPECT_EQ(Iso("0204-03-05"), "its year is not between 1900 and 2999");
  EXPECT_EQ(Iso("3024-03-05"), "its year is not between 1900 and 2999");
}

}  // namespace
}  // namespace qvzj::imports
