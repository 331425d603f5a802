#include "suite/copy/copy.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "platform/basic/errors.h"
#include "suite/demo/demo.h"
#include "suite/store/tables.h"
#include "tests/suite/store/database.h"

namespace qvzj::copy {
namespace {

using test::EmptyDatabase;
using test::One;
using test::Rows;

/// Breaks a copy off after a lot of rows, as a failing machine would.
struct BrokenOff : std::runtime_error {
  BrokenOff() : runtime_error("broken off") {}
};

class CopyTest : public ::testing::Test {
 protected:
  CopyTest() {
    demo_data::Options demo;
    demo.customers = 30;
    demo.entries = 900;
    demo_data::MakeData(*source_, demo, {});
    options_.source_name = "source";
    options_.lot = 100;
  }

  Report Copy(const store::RowProgress& progress = {}) {
    return CopyData(*source_, *target_, options_, progress);
  }
  void BreakOffAfter(int64_t rows) {
    EXPECT_THROW(Copy([&](int64_t done, int64_t) {
                   if (done >= rows) throw BrokenOff();
                 }),
                 BrokenOff);
  }
  std::string Complaint() {
    try {
      Copy();
    } catch (const Error& error) {
      return error.what();
    }
    return {};
  }
  void ExpectSameRows() {
    for (const store::Table& table : store::Tables()) {
      const std::string all = std::string("select * from ") + table.name + " order by 1";
      EXPECT_EQ(Rows(*target_, all), Rows(*source_, all)) << table.name;
    }
  }

