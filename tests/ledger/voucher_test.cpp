#include "ledger/voucher.h"

#include "services/connect.h"
#include "tests/ledger/ledger_world.h"

namespace qvzj::test {
namespace {

using ui::Key;

class Voucher : public LedgerTest {
 protected:
  /// Opens a new entry and lets its number be proposed.
  frmZj& KeyNew() {
    frmZj& form = Open();
    form.UserClick(form.cmdAction(kActionNew));
    form.UserKey(Key::Named(Key::Name::Enter));
    world.Type(form.txtAcnt2(4), "30");
    return form;
  }
  void Save(frmZj& form) {
    world.Messages();
    form.UserClick(form.cmdAcntSave);
  }
  std::string Numbers() {
    return world.One(
        "select group_concat(fAcntNo) from (select fAcntNo from tAccountDetail "
        "order by fID)");
  }
};

TEST_F(Voucher, GivesWayToTheNextFreeNumberWhenTheProposedOneIsTakenMeanwhile) {
  frmZj& form = KeyNew();
  ASSERT_EQ(form.txtAcnt2(1).Text(), "202403PZ00001");
  Add({.number = "202403PZ00001"});
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{"[票号:202403PZ00002]"});
  EXPECT_EQ(Numbers(), "202403PZ00001,202403PZ00002");
}

TEST_F(Voucher, GivesWayToAnEntryOfAMoneyAccountToo) {
  frmZj& form = KeyNew();
  Add({.type1 = 1, .number = "202403PZ00001"});
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{"[票号:202403PZ00002]"});
}

TEST_F(Voucher, KeepsTheProposedNumberWhileItIsFree) {
  frmZj& form = KeyNew();
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{"[票号:202403PZ00001]"});
}

TEST_F(Voucher, KeepsATypedNumberThatOthersBear) {
  Add({.number = "FP1"});
  frmZj& form = KeyNew();
  world.Type(form.txtAcnt2(1), "FP1");
  Save(form);
  EXPECT_EQ(world.Messages(), Texts{"[票号:FP1]"});
  EXPECT_EQ(Numbers(), "FP1,FP1");
}

TEST_F(Voucher, TakesANumberThatWasOnceProposedForTypedInTheNextEntry) {
  frmZj& form = KeyNew();
  Save(form);
  world.Type(form.txtAcnt2(1), "202403PZ00001");
  world.Type(form.txtAcnt2(4), "5");
  Save(form);
  EXPECT_EQ(Numbers(), "202403PZ00001,202403PZ00001");
}

TEST_F(Voucher, StoresNothingWhileNobodyCanTellWhetherTheNumberIsFree) {
  frmZj& form = KeyNew();
  Data().Close();
  Save(form);
  EXPECT_TRUE(world.Messages().empty());
  EXPECT_EQ(world.headless.boxes.TakeErrors().size(), 1u);
  EXPECT_EQ(Numbers(), "");
}

TEST_F(Voucher, SaysQuietlyHowManyEntriesBearATypedNumber) {
  Add({.number = "FP1"});
  Add({.type1 = 1, .number = "FP1"});
  frmZj& form = KeyNew();
  EXPECT_FALSE(form.lblNumberUse.Visible());
  world.Type(form.txtAcnt2(1), "FP1");
  form.UserKey(Key::Named(Key::Name::Enter));
  EXPECT_TRUE(form.lblNumberUse.Visible());
  EXPECT_EQ(form.lblNumberUse.Caption(), "已有 2 笔用此票号");
  EXPECT_TRUE(world.Messages().empty());
}

TEST_F(Voucher, SaysNothingOfANumberThatNobodyBears) {
  frmZj& form = KeyNew();
  world.Type(form.txtAcnt2(1), "FP1");
  form.UserKey(Key::Named(Key::Name::Enter));
  EXPECT_FALSE(form.lblNumberUse.Visible());
  EXPECT_TRUE(form.lblAcnt2(11).Visible());
}

TEST_F(Voucher, AsksForNoProposedNumberOnTheWayThroughTheFields) {
  frmZj& form = KeyNew();
  form.UserFocus(form.txtAcnt2(1));
  world.Statements();
  form.UserKey(Key::Named(Key::Name::Enter));
  EXPECT_TRUE(world.Statements().empty());
}

TEST_F(Voucher, CountsTheOtherEntriesWhenANumberIsChanged) {
  Add({.number = "FP1"});
  Add({.date = "2024-03-02", .number = "FP2"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(kActionChange));
  world.Type(form.txtAcnt2(1), "FP2");
  form.UserKey(Key::Named(Key::Name::Enter));
  EXPECT_EQ(form.lblNumberUse.Caption(), "已有 1 笔用此票号");
  world.Type(form.txtAcnt2(1), "FP1");
  form.UserKey(Key::Named(Key::Name::Enter));
  EXPECT_FALSE(form.lblNumberUse.Visible());
}

TEST_F(Voucher, ForgetsTheLineWithTheEntry) {
  Add({.number = "FP1"});
  frmZj& form = KeyNew();
  world.Type(form.txtAcnt2(1), "FP1");
  Save(form);
  EXPECT_FALSE(form.lblNumberUse.Visible());
}

TEST_F(Voucher, ProposesNothingFromATemplateWithAQuote) {
  world.Sql(
      "insert into tJXC_InvSet (fSetNo,fSetAutoNo,fSetNoUse_,fRowID) values "
      "(51,'a''bXXX',0,1);");
  frmZj& form = Open();
  form.UserClick(form.cmdAction(kActionNew));
  form.UserKey(Key::Named(Key::Name::Enter));
  EXPECT_EQ(world.Messages(), Texts{"文本错误: 文本中不可含有<引号>或<单引号> !"});
  EXPECT_TRUE(world.headless.boxes.TakeErrors().empty());
  EXPECT_EQ(form.txtAcnt2(1).Text(), "");
}

}  // namespace
}  // namespace qvzj::test
