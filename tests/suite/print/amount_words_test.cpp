#include "suite/print/amount_words.h"

#include <gtest/gtest.h>

#include "platform/basic/errors.h"

namespace qvzj::print {
namespace {

std::string Simplified(double amount) { return AmountInWords(amount, 0); }

TEST(AmountInWords, ClosesWholeYuanWithZheng) {
  EXPECT_EQ(Simplified(1), "壹元整");
  EXPECT_EQ(Simplified(100000), "壹拾万元整");
  EXPECT_EQ(Simplified(200000000), "贰亿元整");
  EXPECT_EQ(Simplified(1e12), "壹万亿元整");
}

TEST(AmountInWords, WritesNothingAsZeroYuan) {
  EXPECT_EQ(Simplified(0), "零元整");
  EXPECT_EQ(Simplified(0.004), "零元整");
  EXPECT_EQ(Simplified(-0.004), "零元整");
}

TEST(AmountInWords, WritesOneZeroForSkippedPlacesInsideANumber) {
  EXPECT_EQ(Simplified(1409.50), "壹仟肆佰零玖元伍角");
  EXPECT_EQ(Simplified(6007.14), "陆仟零柒元壹角肆分");
  EXPECT_EQ(Simplified(10010), "壹万零壹拾元整");
  EXPECT_EQ(Simplified(100000002), "壹亿零贰元整");
  EXPECT_EQ(Simplified(100010000), "壹亿零壹万元整");
}

TEST(AmountInWords, WritesNoZeroBeforeAFullGroup) {
  EXPECT_EQ(Simplified(107000), "壹拾万柒仟元整");
  EXPECT_EQ(Simplified(10001000), "壹仟万壹仟元整");
}

TEST(AmountInWords, WritesAZeroBeforeTheJiaoWhenTheYuanEndInZero) {
  EXPECT_EQ(Simplified(107000.53), "壹拾万柒仟元零伍角叁分");
  EXPECT_EQ(Simplified(1680.32), "壹仟陆佰捌拾元零叁角贰分");
}

TEST(AmountInWords, WritesAZeroForAMissingJiao) {
  EXPECT_EQ(Simplified(16409.02), "壹万陆仟肆佰零玖元零贰分");
  EXPECT_EQ(Simplified(325.04), "叁佰贰拾伍元零肆分");
}

TEST(AmountInWords, WritesFractionsOfAYuanAlone) {
  EXPECT_EQ(Simplified(0.56), "伍角陆分");
  EXPECT_EQ(Simplified(0.5), "伍角");
  EXPECT_EQ(Simplified(0.05), "伍分");
}

TEST(AmountInWords, BeginsNegativeAmountsWithMinus) { EXPECT_EQ(Simplified(-100), "负壹佰元整"); }

TEST(AmountInWords, RoundsHalfAFenAway) { EXPECT_EQ(Simplified(1.005), "壹元零壹分"); }

TEST(AmountInWords, UsesTraditionalFormsInTheTraditionalLanguage) {
  EXPECT_EQ(AmountInWords(-230016.3, 1), "負貳拾參萬零壹拾陸元參角");
}

TEST(AmountInWords, RefusesAmountsWhoseFenADoubleCannotHold) {
  EXPECT_THROW(Simplified(1e15), OverflowError);
}

}  // namespace
}  // namespace qvzj::print
