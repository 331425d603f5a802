#include "services/numbering.h"

#include <gtest/gtest.h>

#include "services/connect.h"
#include "tests/services/fake_data.h"

namespace qvzj {
namespace {

using basic::Date;
using test::FakeWorld;

struct OpenWorld : FakeWorld {
  OpenWorld() { OpenData(); }
  void InUse(test::Field counter) {
    engine.answer = [counter](const std::string&) {
      return test::FakeAnswer{{"invID"}, {{counter}}};
    };
  }
};

std::string Next(const std::string& templ, Date date = Date::FromYmd(2003, 3, 15),
                 int16_t kind = kLedgerNumber) {
  std::string text = templ;
  return NextNumber(date, text, kind);
}

std::string First(const std::string& templ, Date date) { return Next(templ, date, kFirstNumber); }

TEST(NextNumber, AsksADesktopDatabaseForTheGreatestCounterToTheLetter) {
  OpenWorld world;
  world.InUse("00017");
  EXPECT_EQ(Next("yyyymmPZXXXXX"), "200303PZ00018");
  EXPECT_EQ(world.engine.statements.back(),
            "select max(mid(fAcntNo,9,5)) as invID from tAccountDetail where "
            "left(fAcntNo,8)='200303PZ' and IsNumeric(Mid(fAcntNo,9,5))");
}

TEST(NextNumber, AsksAServerForTheGreatestCounterToTheLetter) {
  OpenWorld world;
  Shared().SQLData = 1;
  world.InUse("00017");
  EXPECT_EQ(Next("yyyymmPZXXXXX"), "200303PZ00018");
  EXPECT_EQ(world.engine.statements.back(),
            "select max(SUBSTRING(fAcntNo,9,5)) as invID from tAccountDetail where "
            "left(fAcntNo,8)='200303PZ' and IsNumeric(SUBSTRING(fAcntNo,9,5))=1");
}

TEST(NextNumber, StartsAtOneWhenNoNumberStandsBehindTheStem) {
  OpenWorld world;
  world.InUse(std::nullopt);
  EXPECT_EQ(Next("yyyymmPZXXXXX", Date::FromYmd(2003, 4, 1)), "200304PZ00001");
  world.InUse("");
  EXPECT_EQ(Next("yyyymmPZXXXXX", Date::FromYmd(2003, 4, 1)), "200304PZ00001");
  world.engine.answer = [](const std::string&) { return test::FakeAnswer{{"invID"}, {}}; };
  EXPECT_EQ(Next("yyyymmPZXXXXX", Date::FromYmd(2003, 4, 1)), "200304PZ00001");
}

TEST(NextNumber, UpperCasesTheTemplateInPlace) {
  FakeWorld world;
  std::string templ = kDefaultTemplate;
  NextNumber(Date::FromYmd(2003, 3, 15), templ, kFirstNumber);
  EXPECT_EQ(templ, "YYYYMMPZXXXXX");
}

TEST(NextNumber, ProposesNothingWithoutAFinalRunOfX) {
  OpenWorld world;
  EXPECT_EQ(Next("PZ-X-01"), "");
  EXPECT_EQ(Next(""), "");
  EXPECT_TRUE(world.engine.statements.empty());
}

TEST(NextNumber, LeavesTheDatabaseAloneForTheFirstNumber) {
  FakeWorld world;
  EXPECT_EQ(First("ABCXXX", Date::FromYmd(2003, 3, 15)), "ABC001");
  EXPECT_TRUE(world.engine.statements.empty());
}

TEST(NextNumber, KnowsElevenDateLayouts) {
  const Date day = Date::FromYmd(2003, 7, 5);
  EXPECT_EQ(First("YYYYMMDDX", day), "200307051");
  EXPECT_EQ(First("YYYYMMX", day), "2003071");
  EXPECT_EQ(First("MMDDYYYYX", day), "070520031");
  EXPECT_EQ(First("DDMMYYYYX", day), "050720031");
  EXPECT_EQ(First("YYYYX", day), "20031");
  EXPECT_EQ(First("YYMMDDXXXX", day), "0307050001");
  EXPECT_EQ(First("YYMMX", day), "03071");
  EXPECT_EQ(First("DDMMYYX", day), "0507031");
  EXPECT_EQ(First("MMYYX", day), "07031");
  EXPECT_EQ(First("MMDDX", day), "07051");
  EXPECT_EQ(First("DDMMX", day), "05071");
}

TEST(NextNumber, TakesTheFirstLayoutOfItsListAndLeavesALaterOneAsText) {
  EXPECT_EQ(First("YYYY-MMDDXXX", Date::FromYmd(2003, 7, 5)), "2003-MMDD001");
  EXPECT_EQ(First("DDMM-YYYYXXX", Date::FromYmd(2003, 7, 5)), "DDMM-2003001");
}

TEST(NextNumber, KeepsTextBeforeAndAfterTheDate) {
  EXPECT_EQ(First("A-yyyymm-PZ-XX", Date::FromYmd(2003, 7, 5)), "A-200307-PZ-01");
}

TEST(NextNumber, CountsTheStemInCharacters) {
  OpenWorld world;
  world.InUse("07");
  EXPECT_EQ(Next("凭证YYMMXX"), "凭证030308");
  EXPECT_EQ(world.engine.statements.back(),
            "select max(mid(fAcntNo,7,2)) as invID from tAccountDetail where "
            "left(fAcntNo,6)='凭证0303' and IsNumeric(Mid(fAcntNo,7,2))");
}

TEST(NextNumber, KeepsTheLastDigitsOfACounterThatOutgrowsItsWidth) {
  OpenWorld world;
  world.InUse("99");
  EXPECT_EQ(Next("PXX"), "P00");
}

TEST(NextNumber, PadsWithTwelveZerosAtMost) {
  OpenWorld world;
  world.InUse("00000000000000");
  EXPECT_EQ(Next("P" + std::string(14, 'X')), "P0000000000001");
}

TEST(NextNumber, LetsTheEnginesErrorRise) {
  OpenWorld world;
  world.engine.Fail();
  EXPECT_THROW(Next("PXX"), DataError);
}

TEST(NextNumber, ServesNoOtherKindThanTheLedger) {
  OpenWorld world;
  world.InUse("00017");
  // Kinds up to 50 number no table: the statement names none, which every engine refuses.
  Next("PXX", Date::FromYmd(2003, 7, 5), 50);
  EXPECT_EQ(world.engine.statements.back(),
            "select max(mid(,2,2)) as invID from  where left(,1)='P' and IsNumeric(Mid(,2,2))");
  Next("PXX", Date::FromYmd(2003, 7, 5), 51);
  EXPECT_EQ(world.engine.statements.back(),
            "select max(mid(fAcntNo,2,2)) as invID from tAccountDetail where left(fAcntNo,1)='P' "
            "and IsNumeric(Mid(fAcntNo,2,2))");
}

}  // namespace
}  // namespace qvzj
