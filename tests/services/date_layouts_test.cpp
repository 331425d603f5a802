#include <gtest/gtest.h>

#include "services/numbering.h"
#include "tests/services/fake_data.h"

namespace qvzj {
namespace {

using test::FakeWorld;

/// The first number of that template on 5 July 2003.
std::string First(std::string templ) {
  return NextNumber(basic::Date::FromYmd(2003, 7, 5), templ, kFirstNumber);
}

// Of two layouts in one template the one that stands first in this list is the date, wherever it
// stands in the template; the other stays text. Each layout meets the next one of the list that it
// does not itself contain.
TEST(DateLayouts, AreTriedInOneOrderWhereverTheyStand) {
  FakeWorld world;
  EXPECT_EQ(First("YYYYMM-YYYYMMDDX"), "YYYYMM-200307051");
  EXPECT_EQ(First("MMDDYYYY-YYYYMMX"), "MMDDYYYY-2003071");
  EXPECT_EQ(First("DDMMYYYY-MMDDYYYYX"), "DDMMYYYY-070520031");
  EXPECT_EQ(First("YYYY-DDMMYYYYX"), "YYYY-050720031");
  EXPECT_EQ(First("YYMMDD-YYYYX"), "YYMMDD-20031");
  EXPECT_EQ(First("YYMM-YYMMDDX"), "YYMM-0307051");
  EXPECT_EQ(First("DDMMYY-YYMMX"), "DDMMYY-03071");
  EXPECT_EQ(First("MMYY-DDMMYYX"), "MMYY-0507031");
  EXPECT_EQ(First("MMDD-MMYYX"), "MMDD-07031");
  EXPECT_EQ(First("DDMM-MMDDX"), "DDMM-07051");
}

TEST(DateLayouts, AreFilledInWhereTheyOccurFirst) {
  FakeWorld world;
  EXPECT_EQ(First("YYYY-YYYYX"), "2003-YYYY1");
  EXPECT_EQ(First("A-DDMM-B-DDMM-XX"), "A-0507-B-DDMM-01");
}

}  // namespace
}  // namespace qvzj
