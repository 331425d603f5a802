#include "suite/demo/demo.h"

#include <gtest/gtest.h>

#include "adapters/icu/ansi_codec.h"
#include "platform/basic/errors.h"
#include "suite/check/check_data.h"
#include "suite/demo/counter_brief.h"
#include "suite/demo/ledger.h"
#include "tests/suite/store/database.h"

namespace qvzj::demo_data {
namespace {

using test::EmptyDatabase;
using test::One;
using test::Rows;

std::unique_ptr<SqliteSession> DemoDatabase(const Options& options = {}) {
  auto session = EmptyDatabase();
  MakeData(*session, options, {});
  return session;
}

constexpr const char* kEverything =
    "select * from tAccountDetail union all select fID,CompCode,compname,name,fBank,fAcntID,others,"
    "province,cityname,postcode,telphone,fax,fType0,detail,0,0,0,0 from cards";

TEST(DemoData, HasTheNumbersOfRowsThatWereAskedFor) {
  const auto session = DemoDatabase();
  EXPECT_EQ(One(*session, "select count(*) from cards"), "200");
  EXPECT_EQ(One(*session, "select count(*) from tAccounts"), "8");
  EXPECT_EQ(One(*session, "select count(*) from tAccountDetail"), "5000");
  EXPECT_EQ(One(*session, "select count(*) from Moneys"), "3");
}

TEST(DemoData, ComesOutTheSameForTheSameSeed) {
  EXPECT_EQ(Rows(*DemoDatabase(), kEverything), Rows(*DemoDatabase(), kEverything));
}

TEST(DemoData, ComesOutDifferentlyForAnotherSeed) {
  Options other;
  other.seed = 2;
  EXPECT_NE(Rows(*DemoDatabase(), kEverything), Rows(*DemoDatabase(other), kEverything));
}

TEST(DemoData, IsWithoutFaults) {
  const auto session = DemoDatabase();
  EXPECT_EQ(
      check::CheckData(*session, [](const check::Fault& fault) { ADD_FAILURE() << fault.text; }),
      0);
}

TEST(DemoData, HasEveryKindOfEntry) {
  const auto session = DemoDatabase();
  for (const char* condition :
       {"fType1=0 and fType2=1", "fType1=0 and fType2=2", "fType1=1 and fType2=1",
        "fType1=1 and fType2=2", "fType1=0 and fInit=1", "fType1=1 and fInit=1", "fChecker<>''",
        "fChecker=''", "fType1=0 and fID2>0 and fChecker=''", "fType1=1 and fID2>0",
        "fMoneyCode='USD'", "fMoneyCode='HKD'", "fInvID<>''", "fOrderID<>''"}) {
    EXPECT_GT(std::stoi(One(*session,
                            std::string("select count(*) from tAccountDetail where ") + condition)),
              0)
        << condition;
  }
}

TEST(DemoData, LiesOnWorkdaysOfTheYearsAskedFor) {
  Options options;
  options.until = basic::Date::FromYmd(2024, 6, 30);
  options.years = 1;
  const auto session = DemoDatabase(options);
  EXPECT_EQ(One(*session,
                "select count(*) from tAccountDetail where strftime('%w',fDate) in "
                "('0','6')"),
            "0");
  EXPECT_EQ(One(*session, "select min(fDate) from tAccountDetail"), "2023-07-03");
  EXPECT_EQ(One(*session, "select max(fDate) from tAccountDetail"), "2024-06-28");
}

TEST(DemoData, KeepsTheEditLimitsOfEveryTextField) {
  const auto session = DemoDatabase();
  const IcuAnsiCodec codec;
  struct Limit {
    const char* table;
    const char* column;
    size_t bytes;
  };
  for (const Limit& limit : std::initializer_list<Limit>{{"cards", "CompCode", 20},
                                                         {"cards", "name", 20},
                                                         {"cards", "fBank", 50},
                                                         {"cards", "fAcntID", 30},
                                                         {"cards", "others", 50},
                                                         {"cards", "province", 20},
                                                         {"cards", "cityname", 20},
                                                         {"cards", "postcode", 10},
                                                         {"cards", "telphone", 40},
                                                         {"tAccounts", "fBank", 50},
                                                         {"tAccounts", "fAcntID", 30},
                                                         {"tAccountDetail", "fAcntNo", 20},
                                                         {"tAccountDetail", "fBrief", 50},
                                                         {"tAccountDetail", "fInvID", 20},
                                                         {"tAccountDetail", "fOrderID", 20}}) {
    data::Recordset rows =
        session->Native(std::string("select ") + limit.column + " from " + limit.table);
    for (; !rows.Eof(); rows.MoveNext()) {
      ASSERT_LE(codec.Encode(rows.Text(0)).size(), limit.bytes) << limit.column << rows.Text(0);
    }
  }
}

TEST(DemoData, NeverNamesTwoCustomersAlike) {
  Options options;
  options.customers = 5000;
  options.entries = 100;
  EXPECT_EQ(One(*DemoDatabase(options), "select count(distinct compname) from cards"), "5000");
}

TEST(DemoData, WidensTheVoucherCounterForABusyLedger) {
  Options options;
  EXPECT_EQ(NumberWidth(options), 5);
  options.entries = 5'000'000;
  EXPECT_EQ(NumberWidth(options), 7);
}

TEST(DemoData, FillsALedgerOfAnySmallSize) {
  for (int entries = 0; entries <= 12; ++entries) {
    Options options;
    options.entries = entries;
    options.customers = 2;
    options.accounts = 1;
    EXPECT_EQ(One(*DemoDatabase(options), "select count(*) from tAccountDetail"),
              std::to_string(entries));
  }
}

TEST(DemoData, GoesOnlyIntoAnEmptyDatabase) {
  const auto session = EmptyDatabase();
  session->NativeScript("insert into cards (fID,CompCode,compname) values (1,'K1','甲')");
  EXPECT_THROW(MakeData(*session, {}, {}), Error);
  EXPECT_EQ(One(*session, "select count(*) from tAccounts"), "0");
}

TEST(DemoData, RefusesSizesOutOfRange) {
  const auto session = EmptyDatabase();
  Options options;
  options.customers = 0;
  EXPECT_THROW(MakeData(*session, options, {}), Error);
  options = {};
  options.entries = -1;
  EXPECT_THROW(MakeData(*session, options, {}), Error);
}

TEST(DemoData, TellsHowFarItIs) {
  const auto session = EmptyDatabase();
  std::vector<int64_t> told;
  MakeData(*session, {}, [&](int64_t done, int64_t all) {
    EXPECT_EQ(all, 5000);
    told.push_back(done);
  });
  EXPECT_EQ(told, (std::vector<int64_t>{1000, 2000, 3000, 4000, 5000}));
}

TEST(CounterBrief, IsTheNameCutToTheRoomOfTheSummary) {
  const IcuAnsiCodec codec;
  EXPECT_EQ(CounterBrief(codec, "甲公司"), "挂入-甲公司");
  std::string name;
  for (int i = 0; i < 30; ++i) name += "甲";
  EXPECT_EQ(codec.Encode(CounterBrief(codec, name)).size(), 49u);  // a half character is dropped
}

}  // namespace
}  // namespace qvzj::demo_data
