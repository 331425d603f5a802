#include "screen/indexes.h"
#include "services/context.h"
#include "tests/register/register_fixture.h"

// Single quotes that no field's own check has seen: from the host, from stored data.
namespace qvzj::test {
namespace {

constexpr const char* kNoQuotes = "文本错误: 文本中不可含有<引号>或<单引号> !";

class Quotes : public RegisterTest {
 protected:
  void ExpectNoError() { EXPECT_TRUE(world.headless.boxes.TakeErrors().empty()); }
};

TEST_F(Quotes, InTheHostsNameAreRefusedAndNeverBecomeTheCondition) {
  frmZj& form = Customers();
  form.UserTab(form.SSTab1, RegisterTab::Search);
  form.UserClick(form.chkSeek(1));
  world.Type(form.txtSeek(1), "北");
  form.UserClick(form.cmdKhSeek);
  const std::string condition = form.registerCondition;
  world.control.setMyName("O'Neil");
  world.control.setMyTaskID(1);
  world.Messages();
  world.control.refresh(9, 0);
  EXPECT_EQ(world.Messages(), Texts{kNoQuotes});
  EXPECT_EQ(form.registerCondition, condition);
  EXPECT_EQ(form.lblKhName.Caption(), "北方贸易");
  ExpectNoError();
  form.UserClick(form.cmdAcntRefresh);
  EXPECT_EQ(form.Grid1.RowCount(), 1);
  ExpectNoError();
}

TEST_F(Quotes, InTheHostsNameAreNoMatterWhileItIsNotAskedFor) {
  world.control.setMyName("O'Neil");
  world.control.setMyTaskID(3);
  frmZj& form = world.Open(9);
  EXPECT_TRUE(world.Messages().empty());
  EXPECT_EQ(form.lblKhName.Caption(), "大地五金");
}

TEST_F(Quotes, AreRefusedByTheRecordPage) {
  frmZj& form = Customers();
  for (const int action : {RecordAction::Add, RecordAction::Change}) {
    form.UserClick(form.mnuKhManage(action));
    world.Type(form.txtAcnt(0), "9");
    world.Type(form.txtAcnt(1), "O'Neil");
    world.Messages();
    form.UserClick(form.cmdKhSave);
    EXPECT_EQ(world.Messages(), Texts{kNoQuotes});
    EXPECT_TRUE(form.cmdKhSave.Visible());
    form.UserClick(form.cmdKhCancel);
  }
  ExpectNoError();
  EXPECT_EQ(world.One("Select count(*) From cards Where compname like '%''%'"), "0");
}

TEST_F(Quotes, InAStoredRecordLeaveEverythingButItsChangeAsItIs) {
  world.Sql("Update cards Set CompCode='0''1',compname='O''Neil' Where fID=2;");
  AddEntries(kCustomers, 2, 1);
  frmZj& form = Customers();
  GoTo("O'Neil");
  EXPECT_EQ(form.Grid2.RowCount(), 1);
  form.UserClick(form.cmdAcntRefresh);
  EXPECT_EQ(form.lblKhName.Caption(), "O'Neil");
  form.UserClick(form.mnuKhManage(RecordAction::Change));
  world.Type(form.txtAcnt(0), "01");
  world.Type(form.txtAcnt(1), "ONeil");
  world.Answer("ok");
  form.UserClick(form.cmdKhSave);
  EXPECT_EQ(world.One("Select compname From cards Where fID=2"), "ONeil");
  ExpectNoError();
}

TEST_F(Quotes, InAStoredRecordDoNotHinderItsDeletion) {
  world.Sql("Update cards Set compname='O''Neil' Where fID=2;");
  frmZj& form = Customers();
  GoTo("O'Neil");
  form.UserClick(form.mnuKhManage(RecordAction::Delete));
  world.Answer("ok");
  form.UserClick(form.cmdKhSave);
  EXPECT_EQ(world.One("Select count(*) From cards"), "2");
  ExpectNoError();
}

TEST_F(Quotes, InACurrencyAreNoFilter) {
  world.Sql("Insert Into Moneys (MoneyCode,MoneyRate,MoneyType) Values ('a''b',1,0);");
  AddEntries(kCustomers, 2, 1);
  frmZj& form = Customers();
  form.UserChoose(form.cboHb2, 1);
  EXPECT_EQ(world.Messages(), Texts{kNoQuotes});
  EXPECT_EQ(form.cboHb2.ListIndex(), -1);
  EXPECT_EQ(form.Grid2.RowCount(), 1);
  ExpectNoError();
}

TEST_F(Quotes, InTheOnlyCurrencyDoNotKeepAnybodyFromKeying) {
  world.Sql("Update Moneys Set MoneyCode='a''b';");
  frmZj& form = Customers();
  form.UserClick(form.cmdAction(1));
  form.UserKey(ui::Key::Named(ui::Key::Name::Enter));
  world.Type(form.txtAcnt2(4), "30");
  form.UserClick(form.cmdAcntSave);
  EXPECT_EQ(world.One("Select fMoneyCode From tAccountDetail"), "");
  EXPECT_EQ(world.Messages(), Texts{"[票号:202403PZ00001]"});
  ExpectNoError();
}

TEST_F(Quotes, InACurrencyAreRefusedWhenItIsChosenForAnEntry) {
  world.Sql("Insert Into Moneys (MoneyCode,MoneyRate,MoneyType) Values ('a''b',1,0);");
  frmZj& form = Customers();
  form.UserClick(form.cmdAction(1));
  EXPECT_EQ(form.cboHb.Text(), "RMB");
  form.UserChoose(form.cboHb, 1);
  EXPECT_EQ(world.Messages(), Texts{kNoQuotes});
  ExpectNoError();
}

TEST_F(Quotes, InAStoredDocumentDoNotHinderADeletionThatAsksForNone) {
  AddEntries(kCustomers, 2, 1);
  world.Sql("Update tAccountDetail Set fInvID='a''b',fMoneyA=0,fMoneyB=5;");
  frmZj& form = Customers();
  form.UserClick(form.cmdAction(3));
  world.Answer("ok");
  form.UserClick(form.cmdAcntSave);
  EXPECT_EQ(world.One("Select count(*) From tAccountDetail"), "0");
  ExpectNoError();
}

}  // namespace
}  // namespace qvzj::test
