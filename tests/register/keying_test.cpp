#include "screen/current.h"
#include "screen/indexes.h"
#include "tests/register/register_fixture.h"

// Records as they are keyed: what stays on the record page, which record an action meets, and how
// page and detail are left.
namespace qvzj::test {
namespace {

class RegisterKeying : public RegisterTest {
 protected:
  void Arm(int action) { ASSERT_TRUE(world.Form().UserClick(world.Form().mnuKhManage(action))); }
  void Key(const std::string& key) { world.Form().UserKey(ui::ParseKey(key).value()); }
  std::string Contact() { return world.Form().txtAcnt(RecordBox::Contact).Text(); }
  std::string Highlighted() {
    return world.Form().Grid1.CellText(2, world.Form().Grid1.ActiveRow());
  }
};

TEST_F(RegisterKeying, KeepsTheCurrentRecordHighlightedThroughASort) {
  frmZj& form = Customers();
  GoTo("大地五金");
  for (int clicks = 0; clicks < 3; ++clicks) {
    ASSERT_TRUE(form.UserHeader(form.Grid1, 3));
    EXPECT_EQ(form.lblKhName.Caption(), "大地五金");
    EXPECT_EQ(Highlighted(), "大地五金");
  }
}

TEST_F(RegisterKeying, DeletesAfterASortTheRecordThatIsNamed) {
  frmZj& form = Customers();
  GoTo("大地五金");
  ASSERT_TRUE(form.UserHeader(form.Grid1, 2));
  ASSERT_TRUE(form.UserHeader(form.Grid1, 2));
  Arm(RecordAction::Add);
  Arm(RecordAction::Delete);
  EXPECT_EQ(form.lblKhName.Caption(), "大地五金");
  EXPECT_EQ(Highlighted(), "大地五金");
  world.Answer("ok");
  ASSERT_TRUE(form.UserClick(form.cmdKhSave));
  EXPECT_EQ(world.One("select count(*) from cards where compname='大地五金'"), "0");
  EXPECT_EQ(world.One("select count(*) from cards"), "2");
}

TEST_F(RegisterKeying, KeepsANewRecordWhileTheListIsWalkedThrough) {
  frmZj& form = Customers();
  Arm(RecordAction::Add);
  world.Type(form.txtAcnt(RecordBox::Contact), "赵六");
  ASSERT_TRUE(form.UserClick(form.optKhType(CustomerType::Consignee)));
  GoTo("北方贸易");
  EXPECT_EQ(Contact(), "赵六");
  EXPECT_EQ(form.txtAcnt(RecordBox::Name).Text(), "");
  EXPECT_TRUE(form.optKhType(CustomerType::Consignee).Selected());
  EXPECT_EQ(form.lblKhName.Caption(), "北方贸易");
  EXPECT_TRUE(world.Messages().empty());
}

TEST_F(RegisterKeying, DirectsAnEntryByTheRowWhileANewRecordIsKeyed) {
  frmZj& form = Customers();
  GoTo("北方贸易");
  ASSERT_TRUE(form.UserClick(form.cmdAction(kActionNew)));
  Arm(RecordAction::Add);
  GoTo("华东电子");  // a supplier
  EXPECT_TRUE(form.optType2(Direction::Out).Selected());
  GoTo("大地五金");  // a sales dealer
  EXPECT_TRUE(form.optType2(Direction::In).Selected());
}

TEST_F(RegisterKeying, StoresTheNewRecordAsItWasTypedAfterALookAtTheList) {
  frmZj& form = Customers();
  Arm(RecordAction::Add);
  world.Type(form.txtAcnt(RecordBox::Code), "0009");
  world.Type(form.txtAcnt(RecordBox::Name), "新客户");
  GoTo("北方贸易");
  ASSERT_TRUE(form.UserTab(form.SSTab1, RegisterTab::Record));
  world.Answer("ok");
  ASSERT_TRUE(form.UserClick(form.cmdKhSave));
  EXPECT_EQ(world.One("select compname from cards where CompCode='0009'"), "新客户");
  EXPECT_EQ(world.One("select count(*) from cards"), "4");
}

TEST_F(RegisterKeying, ShowsTheRecordAgainWhenAChangeIsArmedAfterAnAdd) {
  Customers();
  GoTo("北方贸易");
  Arm(RecordAction::Add);
  Arm(RecordAction::Change);
  EXPECT_EQ(Contact(), "张三");
}

TEST_F(RegisterKeying, PutsTheOrderBackThatTheUserDidNotWantToLeaveFor) {
  frmZj& form = Customers();
  Arm(RecordAction::Change);
  world.Type(form.txtAcnt(RecordBox::Contact), "赵六");
  world.Answer("cancel");
  EXPECT_FALSE(form.UserChoose(form.cboKhOrder, 1));
  EXPECT_EQ(form.cboKhOrder.ListIndex(), 0);
  EXPECT_EQ(world.Messages(), Texts{"[客户修改]尚未存盘，放弃所键入的内容 ?"});
  world.Answer("cancel");
  EXPECT_FALSE(form.UserChoose(form.cboHb2, 0));
  EXPECT_EQ(form.cboHb2.ListIndex(), -1);
}

TEST_F(RegisterKeying, AsksOnceForAllThatIsUnsaved) {
  frmZj& form = Customers();
  Arm(RecordAction::Change);
  world.Type(form.txtAcnt(RecordBox::Contact), "赵六");
  ASSERT_TRUE(form.UserClick(form.cmdKhMemo));
  world.Type(form.txtKhMemo, "月结");
  ASSERT_TRUE(form.UserClick(form.cmdAction(kActionNew)));
  world.Type(form.txtAcnt2(EntryBox::Brief), "半途");
  world.Answer("cancel");
  form.UserClick(form.cmdExit);
  EXPECT_EQ(world.Messages(), Texts{"[帐目新增][客户修改][客户详情]尚未存盘，放弃所键入的内容 ?"});
  EXPECT_EQ(world.headless.boxes.Shown().size(), 0u);
  form.Close();  // the host asks nobody
  EXPECT_EQ(world.control.Form(), nullptr);
  EXPECT_TRUE(world.Messages().empty());
}

TEST_F(RegisterKeying, AsksInTheLanguageOfTheForm) {
  world.control.setLanguage(1);
  frmZj& form = Customers();
  Arm(RecordAction::Change);
  world.Type(form.txtAcnt(RecordBox::Contact), "赵六");
  world.Answer("cancel");
  form.UserClose();
  EXPECT_EQ(world.Messages(), Texts{"[客戶修改]尚未保存，放棄所鍵入的內容 ?"});
}

TEST_F(RegisterKeying, KeepsAnUnsavedDetailWhenTheRecordIsSaved) {
  frmZj& form = Customers();
  GoTo("北方贸易");
  ASSERT_TRUE(form.UserClick(form.cmdKhMemo));
  world.Type(form.txtKhMemo, "月结");
  Arm(RecordAction::Change);
  world.Type(form.txtAcnt(RecordBox::Contact), "赵六");
  world.Answer("ok");
  ASSERT_TRUE(form.UserClick(form.cmdKhSave));
  EXPECT_EQ(form.txtKhMemo.Text(), "月结");
  EXPECT_EQ(world.One("select name from cards where compname='北方贸易'"), "赵六");
}

TEST_F(RegisterKeying, LeavesTheRecordPageByEscWhenNothingIsUnsaved) {
  frmZj& form = Customers();
  for (const int action : {RecordAction::Add, RecordAction::Change, RecordAction::Delete}) {
    Arm(action);
    Key("Esc");
    EXPECT_EQ(form.SSTab1.Tab(), RegisterTab::List) << action;
    EXPECT_EQ(form.Focused(), &form.Grid1) << action;
    EXPECT_FALSE(form.cmdKhSave.Visible()) << action;
  }
  EXPECT_TRUE(world.Messages().empty());
}

TEST_F(RegisterKeying, DoesNothingByEscOnAPageWhereNothingIsArmed) {
  frmZj& form = Customers();
  for (const int page : {RegisterTab::List, RegisterTab::Record, RegisterTab::Search}) {
    ASSERT_TRUE(form.UserTab(form.SSTab1, page));
    EXPECT_FALSE(form.UserKey(ui::Key::Named(ui::Key::Name::Escape)));
    EXPECT_EQ(form.SSTab1.Tab(), page);
  }
}

TEST_F(RegisterKeying, TakesTheFocusIntoTheDetailAndGivesItUpByEsc) {
  frmZj& form = Customers();
  ASSERT_TRUE(form.UserClick(form.cmdKhMemo));
  EXPECT_EQ(form.Focused(), &form.txtKhMemo);
  Key("Esc");
  EXPECT_FALSE(form.fraKhMemo.Visible());
  EXPECT_NE(form.Focused(), &form.txtKhMemo);
  EXPECT_TRUE(world.Messages().empty());
}

TEST_F(RegisterKeying, LosesNothingOfADetailThatIsSaved) {
  frmZj& form = Customers();
  GoTo("北方贸易");
  ASSERT_TRUE(form.UserClick(form.cmdKhMemo));
  world.Type(form.txtKhMemo, "月结");
  ASSERT_TRUE(form.UserClick(form.cmdSave));
  world.Messages();
  GoTo("华东电子");
  EXPECT_TRUE(world.Messages().empty());
  EXPECT_EQ(form.txtKhMemo.Text(), "");
}

TEST_F(RegisterKeying, ClearsTheArrowWithTheOrderItStoodFor) {
  frmZj& form = Customers();
  ASSERT_TRUE(form.UserHeader(form.Grid1, 3));
  EXPECT_EQ(form.Grid1.SortedColumn(), 3);
  EXPECT_EQ(form.Grid1.Header(3), "联系人↓");
  ASSERT_TRUE(form.UserClick(form.cmdAcntRefresh));
  EXPECT_EQ(form.Grid1.SortedColumn(), 0);
  EXPECT_EQ(form.Grid1.Header(3), "联系人");
}

}  // namespace
}  // namespace qvzj::test
