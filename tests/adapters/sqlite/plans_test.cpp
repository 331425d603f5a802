#include <gtest/gtest.h>

#include "tests/adapters/sqlite/temporary.h"

// How SQLite answers the statements whose cost must not grow with the ledger.
namespace qvzj {
namespace {

class Plans : public testing::Test {
 protected:
  /// The steps of the plan of a statement of the module, one a line.
  std::string Plan(const std::string& statement) {
    std::string steps;
    auto set = session_->Native("explain query plan " + session_->Translate(statement).text);
    for (; !set.Eof(); set.MoveNext()) steps += set.Text("detail") + "\n";
    return steps;
  }

  void ExpectServedBy(const std::string& statement, const std::string& step) {
    const std::string plan = Plan(statement);
    EXPECT_NE(plan.find(step), std::string::npos) << plan;
    EXPECT_EQ(plan.find("SCAN b"), std::string::npos) << plan;
    EXPECT_EQ(plan.find("SCAN t"), std::string::npos) << plan;
  }

  static std::string Ledger(const std::string& table, const std::string& where,
                            const std::string& order) {
    return "Select b.fDate,b.fAcntNo,a.CompName,b.fMoneyA,b.fMoneyB,0 as hh,b.fBrief,b.fInvID,"
           "b.fOrderID,b.fUser,b.fDoneman,b.fChecker,b.fMoneyRate,b.fType2,b.fInit,b.fCompID,"
           "b.fID,b.fID2 From " +
           table + " a Right Join tAccountDetail b On b.fCompID=a.fID Where " + where +
           " Order By " + order;
  }

  static constexpr const char* kByCode = "a.CompCode,a.CompName,b.fDate,b.fAcntNo";
  static constexpr const char* kByName = "a.CompName,b.fDate,b.fAcntNo";
  static constexpr const char* kOneRecord =
      "SEARCH b USING INDEX iLedgerRecord (fCompID=? AND fType1=?";

