#include "platform/basic/number.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/basic/errors.h"

namespace qvzj::basic {
namespace {

TEST(Val, ReadsTheLeadingNumber) {
  EXPECT_EQ(Val("12.5 kg"), 12.5);
  EXPECT_EQ(Val("1,234"), 1);
  EXPECT_EQ(Val("abc"), 0);
  EXPECT_EQ(Val(""), 0);
  EXPECT_EQ(Val("-.5"), -0.5);
  EXPECT_EQ(Val("+7"), 7);
  EXPECT_EQ(Val("5."), 5);
  EXPECT_EQ(Val("1.2.3"), 1.2);
  EXPECT_EQ(Val("12元"), 12);
}

TEST(Val, SkipsBlanksTabsAndLineFeeds) {
  EXPECT_EQ(Val("  1 2\t3\n4"), 1234);
  EXPECT_EQ(Val("- 5"), -5);
}

TEST(Val, TakesAnExponent) {
  EXPECT_EQ(Val("1e3"), 1000);
  EXPECT_EQ(Val("1D-2x"), 0.01);
  EXPECT_EQ(Val("2e"), 2);
  EXPECT_EQ(Val("2e+"), 2);
  EXPECT_EQ(Val("1e-999"), 0);
  EXPECT_THROW(Val("1e999"), OverflowError);
}

TEST(Val, IsZeroForALoneSignOrPoint) {
  EXPECT_EQ(Val("-"), 0);
  EXPECT_EQ(Val("."), 0);
  EXPECT_EQ(Val("e5"), 0);
}

TEST(IsNumeric, WantsTheWholeTextToBeOneNumber) {
  EXPECT_TRUE(IsNumeric(" -12.50 "));
  EXPECT_TRUE(IsNumeric("1e5"));
  EXPECT_FALSE(IsNumeric(""));
  EXPECT_FALSE(IsNumeric("   "));
  EXPECT_FALSE(IsNumeric("12.5 kg"));
  EXPECT_FALSE(IsNumeric("1 2"));
  EXPECT_FALSE(IsNumeric("-"));
  EXPECT_FALSE(IsNumeric("1e400"));
  EXPECT_FALSE(IsNumeric("-1e400"));
  EXPECT_TRUE(IsNumeric("1e-400"));
}

TEST(Conversion, RoundsHalvesToEven) {
  EXPECT_EQ(ToInt16(0.5), 0);
  EXPECT_EQ(ToInt16(1.5), 2);
  EXPECT_EQ(ToInt16(2.5), 2);
  EXPECT_EQ(ToInt16(-2.5), -2);
  EXPECT_EQ(ToInt16(-1.5), -2);
  EXPECT_EQ(ToInt32(3.5), 4);
  EXPECT_EQ(ToByte(254.5), 254);
}

TEST(Conversion, OverflowsLoudly) {
  EXPECT_EQ(ToInt16(32767.4), 32767);
  EXPECT_THROW(ToInt16(32767.5), OverflowError);
  EXPECT_EQ(ToInt16(-32768.5), -32768);
  EXPECT_THROW(ToInt16(-32769), OverflowError);
  EXPECT_EQ(ToInt32(2147483647.0), 2147483647);
  EXPECT_THROW(ToInt32(2147483648.0), OverflowError);
  EXPECT_THROW(ToInt32(-2147483649.0), OverflowError);
  EXPECT_THROW(ToByte(-1), OverflowError);
  EXPECT_THROW(ToByte(256), OverflowError);
  EXPECT_THROW(ToInt16(std::numeric_limits<double>::quiet_NaN()), OverflowError);
  EXPECT_THROW(ToInt32(std::numeric_limits<double>::infinity()), OverflowError);
}

TEST(Conversion, SumsAndProductsStayWithinSixteenBits) {
  EXPECT_EQ(AddInt16(32000, 767), 32767);
  EXPECT_THROW(AddInt16(32000, 768), OverflowError);
  EXPECT_EQ(MultiplyInt16(-256, 128), -32768);
  EXPECT_THROW(MultiplyInt16(256, 128), OverflowError);
}

TEST(FormatFixed, RoundsHalvesAwayFromZeroByTheDecimalDigits) {
  EXPECT_EQ(FormatFixed(1.005, 2), "1.01");
  EXPECT_EQ(FormatFixed(-1.005, 2), "-1.01");
  EXPECT_EQ(FormatFixed(0.125, 2), "0.13");
  EXPECT_EQ(FormatFixed(2.675, 2), "2.68");
  EXPECT_EQ(FormatFixed(0.285, 2), "0.29");
  EXPECT_EQ(FormatFixed(0.005, 2), "0.01");
  EXPECT_EQ(FormatFixed(0.00499, 2), "0.00");
  EXPECT_EQ(FormatFixed(0.5, 0), "1");
  EXPECT_EQ(FormatFixed(0.49, 0), "0");
}

TEST(FormatFixed, CarriesIntoTheWholePart) {
  EXPECT_EQ(FormatFixed(9.995, 2), "10.00");
  EXPECT_EQ(FormatFixed(999.99999, 4), "1000.0000");
  EXPECT_EQ(FormatFixed(0.99999, 4), "1.0000");
}

TEST(FormatFixed, ShowsNoSignOnZero) {
  EXPECT_EQ(FormatFixed(-0.0, 2), "0.00");
  EXPECT_EQ(FormatFixed(-0.001, 2), "0.00");
  EXPECT_EQ(FormatFixed(-0.005, 2), "-0.01");
}

TEST(FormatFixed, ShowsBigValuesWithoutAnExponentOrSeparators) {
  EXPECT_EQ(FormatFixed(214044268.12, 2), "214044268.12");
  EXPECT_EQ(FormatFixed(1234567890123.45, 2), "1234567890123.45");
  EXPECT_EQ(FormatFixed(1e15, 2), "1000000000000000.00");
  EXPECT_EQ(FormatFixed(-1e20, 2), "-100000000000000000000.00");
  EXPECT_EQ(FormatFixed(7.25, 4), "7.2500");
}

TEST(FormatFixed, RefusesWhatIsNoNumber) {
  EXPECT_THROW(FormatFixed(std::numeric_limits<double>::quiet_NaN(), 2), OverflowError);
  EXPECT_THROW(FormatFixed(std::numeric_limits<double>::infinity(), 2), OverflowError);
}

TEST(NumberText, IsTheShortestPlainText) {
  EXPECT_EQ(NumberText(100), "100");
  EXPECT_EQ(NumberText(12.5), "12.5");
  EXPECT_EQ(NumberText(-0.25), "-0.25");
  EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
  EXPECT_EQ(NumberText(-0.0), "0");
  EXPECT_EQ(NumberText(123456789012345), "123456789012345");
  EXPECT_EQ(NumberText(1e15), "1E+15");
  EXPECT_EQ(NumberText(1.5e20), "1.5E+20");
  EXPECT_EQ(NumberText(0.0001), "0.0001");
}

TEST(NumberText, NamesWhatIsNoFiniteNumber) {
  EXPECT_EQ(NumberText(std::numeric_limits<double>::infinity()), "1.#INF");
  EXPECT_EQ(NumberText(-std::numeric_limits<double>::infinity()), "-1.#INF");
  EXPECT_EQ(NumberText(std::numeric_limits<double>::quiet_NaN()), "1.#QNAN");
}

TEST(NumberText, IsReadBackByVal) {
  for (double value : {0.1, 123.45, -99999.99, 1e16, 1.25e-7, 214044268.12}) {
    EXPECT_EQ(Val(NumberText(value)), value);
  }
}

TEST(Sum, IsRightToTheCentForAMillionAmounts) {
  Sum sum;
  for (int i = 0; i < 1000000; ++i) sum.Add(0.1);
  EXPECT_EQ(FormatFixed(sum.Value(), 2), "100000.00");
  EXPECT_EQ(sum.Value(), 100000.0);
  Sum far_apart;
  for (double value : {1e16, 0.01, -1e16}) far_apart.Add(value);
  EXPECT_EQ(far_apart.Value(), 0.01);
}

}  // namespace
}  // namespace qvzj::basic
