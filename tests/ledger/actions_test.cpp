#include "ledger/actions.h"

#include "services/connect.h"
#include "tests/ledger/ledger_world.h"

namespace qvzj::test {
namespace {

/// What keeps an entry whose document CK1 is checked from being deleted.
constexpr const char* kDocumentChecked =
    "该相关单号（CK1）已经审核，不可删除。操作取消！\r\n\r\n请在【仓库管理】中，反审核<相关单号>，"
    "系统自动删除本帐目凭证！";

class EntryActions : public LedgerTest {
 protected:
  bool Act(frmZj& form, int action) {
    EXPECT_TRUE(form.UserClick(form.cmdAction(action)));
    world.Statements();
    world.Messages();
    return form.UserClick(form.cmdAcntSave);
  }

  /// The statements that changed something since the act began.
  Texts Writes() {
    Texts writes;
    for (const std::string& statement : world.Statements()) {
      if (statement.front() == 'I' || statement.front() == 'U' || statement.front() == 'D') {
        writes.push_back(statement);
      }
    }
    return writes;
  }

  std::string Checker(const std::string& id) {
    return world.One("select fChecker from tAccountDetail where fID=" + id);
  }

  std::string Count() { return world.One("select count(*) from tAccountDetail"); }
};

// Delete.

TEST_F(EntryActions, DeletesAnEntryAfterAQuestion) {
  const std::string id = Add({.number = "N1", .a = "1"});
  frmZj& form = Open();
  world.Answer("ok");
  Act(form, 3);
  const auto boxes = world.headless.boxes.TakeShown();
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes[0].text, "是否删除票号（N1） ？");
  EXPECT_EQ(boxes[0].style, box::kQuestionOkCancel);
  EXPECT_EQ(boxes[1].text, "[票号: N1]");
  EXPECT_EQ(boxes[1].title, "帐目删除 执行完毕！");
  EXPECT_EQ(Writes(), Texts{"Delete from tAccountDetail Where fID=" + id});
  EXPECT_EQ(Count(), "0");
  EXPECT_EQ(form.Grid2.RowCount(), 0);
}

TEST_F(EntryActions, KeepsTheEntryWhenTheDeleteIsCancelled) {
  Add({.a = "1"});
  frmZj& form = Open();
  world.Answer("cancel");
  Act(form, 3);
  EXPECT_EQ(Count(), "1");
  EXPECT_TRUE(Writes().empty());
}

TEST_F(EntryActions, SaysThatADeletedEntryIsGoneWhenItIsDeletedAgain) {
  Add({.number = "N1", .a = "1"});
  frmZj& form = Open();
  world.Answer("ok");
  Act(form, 3);
  world.Messages();
  form.UserClick(form.cmdAcntSave);
  EXPECT_EQ(world.Messages(), Texts{"N1：帐目已不存在！"});
}

TEST_F(EntryActions, AsksNoWarehouseTableForAnEntryWithoutADocument) {
  Add({.a = "1"});
  frmZj& form = Open();
  world.Answer("cancel");
  Act(form, 3);
  for (const std::string& statement : world.Statements()) {
    EXPECT_EQ(statement.find("tJXC_"), std::string::npos) << statement;
  }
}

TEST_F(EntryActions, LeavesAnEntryOfACheckedDocumentToTheWarehouse) {
  const std::string id = Add({.a = "1", .inv = "'CK1'"});
  world.Sql("insert into tJXC_CkDj01 (fInvNo,fInvSHR) values ('CK1','王');");
  frmZj& form = Open();
  Act(form, 3);
  const auto statements = world.Statements();
  ASSERT_EQ(statements.size(), 3u);
  EXPECT_EQ(statements[0], "select count(*) from tAccountDetail Where fID=" + id + " And fType1=0");
  EXPECT_EQ(statements[2],
            "select count(*) from tJXC_CkDj01 Where fInvNo='CK1' And '' & fInvSHR<>''");
  const auto boxes = world.headless.boxes.TakeShown();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].text, kDocumentChecked);
  EXPECT_EQ(boxes[0].style, box::kExclamation);
  EXPECT_EQ(Count(), "1");
}

TEST_F(EntryActions, FindsACheckedDocumentInTheArchiveToo) {
  Add({.a = "1", .inv = "'CK1'"});
  world.Sql(
      "insert into tJXC_CkDj01 (fInvNo,fInvSHR) values ('CK1',null);"
      "insert into tJXC_CkDj_Bak01 (fInvNo,fInvSHR) values ('CK1','王');");
  frmZj& form = Open();
  world.Answer("ok");  // were the delete to be asked for
  Act(form, 3);
  EXPECT_EQ(world.Messages(), Texts{kDocumentChecked});
  EXPECT_EQ(Count(), "1");
}