  test::TemporaryDatabase file_;
  std::unique_ptr<SqliteSession> session_ = file_.Open();
};

TEST_F(Plans, FindTheLedgerOfOneRecordThroughTheIndex) {
  for (const char* table : {"cards", "tAccounts"}) {
    for (const char* order : {kByCode, kByName}) {
      ExpectServedBy(Ledger(table, "b.fType1=0 And a.fID=5", order), kOneRecord);
    }
  }
}

TEST_F(Plans, FindTheLedgerOfOneRecordUnderEveryFilter) {
  for (const char* filter :
       {" And fMoneyCode='RMB'", " and b.fDate>=#03/01/2024# And b.fDate<=#03/31/2024#",
        " And b.fChecker<>''", " And b.fChecker=''", " And b.fAcntNo like '2024%'",
        " And b.fBrief like '%x%' And b.fUser like 'admin'"}) {
    ExpectServedBy(Ledger("cards", std::string("b.fType1=0") + filter + " And a.fID=5", kByCode),
                   kOneRecord);
  }
}

TEST_F(Plans, ReadTheLedgerOfOneRecordInTheOrderOfTheIndex) {
  const std::string plan = Plan(Ledger("cards", "b.fType1=0 And a.fID=5", kByCode));
  EXPECT_EQ(plan.find("TEMP B-TREE FOR ORDER BY"), std::string::npos) << plan;
}

TEST_F(Plans, ReadTheWholeLedgerOnceAndLookEveryRecordUpByItsId) {
  const std::string plan = Plan(Ledger("cards", "b.fType1=0", kByCode));
  EXPECT_NE(plan.find("SEARCH a USING INTEGER PRIMARY KEY"), std::string::npos) << plan;
  EXPECT_EQ(plan.find("SCAN a"), std::string::npos) << plan;
}

TEST_F(Plans, FindTheLedgerOfEveryoneBetweenTwoDatesThroughTheIndex) {
  ExpectServedBy(
      Ledger("cards", "b.fType1=0 and b.fDate>=#03/01/2024# And b.fDate<=#03/31/2024#", kByCode),
      "SEARCH b USING INDEX iLedgerDate (fDate>? AND fDate<?)");
}

TEST_F(Plans, FindTheNextNumberFromTheEndOfItsStem) {
  for (const char* statement :
       {"select max(mid(fAcntNo,9,5)) as invID from tAccountDetail where "
        "left(fAcntNo,8)='200303PZ' and IsNumeric(Mid(fAcntNo,9,5))",
        "select max(SUBSTRING(fAcntNo,9,5)) as invID from tAccountDetail where "
        "left(fAcntNo,8)='200303PZ' and IsNumeric(SUBSTRING(fAcntNo,9,5))=1"}) {
    ExpectServedBy(statement,
                   "SEARCH tAccountDetail USING COVERING INDEX iLedgerNumber "
                   "(fAcntNo>? AND fAcntNo<?)");
    EXPECT_EQ(Plan(statement).find("TEMP B-TREE"), std::string::npos) << Plan(statement);
  }
}

TEST_F(Plans, FindARegisterRecordByTheBeginningOfItsCodeOrName) {
  const std::string fields = "select distinct a.CompCode,a.compname,a.fID from cards a Where ";
  ExpectServedBy(fields + "1=1 And a.CompCode like '00%' Order By a.CompCode",
                 "SEARCH a USING INDEX icardsCode");
  ExpectServedBy(fields + "1=1 And a.compname like '中%' Order By a.CompCode",
                 "SEARCH a USING INDEX icardsName");
  ExpectServedBy(fields + "a.compname='中文'", "SEARCH a USING INDEX icardsName");
}

TEST_F(Plans, ListTheRegisterWithoutSiftingOutDoubles) {
  const std::string plan =
      Plan("select distinct a.CompCode,a.compname,a.fID from cards a Order By a.compname");
  EXPECT_EQ(plan.find("DISTINCT"), std::string::npos) << plan;
}

TEST_F(Plans, FindTheCounterEntriesOfAnEntryThroughTheIndex) {
  const char* step = "iLedgerLink (fID2=? AND fType1=?)";
  ExpectServedBy("select count(*) from tAccountDetail Where fType1=1 and fID2=7 And fChecker<>''",
                 step);
  ExpectServedBy("Delete from tAccountDetail Where fType1=1 and fID2=7", step);
}

TEST_F(Plans, CountTheEntriesOfAVoucherNumberThroughTheIndex) {
  const char* step = "iLedgerNumber (fAcntNo=?)";
  ExpectServedBy("select count(*) from tAccountDetail Where fAcntNo='200303PZ00001'", step);
  ExpectServedBy("select count(*) from tAccountDetail Where fAcntNo='200303PZ00001' And fID<>7",
                 step);
}

TEST_F(Plans, ReadAnEntryAgainByItsId) {
  ExpectServedBy(
      "Select fDate,fCompID,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,fBrief,fInvID,fOrderID,fUser,"
      "fDoneman,fChecker,fID2,fMoneyCode,fMoneyRate from tAccountDetail where fID=7",
      "SEARCH tAccountDetail USING INTEGER PRIMARY KEY (rowid=?)");
}

TEST_F(Plans, CountWhatHangsOnARecordThroughIndexes) {
  ExpectServedBy("select count(*) from tAccountDetail Where fCompID=5 And fType1=0",
                 "iLedgerRecord (fCompID=? AND fType1=?)");
  ExpectServedBy("select count(*) from tTaskList Where taskID=5 And fType=1",
                 "iTaskRecord (taskID=? AND fType=?)");
  ExpectServedBy("select count(*) from tJXC_CkDj01 Where fKhID=5", "iCkDjCustomer (fKhID=?)");
  ExpectServedBy("select count(*) from tJXC_CkHt01 Where fKhID=5", "iCkHtCustomer (fKhID=?)");
}

TEST_F(Plans, FindADocumentByItsNumber) {
  ExpectServedBy("select count(*) from tJXC_CkDj01 Where fInvNo='CK001' And '' & fInvSHR<>''",
                 "iCkDjNumber (fInvNo=?)");
  ExpectServedBy(
      "select count(*) from tJXC_CkDj_Bak01 Where fInvNo='CK1' And "
      "(not fInvSHR is null) And fInvSHR<>''",
      "iCkDjBakNumber (fInvNo=?)");
}

}  // namespace
}  // namespace qvzj
