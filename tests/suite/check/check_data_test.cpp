#include "suite/check/check_data.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/suite/store/database.h"

namespace qvzj::check {
namespace {

/// A customer 1, an account 1, a checked customer entry 1 and its counter-entry 2.
class CheckDataTest : public ::testing::Test {
 protected:
  CheckDataTest() {
    Run("insert into cards (fID,CompCode,compname) values (1,'K1','甲')");
    Run("insert into tAccounts (fID,CompCode,compname) values (1,'0001','现金')");
    Insert("1,'2024-03-01',1,0,1,'202403PZ00001',0,100,100,'王五',1,'RMB',1");
    Insert("2,'2024-03-01',1,1,1,'202403PZ00001',0,0,100,'',1,'RMB',1");
  }

  void Run(const std::string& sql) { session_->NativeScript(sql); }
  void Insert(const std::string& values) {
    Run("insert into tAccountDetail (fID,fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,"
        "fChecker,fID2,fMoneyCode,fMoneyRate) values (" +
        values + ")");
  }
  /// All faults, one a line.
  std::string Faults() {
    std::string text;
    const int64_t count = CheckData(*session_, [&](const Fault& fault) {
      text += std::string(NameOf(fault.kind)) + ": " + fault.text + "\n";
    });
    EXPECT_EQ(count, std::count(text.begin(), text.end(), '\n'));
    return text;
  }

  std::unique_ptr<SqliteSession> session_ = test::EmptyDatabase();
};

TEST_F(CheckDataTest, FindsNothingInSoundData) { EXPECT_EQ(Faults(), ""); }

TEST_F(CheckDataTest, FindsAnEntryWhoseCustomerIsGone) {
  Insert("3,'2024-03-01',9,0,1,'202403PZ00003',0,5,0,'',0,'RMB',1");
  EXPECT_EQ(Faults(), "orphan: entry 3 (202403PZ00003): there is no customer 9\n");
}

TEST_F(CheckDataTest, FindsAnEntryWhoseAccountIsGoneThoughACustomerHasItsId) {
  Run("insert into cards (fID,CompCode,compname) values (2,'K2','乙')");
  Insert("3,'2024-03-01',2,1,1,'202403ZJ00001',0,0,5,'',0,'RMB',1");
  EXPECT_EQ(Faults(), "orphan: entry 3 (202403ZJ00001): there is no money account 2\n");
}

TEST_F(CheckDataTest, FindsAnEntryWithoutARecordIdOrANumber) {
  Insert("3,'2024-03-01',null,0,1,null,0,5,0,'',0,'RMB',1");
  EXPECT_EQ(Faults(), "orphan: entry 3 (): there is no customer null\n");
}

TEST_F(CheckDataTest, FindsAnEntryOfNoLedger) {
  Insert("3,'2024-03-01',1,7,1,'n',0,5,0,'',0,'RMB',1");
  EXPECT_EQ(Faults(), "no ledger: entry 3 (n): its fType1 is 7\n");
}

TEST_F(CheckDataTest, FindsAmountsThatAreNullOrNoNumber) {
  Insert("3,'2024-03-01',1,0,1,'a',0,null,5,'',0,'RMB',1");
  Insert("4,'2024-03-01',1,0,1,'b',0,5,'abc','',0,'RMB',1");
  EXPECT_EQ(Faults(),
            "amount: entry 3 (a): fMoneyA is null, fMoneyB is 5.0\n"
            "amount: entry 4 (b): fMoneyA is 5.0, fMoneyB is abc\n");
}

TEST_F(CheckDataTest, FindsACheckerThatIsNull) {
  Insert("3,'2024-03-01',1,0,1,'a',0,5,0,null,0,'RMB',1");
  EXPECT_EQ(Faults(), "checker: entry 3 (a): its fChecker is null\n");
}

TEST_F(CheckDataTest, FindsADateThatIsNone) {
  Insert("3,'03/15/2024',1,0,1,'a',0,5,0,'',0,'RMB',1");
  Insert("4,null,1,0,1,'b',0,5,0,'',0,'RMB',1");
  EXPECT_EQ(Faults(),
            "date: entry 3 (a): its date is 03/15/2024\ndate: entry 4 (b): its date is null\n");
}

TEST_F(CheckDataTest, FindsALinkToAnAccountThatIsGone) {
  Insert("3,'2024-03-01',1,0,1,'a',0,5,0,'',8,'RMB',1");
  EXPECT_EQ(Faults(),
            "link: entry 3 (a): it is linked to the money account 8, which is not there\n");
}

TEST_F(CheckDataTest, FindsACounterEntryWhoseCustomerEntryIsGone) {
  Run("delete from tAccountDetail where fID=1");
  EXPECT_EQ(Faults(),
            "counter-entry: entry 2 (202403PZ00001): its customer entry 1 is not there\n");
}

TEST_F(CheckDataTest, FindsACounterEntryWhoseCustomerEntryIsNotChecked) {
  Run("update tAccountDetail set fChecker='' where fID=1");
  EXPECT_EQ(Faults(),
            "counter-entry: entry 2 (202403PZ00001) and its customer entry 1 differ: the customer "
            "entry is not checked\n");
}

TEST_F(CheckDataTest, NamesEverythingInWhichACounterEntryDiffers) {
  Run("insert into tAccounts (fID,CompCode,compname) values (2,'0002','银行')");
  Run("update tAccountDetail set fCompID=2,fMoneyB=99.99,fType2=2,fDate='2024-03-02',fAcntNo='x',"
      "fMoneyCode='USD',fMoneyRate=7 where fID=2");
  EXPECT_EQ(Faults(),
            "counter-entry: entry 2 (x) and its customer entry 1 differ: money account amount "
            "direction date voucher number currency rate\n");
}

TEST_F(CheckDataTest, FindsACheckedEntryWithoutItsCounterEntry) {
  Run("delete from tAccountDetail where fID=2");
  EXPECT_EQ(Faults(),
            "counter-entry: entry 1 (202403PZ00001): it is checked and linked to the money account "
            "1, and has no counter-entry there\n");
}

TEST_F(CheckDataTest, AskForNoCounterEntryWhereNothingWasPaid) {
  Run("delete from tAccountDetail where fID=2; update tAccountDetail set fMoneyB=0 where fID=1");
  EXPECT_EQ(Faults(), "");
}

TEST_F(CheckDataTest, FindsTwoCounterEntriesOfOneEntry) {
  Run("drop index iLedgerCounter");
  Insert("3,'2024-03-01',1,1,1,'202403PZ00001',0,0,100,'',1,'RMB',1");
  EXPECT_EQ(Faults(), "counter-entry: entry 1 has 2 counter-entries: 2, 3\n");
}

TEST_F(CheckDataTest, FindsAVoucherNumberBorneTwiceInOneLedger) {
  Insert("3,'2024-03-01',1,0,1,'202403PZ00001',0,5,0,'',0,'RMB',1");
  EXPECT_EQ(Faults(),
            "duplicate number: voucher number 202403PZ00001 (fType1 0) is borne by 2 entries: 1, "
            "3\n");
}

TEST_F(CheckDataTest, TakesEmptyNumbersForNoDuplicates) {
  Insert("3,'2024-03-01',1,0,1,'',0,5,0,'',0,'RMB',1");
  Insert("4,'2024-03-01',1,0,1,'',0,5,0,'',0,'RMB',1");
  EXPECT_EQ(Faults(), "");
}

}  // namespace
}  // namespace qvzj::check