TEST_F(EntryActions, DeletesAnEntryOfAnUncheckedDocument) {
  Add({.a = "1", .inv = "'CK1'"});
  world.Sql("insert into tJXC_CkDj01 (fInvNo,fInvSHR) values ('CK1','');");
  frmZj& form = Open();
  world.Answer("ok");
  Act(form, 3);
  EXPECT_EQ(Count(), "0");
}

TEST_F(EntryActions, DeletesAReceiptOfACheckedDocument) {
  Add({.b = "1", .inv = "'CK1'"});
  world.Sql("insert into tJXC_CkDj01 (fInvNo,fInvSHR) values ('CK1','王');");
  frmZj& form = Open();
  world.Answer("ok");
  Act(form, 3);
  EXPECT_EQ(Count(), "0");
}

TEST_F(EntryActions, TestsEveryDocumentOfMoneyAccounts) {
  Add({.type1 = 1, .b = "1", .inv = "'CK1'"});
  world.Sql("insert into tJXC_CkDj01 (fInvNo,fInvSHR) values ('CK1','王');");
  frmZj& form = Open(kAccounts);
  world.Answer("ok");  // were the delete to be asked for
  Act(form, 3);
  EXPECT_EQ(world.Messages(), Texts{kDocumentChecked});
  EXPECT_EQ(Count(), "1");
}

TEST_F(EntryActions, AsksAServerForTheDocumentInItsDialect) {
  Add({.a = "1", .inv = "'CK1'"});
  frmZj& form = Open();
  Shared().SQLData = 1;
  world.Answer("cancel");
  Act(form, 3);
  const std::string condition = " Where fInvNo='CK1' And (not fInvSHR is null) And fInvSHR<>''";
  const auto statements = world.Statements();
  ASSERT_EQ(statements.size(), 4u);
  EXPECT_EQ(statements[2], "select count(*) from tJXC_CkDj01" + condition);
  EXPECT_EQ(statements[3], "select count(*) from tJXC_CkDj_Bak01" + condition);
}

// Check.

TEST_F(EntryActions, ChecksAnEntryWithoutALink) {
  const std::string id = Add({.number = "N1", .a = "1", .b = "2"});
  frmZj& form = Open();
  Act(form, 4);
  EXPECT_EQ(Writes(), Texts{"Update tAccountDetail Set fChecker='admin' Where fID=" + id});
  const auto boxes = world.headless.boxes.TakeShown();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].text, "[票号: N1]");
  EXPECT_EQ(boxes[0].title, "帐目审核 执行完毕！");
  EXPECT_EQ(form.lblSHR.Caption(), "admin");
  EXPECT_EQ(form.cmdAction(4).Caption(), "帐目反审(&K)");
  EXPECT_FALSE(form.cmdAction(2).Enabled());
}

TEST_F(EntryActions, ChecksAMoneyAccountsEntryWithoutACounterEntry) {
  const std::string id = Add({.type1 = 1, .b = "2", .id2 = "9"});
  frmZj& form = Open(kAccounts);
  Act(form, 4);
  EXPECT_EQ(Checker(id), "admin");
  EXPECT_EQ(Count(), "1");
}

TEST_F(EntryActions, BringsTheCounterEntryIntoTheLinkedAccount) {
  const std::string id = Add({.date = "2024-03-02",
                              .type2 = "2",
                              .number = "N1",
                              .init = "1",
                              .a = "100",
                              .b = "30",
                              .inv = "'CK1'",
                              .order = "'HT1'",
                              .user = "'李'",
                              .doneman = "'张三'",
                              .id2 = "2",
                              .code = "'USD'",
                              .rate = "6.5"});
  frmZj& form = Open();
  Act(form, 4);
  EXPECT_EQ(Writes(),
            (Texts{"Update tAccountDetail Set fChecker='admin' Where fID=" + id,
                   "Insert Into tAccountDetail (fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,"
                   "fMoneyB,fBrief,fInvID,fOrderID,fUser,fDoneman,fChecker,fID2,fMoneyCode,"
                   "fMoneyRate) Values ('03/02/2024',2,1,2,'N1',0,0,30,'挂入-甲公司','CK1','HT1',"
                   "'李','张三',''," +
                       id + ",'USD',6.5000)"}));
  EXPECT_EQ(world.Messages(),
            Texts{"[票号: N1]\r\n\r\n同时，系统已经自动产生相同票号的[资金帐户凭证] 。"});
  EXPECT_EQ(Count(), "2");
}

