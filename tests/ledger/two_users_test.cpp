#include "ledger/unchanged.h"
#include "screen/current.h"
#include "tests/ledger/ledger_world.h"

// Two people at one entry: this form, and whoever writes into the same table.
namespace qvzj::test {
namespace {

constexpr const char* kChangedMeanwhile =
    "该帐目已被他人修改或审核，现已重新显示，请核对后再操作！";

class TwoUsers : public LedgerTest {
 protected:
  /// Opens the ledger on the only entry and arms an action on it.
  frmZj& Arm(int action, int16_t mode = kCustomers) {
    frmZj& form = Open(mode);
    form.UserClick(form.cmdAction(action));
    return form;
  }
  /// What the other user does to the entry.
  void Other(const std::string& id, const std::string& sets) {
    world.Sql("update tAccountDetail set " + sets + " where fID=" + id + ";");
  }
  void Save(frmZj& form) {
    world.Messages();
    world.Statements();
    form.UserClick(form.cmdAcntSave);
  }
  bool Wrote() {
    for (const std::string& statement : world.Statements()) {
      if (!statement.starts_with("Select") && !statement.starts_with("select")) return true;
    }
    return false;
  }
};

TEST_F(TwoUsers, WriteNothingWhenTheSecondChecksWhatTheFirstHasChecked) {
  const std::string id = Add({.a = "100", .b = "100", .id2 = "1"});
  frmZj& form = Arm(kActionCheck);
  Other(id, "fChecker='乙'");
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{kChangedMeanwhile});
  EXPECT_FALSE(Wrote());
  EXPECT_EQ(world.One("select count(*) from tAccountDetail where fType1=1"), "0");
  EXPECT_EQ(form.lblSHR.Caption(), "乙");
  EXPECT_EQ(form.cmdAction(kActionCheck).Caption(), "帐目反审(&K)");
}

TEST_F(TwoUsers, WriteNothingWhenTheSecondChangesWhatTheFirstHasChecked) {
  const std::string id = Add({.a = "100"});
  frmZj& form = Arm(kActionChange);
  world.Type(form.txtAcnt2(3), "7");
  Other(id, "fChecker='乙'");
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{kChangedMeanwhile});
  EXPECT_FALSE(Wrote());
  EXPECT_EQ(form.txtAcnt2(3).Text(), "100.00");
  EXPECT_FALSE(form.cmdAcntSave.Enabled());
}

TEST_F(TwoUsers, WriteNothingWhenTheSecondDeletesWhatTheFirstHasChecked) {
  const std::string id = Add({.a = "100"});
  frmZj& form = Arm(kActionDelete);
  Other(id, "fChecker='乙'");
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{kChangedMeanwhile});
  EXPECT_EQ(world.One("select count(*) from tAccountDetail"), "1");
}

TEST_F(TwoUsers, WriteNothingWhenTheSecondUnchecksWhatTheFirstHasUnchecked) {
  const std::string id = Add({.a = "100", .checker = "'乙'"});
  frmZj& form = Arm(kActionCheck);
  Other(id, "fChecker=''");
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{kChangedMeanwhile});
  EXPECT_FALSE(Wrote());
  EXPECT_EQ(form.lblSHR.Caption(), "");
}

TEST_F(TwoUsers, AreToldOfAChangeInEveryFieldThatTheEditorShows) {
  for (const char* change : {"fDate='2024-03-02'",
                             "fCompID=2,fBrief='x'",
                             "fType2=2",
                             "fAcntNo='N2'",
                             "fInit=1",
                             "fMoneyA=100.01",
                             "fMoneyB=1",
                             "fBrief='另'",
                             "fBrief=null",
                             "fInvID='CK'",
                             "fOrderID='D'",
                             "fUser='乙'",
                             "fDoneman='李四'",
                             "fDoneman=null",
                             "fID2=2",
                             "fMoneyCode='USD'",
                             "fMoneyCode=null",
                             "fMoneyRate=2",
                             "fMoneyRate=null",
                             "fInit=null"}) {
    world.Sql("delete from tAccountDetail;");
    const std::string id = Add({.a = "100"});
    frmZj& form = Arm(kActionChange);
    Other(id, change);
    Save(form);
    EXPECT_EQ(world.Messages(), Texts{kChangedMeanwhile}) << change;
    EXPECT_FALSE(Wrote()) << change;
    form.UserClose();
  }
}