  std::unique_ptr<SqliteSession> source_ = EmptyDatabase();
  std::unique_ptr<SqliteSession> target_ = EmptyDatabase();
  Options options_;
};

TEST_F(CopyTest, BringsEveryRowOfEveryTable) {
  const Report report = Copy();
  ExpectSameRows();
  EXPECT_EQ(report.tables.size(), store::Tables().size());
  EXPECT_FALSE(report.resumed);
  EXPECT_FALSE(data::HasTable(*target_, "qvdb_copy"));
}

TEST_F(CopyTest, KnowsEveryTableOfTheSchema) {
  EXPECT_EQ(One(*source_,
                "select count(*) from sqlite_master where type='table' and name not like "
                "'sqlite_%'"),
            std::to_string(store::Tables().size()));
}

TEST_F(CopyTest, ReportsTheSumsOfTheAmounts) {
  const CopiedTable ledger = Copy().tables.back();
  EXPECT_EQ(ledger.name, "tAccountDetail");
  EXPECT_EQ(ledger.rows, 900);
  ASSERT_EQ(ledger.sums.size(), 2u);
  EXPECT_EQ(ledger.sums[0].first, "fMoneyA");
  EXPECT_EQ(ledger.sums[0].second,
            One(*source_, "select printf('%.2f',sum(fMoneyA)) from tAccountDetail"));
}

TEST_F(CopyTest, AddsUpAmountsThatAreTooGreatForCents) {
  source_->NativeScript(
      "update tAccountDetail set fMoneyA=0,fMoneyB=0;"
      "update tAccountDetail set fMoneyA=9e18,fMoneyB=1.7e308 where fID<=2");
  const CopiedTable ledger = Copy().tables.back();
  EXPECT_EQ(ledger.sums[0].second, "18000000000000000000.00");
  EXPECT_EQ(ledger.sums[1].second.substr(0, 3), "1.#") << "a total that no number can hold";
}

TEST_F(CopyTest, BringsCounterEntriesThatTheTablesWouldRefuseToday) {
  source_->NativeScript(
      "drop index iLedgerCounter;"
      "insert into tAccountDetail (fCompID,fType1,fID2) values (1,1,1),(1,1,1)");
  Copy();
  ExpectSameRows();
}

TEST_F(CopyTest, GivesIdsBehindThoseThatTheSourceEverGave) {
  source_->NativeScript(
      "insert into tAccountDetail (fID) values (5000); delete from tAccountDetail where fID=5000");
  Copy();
  target_->NativeScript("insert into tAccountDetail (fBrief) values ('next')");
  EXPECT_EQ(One(*target_, "select fID from tAccountDetail where fBrief='next'"), "5001");
}

TEST_F(CopyTest, TellsHowFarItIs) {
  int64_t last = 0;
  int64_t all = 0;
  Copy([&](int64_t done, int64_t of) {
    EXPECT_GT(done, last);
    last = done;
    all = of;
  });
  EXPECT_EQ(last, all);
}

TEST_F(CopyTest, GoesOnWhereItBrokeOff) {
  BreakOffAfter(500);
  EXPECT_EQ(One(*target_, "select sum(fRows)>=500 and sum(fRows)<900 from qvdb_copy"), "1");
  EXPECT_TRUE(Copy().resumed);
  ExpectSameRows();
}

TEST_F(CopyTest, BringsRowsThatCameIntoTheSourceSinceItBrokeOff) {
  BreakOffAfter(500);
  source_->NativeScript("insert into tAccountDetail (fBrief) values ('late')");
  Copy();
  ExpectSameRows();
}

TEST_F(CopyTest, StaysUnfinishedWhenASourceRowChangedSinceItBrokeOff) {
  BreakOffAfter(1000);
  source_->NativeScript("update tAccountDetail set fMoneyB=fMoneyB+0.01 where fID=3");
  EXPECT_NE(Complaint().find("differ: tAccountDetail, fID 3, fMoneyB: "), std::string::npos);
  EXPECT_TRUE(data::HasTable(*target_, "qvdb_copy"));
  options_.anew = true;
  Copy();
  ExpectSameRows();
}

TEST_F(CopyTest, NoticesRowsThatWereDeletedWhileItRan) {
  BreakOffAfter(1000);
  source_->NativeScript("delete from tAccountDetail where fID=5");
  EXPECT_NE(Complaint().find("differ: tAccountDetail, fID 6, fID: \"6\" in the source, \"5\""),
            std::string::npos)
      << Complaint();
  source_->NativeScript("delete from tAccountDetail");
  EXPECT_NE(Complaint().find("differ: tAccountDetail, 0 rows or more in the source, 100"),
            std::string::npos)
      << Complaint();
}

TEST_F(CopyTest, BeginsAnewWithoutDuplicates) {
  BreakOffAfter(500);
  options_.anew = true;
  EXPECT_FALSE(Copy().resumed);
  ExpectSameRows();
}

TEST_F(CopyTest, RefusesATargetThatHoldsRows) {
  target_->NativeScript("insert into Moneys values ('RMB',1,1)");
  for (const bool anew : {false, true}) {
    options_.anew = anew;
    EXPECT_EQ(Complaint(),
              "The table Moneys of the target holds rows already; a copy goes only into empty "
              "tables");
  }
  EXPECT_EQ(One(*target_, "select count(*) from Moneys"), "1");
}

TEST_F(CopyTest, RefusesToFinishTheCopyOfAnotherSource) {
  BreakOffAfter(100);
  options_.source_name = "other";
  EXPECT_EQ(Complaint(), "The target holds an unfinished copy of source");
}

TEST_F(CopyTest, RefusesASourceThatIsAnUnfinishedCopy) {
  BreakOffAfter(100);
  const auto third = EmptyDatabase();
  EXPECT_THROW(CopyData(*target_, *third, options_, {}), Error);
}

TEST_F(CopyTest, RefusesATargetThatLacksAColumn) {
  source_->NativeScript("alter table cards add fExtra text");
  EXPECT_EQ(Complaint(), "The table cards of the target has no column fExtra");
  EXPECT_EQ(One(*target_, "select count(*) from Moneys"), "0");
}

TEST_F(CopyTest, KeepsNullsAndOddTexts) {
  source_->NativeScript(
      "insert into cards (fID,CompCode,compname,detail) values "
      "(99,null,'','a' || char(13,10) || '甲''\"\\ %_{?}' || char(9) || '\U0001F600')");
  Copy();
  ExpectSameRows();
}

}  // namespace
}  // namespace qvzj::copy