TEST_F(EntryActions, KeepsEveryDecimalInTheCounterEntry) {
  const std::string id = Add({.b = "12.345", .id2 = "2", .rate = "7.123456789"});
  frmZj& form = Open();
  Act(form, 4);
  EXPECT_EQ(world.Rows("select fMoneyB,fMoneyRate from tAccountDetail where fType1=1"),
            (std::vector<Texts>{{"12.345", "7.123456789"}}));
}

TEST_F(EntryActions, CutsALongNameInTheCounterEntrysSummary) {
  std::string name;
  for (int i = 0; i < 40; ++i) name += "长";
  world.Sql("update cards set compname='" + name + "' where fID=1;");
  Add({.b = "1", .id2 = "2"});
  frmZj& form = Open();
  Act(form, 4);
  std::string brief = "挂入-";
  for (int i = 0; i < 22; ++i) brief += "长";
  EXPECT_EQ(world.One("select fBrief from tAccountDetail where fType1=1"), brief);
}

TEST_F(EntryActions, ChecksALinkedEntryWithoutAReceiptAloneAndSaysSo) {
  const std::string id = Add({.number = "N1", .a = "100", .id2 = "2"});
  frmZj& form = Open();
  Act(form, 4);
  const auto boxes = world.headless.boxes.TakeShown();
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes[0].text, "本帐目凭证未有“实收/实付”金额，无须关联帐户的进出帐操作！");
  EXPECT_EQ(boxes[0].style, box::kInformation);
  EXPECT_EQ(boxes[1].text, "[票号: N1]");
  EXPECT_EQ(Checker(id), "admin");
  EXPECT_EQ(Count(), "1");
}

TEST_F(EntryActions, ChecksNothingWhenTheCounterEntryCouldNotBeWritten) {
  world.Sql("update cards set compname='O''Neil' where fID=1;");
  const std::string id = Add({.b = "1", .id2 = "2"});
  frmZj& form = Open();
  Act(form, 4);
  EXPECT_EQ(world.Messages(), Texts{"文本错误: 文本中不可含有<引号>或<单引号> !"});
  EXPECT_EQ(Checker(id), "");
}

TEST_F(EntryActions, LetsTheCheckStandWhenTheCounterEntryFails) {
  const std::string id = Add({.b = "1", .id2 = "2"});
  world.Sql(
      "create trigger refuse before insert on tAccountDetail begin "
      "select raise(abort,'no more room'); end;");
  frmZj& form = Open();
  EXPECT_FALSE(Act(form, 4));
  EXPECT_EQ(world.headless.boxes.TakeErrors().size(), 1u);
  EXPECT_TRUE(world.Messages().empty());
  EXPECT_EQ(Checker(id), "admin");
  EXPECT_TRUE(form.Grid2.Visible());
  form.UserClick(form.cmdAcntRefresh);
  EXPECT_EQ(form.Grid2.CellText(col::kChecker, 1), "admin");
}

// Uncheck.

TEST_F(EntryActions, BringsNoSecondCounterEntryWhoeverBroughtTheFirst) {
  const std::string id = Add({.b = "8", .id2 = "2"});
  frmZj& form = Open();
  // Another program books the counter-entry between the look at the ledger and the insert.
  world.Sql(
      "create trigger other after update of fChecker on tAccountDetail when new.fChecker<>'' begin"
      " insert into tAccountDetail (fCompID,fType1,fID2,fMoneyB) values (2,1,new.fID,8); end;");
  EXPECT_TRUE(Act(form, 4));
  EXPECT_EQ(world.One("select count(*) from tAccountDetail where fType1=1 and fID2=" + id), "1");
  EXPECT_EQ(
      world.Messages(),
      (Texts{"[资金帐户凭证] 已经存在，可能他人刚刚审核了本帐目！\r\n\r\n没有重复产生，请核对！"}));
  EXPECT_TRUE(world.headless.boxes.TakeErrors().empty());
  EXPECT_EQ(form.lblSHR.Caption(), "admin") << "the ledger is shown as it is now";
}

TEST_F(EntryActions, UnchecksAnEntryAfterAQuestion) {
  const std::string id = Add({.number = "N1", .a = "1", .checker = "'王'"});
  frmZj& form = Open();
  world.Answer("ok");
  Act(form, 4);
  const auto boxes = world.headless.boxes.TakeShown();
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes[0].text, "帐目已经审核。是否反审核，取消“审核”标志 ？");
  EXPECT_EQ(boxes[0].style, box::kExclamationOkCancel);
  EXPECT_EQ(boxes[1].title, "帐目反审 执行完毕！");
  EXPECT_EQ(Writes(), Texts{"Update tAccountDetail Set fChecker='' Where fID=" + id});
  EXPECT_EQ(Checker(id), "");
}