TEST_F(TwoUsers, AreLetToSaveWhatNobodyElseHasTouched) {
  const Entry odd = {.date = "2024-02-29",
                     .a = "0.1+0.2",
                     .b = "1e15/3",
                     .brief = "null",
                     .inv = "null",
                     .doneman = "null",
                     .checker = "null",
                     .id2 = "null",
                     .code = "null",
                     .rate = "0.123456789012345678"};
  for (const int16_t mode : {kCustomers, kAccounts}) {
    for (const int tab : {0, 1, 2}) {
      for (const int action : {kActionChange, kActionCheck, kActionDelete}) {
        for (const char* direction : {"1", "2"}) {
          world.Sql("delete from tAccountDetail;");
          Entry entry = odd;
          entry.type1 = mode;
          entry.type2 = direction;
          Add(entry);
          Add({.type1 = mode, .number = "N2", .a = "-5", .b = "7", .rate = "1"});
          frmZj& form = Open(mode);
          form.UserTab(form.SSTab2, tab);
          form.UserHeader(form.Grid2, col::kMoneyA);
          form.UserClick(form.cmdAction(action));
          world.Answer("ok");
          Save(form);
          EXPECT_TRUE(Wrote()) << mode << tab << action << direction;
          world.headless.boxes.TakeErrors();
          form.UserClose();
        }
      }
    }
  }
}

TEST_F(TwoUsers, PayOneStatementDirectlyAfterTheCount) {
  const std::string id = Add({.a = "100"});
  frmZj& form = Arm(kActionCheck);
  Save(form);
  const Texts ran = world.Statements();
  ASSERT_GE(ran.size(), 3u);
  EXPECT_EQ(ran[0], "select count(*) from tAccountDetail Where fID=" + id + " And fType1=0");
  EXPECT_EQ(
      ran[1],
      "Select fDate,fCompID,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,fBrief,fInvID,fOrderID,fUser,"
      "fDoneman,fChecker,fID2,fMoneyCode,fMoneyRate from tAccountDetail where fID=" +
          id);
  EXPECT_TRUE(ran[2].starts_with("Update ")) << ran[2];
}

TEST_F(TwoUsers, SaveTheEntryOnceItWasShownAnew) {
  const std::string id = Add({.a = "100"});
  frmZj& form = Arm(kActionChange);
  Other(id, "fBrief='另'");
  Save(form);
  world.Type(form.txtAcnt2(3), "7");
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{"[票号:N1]"});
  EXPECT_EQ(world.One("select fBrief||fMoneyA from tAccountDetail"), "另7.0");
}

TEST_F(TwoUsers, ActOnNoOtherEntryWhenTheirsLeftTheLedger) {
  const std::string first = Add({.number = "N1", .a = "100"});
  Add({.number = "N2", .a = "1"});
  frmZj& form = Arm(kActionDelete);
  Other(first, "fCompID=2");
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{kChangedMeanwhile});
  EXPECT_FALSE(form.picAcnt.Visible());
  EXPECT_EQ(ArmedAction(form), kActionView);
  EXPECT_EQ(ShownReference(form), "N2");
}

TEST_F(TwoUsers, CloseTheEditorWhenTheOnlyEntryLeftTheLedger) {
  const std::string id = Add({.a = "100"});
  frmZj& form = Arm(kActionChange);
  Other(id, "fCompID=2");
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{kChangedMeanwhile});
  EXPECT_FALSE(form.picAcnt.Visible());
  EXPECT_EQ(form.Grid2.RowCount(), 0);
}

TEST_F(TwoUsers, HearOfAnEntryThatIsGoneAsBefore) {
  const std::string id = Add({.a = "100"});
  frmZj& form = Arm(kActionChange);
  world.Sql("delete from tAccountDetail;");
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{"N1：帐目已不存在！"});
}

TEST_F(TwoUsers, AreToldInTraditionalChinese) {
  Shared().Language = 1;
  const std::string id = Add({.a = "100"});
  frmZj& form = Arm(kActionChange);
  Other(id, "fMoneyA=5");
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{"該帳目已被他人修改或審核，現已重新顯示，請核對後再操作！"});
}

}  // namespace
}  // namespace qvzj::test