TEST_F(EntryActions, KeepsTheCheckWhenTheUserCancels) {
  const std::string id = Add({.a = "1", .checker = "'王'"});
  frmZj& form = Open();
  world.Answer("cancel");
  Act(form, 4);
  EXPECT_EQ(Checker(id), "王");
}

TEST_F(EntryActions, TakesTheCounterEntryAwayWithTheCheck) {
  const std::string id = Add({.number = "N1", .b = "1", .id2 = "2"});
  frmZj& form = Open();
  Act(form, 4);
  ASSERT_EQ(Count(), "2");
  world.Answer("ok");
  world.Answer("ok");
  Act(form, 4);
  EXPECT_EQ(Writes(), (Texts{"Update tAccountDetail Set fChecker='' Where fID=" + id,
                             "Delete from tAccountDetail Where fType1=1 and fID2=" + id}));
  const auto boxes = world.headless.boxes.TakeShown();
  ASSERT_EQ(boxes.size(), 3u);
  EXPECT_EQ(boxes[1].text, "注意：系统将删除关联的资金帐户凭证，确定？");
  EXPECT_EQ(boxes[1].style, box::kQuestionOkCancel);
  EXPECT_EQ(Count(), "1");
  EXPECT_EQ(Checker(id), "");
}

TEST_F(EntryActions, KeepsBothEntriesWhenTheUserKeepsTheCounterEntry) {
  const std::string id = Add({.b = "1", .id2 = "2"});
  frmZj& form = Open();
  Act(form, 4);
  world.Answer("ok");
  world.Answer("cancel");
  Act(form, 4);
  EXPECT_EQ(Count(), "2");
  EXPECT_EQ(Checker(id), "admin");
}

TEST_F(EntryActions, RefusesToUncheckWhileTheCounterEntryIsChecked) {
  const std::string id = Add({.b = "1", .id2 = "2"});
  frmZj& form = Open();
  Act(form, 4);
  world.Sql("update tAccountDetail set fChecker='王' where fType1=1;");
  world.Answer("ok");
  Act(form, 4);
  const auto boxes = world.headless.boxes.TakeShown();
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes[1].text,
            "该往来帐目的关联[资金帐户]也已经审核，必须先“反审核”关联帐户 !"
            "\r\n\r\n操作取消！");
  EXPECT_EQ(boxes[1].style, box::kExclamation);
  EXPECT_EQ(Checker(id), "admin");
  EXPECT_EQ(Count(), "2");
}

TEST_F(EntryActions, RemovesCounterEntriesWithoutAQuestionWhenThereIsNoReceipt) {
  const std::string id = Add({.a = "1", .checker = "'王'", .id2 = "2"});
  Add({.comp = 2, .type1 = 1, .b = "1", .id2 = id});
  frmZj& form = Open();
  world.Answer("ok");
  Act(form, 4);
  EXPECT_EQ(world.Messages().size(), 2u);
  EXPECT_EQ(Count(), "1");
}

TEST_F(EntryActions, KeepsTheAccountChosenAtTheCheckSoThatUncheckingFindsIt) {
  const std::string id = Add({.b = "1"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(4));
  form.UserChoose(form.cboAcntName, 0);
  world.Statements();
  form.UserClick(form.cmdAcntSave);
  const Texts writes = Writes();
  ASSERT_EQ(writes.size(), 3u);
  EXPECT_EQ(writes[0], "Update tAccountDetail Set fID2=1 Where fID=" + id);
  EXPECT_EQ(writes[1], "Update tAccountDetail Set fChecker='admin' Where fID=" + id);
  EXPECT_EQ(world.One("select fCompID from tAccountDetail where fType1=1"), "1");
  world.Answer("ok");
  world.Answer("ok");
  Act(form, 4);
  EXPECT_EQ(Count(), "1");
  EXPECT_EQ(Checker(id), "");
}

TEST_F(EntryActions, BringsNoCounterEntryWhenTheLinkIsTakenBackAtTheCheck) {
  Add({.b = "1", .id2 = "2"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(4));
  form.UserClick(form.chkAcntName);
  form.UserClick(form.cmdAcntSave);
  EXPECT_EQ(Count(), "1");
}

}  // namespace
}  // namespace qvzj::test
