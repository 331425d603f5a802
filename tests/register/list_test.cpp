#include "register/list.h"

#include "platform/basic/text.h"
#include "tests/register/register_fixture.h"

namespace qvzj::test {
namespace {

using RegisterList = RegisterTest;

const std::string kSelect =
    "select distinct a.CompCode,a.compname,a.name,a.fBank,a.fAcntID,a.others,a.province,"
    "a.cityname,a.postcode,a.telphone,a.fax,a.fType0,a.fID from ";

TEST_F(RegisterList, ListsCustomersByCode) {
  Customers();
  EXPECT_EQ(Names(), (Texts{"华东电子", "大地五金", "北方贸易"}));
}

TEST_F(RegisterList, ListsMoneyAccountsByCode) {
  Accounts();
  EXPECT_EQ(Names(), (Texts{"中国银行", "现金"}));
}

TEST_F(RegisterList, ShowsThirteenColumnsAndEmptyTextForNull) {
  frmZj& form = Customers();
  EXPECT_EQ(world.Row(form.Grid1, 2),
            (Texts{"0002", "大地五金", "王五", "", "", "", "广东", "", "", "", "", "2", "3"}));
}

TEST_F(RegisterList, OpensTheWholeRegisterWithoutACondition) {
  Customers();
  const Texts ran = world.Statements();
  EXPECT_NE(std::find(ran.begin(), ran.end(), kSelect + "cards a Order By a.CompCode"), ran.end());
}

TEST_F(RegisterList, OpensTheRegisterUnderACondition) {
  frmZj& form = Accounts();
  world.Statements();
  LoadRegister(form, "a.CompCode='A1'");
  EXPECT_EQ(world.Statements().front(),
            kSelect + "tAccounts a Where a.CompCode='A1' Order By a.CompCode");
}

TEST_F(RegisterList, LimitsTheRegisterToRecordsWithLedgerEntries) {
  AddEntries(kCustomers, 2, 3);
  frmZj& form = Customers();
  form.UserTab(form.SSTab1, 2);
  ASSERT_TRUE(form.UserClick(form.chkSeek2));
  world.Statements();
  ASSERT_TRUE(form.UserClick(form.cmdAcntRefresh));
  EXPECT_EQ(world.Statements().front(),
            kSelect +
                "cards a Right Join tAccountDetail b On a.fID=b.fCompID Where b.fType1=0 Order By "
                "a.CompCode");
  EXPECT_EQ(Names(), (Texts{"华东电子"}));
}

TEST_F(RegisterList, ListsARecordOnceHoweverManyEntriesItHas) {
  AddEntries(kCustomers, 1, 5);
  AddEntries(kCustomers, 3, 2);
  frmZj& form = Customers();
  form.chkSeek2.SetValue(1);
  LoadRegister(form, "");
  EXPECT_EQ(Names(), (Texts{"大地五金", "北方贸易"}));
}

TEST_F(RegisterList, ListsOneEmptyRowForEntriesWhoseRecordIsGone) {
  AddEntries(kCustomers, 99, 2);
  frmZj& form = Customers();
  form.chkSeek2.SetValue(1);
  LoadRegister(form, "");
  EXPECT_EQ(Names(), (Texts{""}));
  EXPECT_EQ(form.lblKhName.Tag(), "0");
}

TEST_F(RegisterList, JoinsTheRegisterConditionToTheLedgerFilter) {
  AddEntries(kCustomers, 2, 1);
  frmZj& form = Customers();
  form.chkSeek2.SetValue(1);
  world.Statements();
  LoadRegister(form, "1=1");
  EXPECT_EQ(world.Statements().front(),
            kSelect +
                "cards a Right Join tAccountDetail b On a.fID=b.fCompID Where b.fType1=0 And 1=1 "
                "Order By a.CompCode");
}

TEST_F(RegisterList, ReordersAtOnceWhenAnotherOrderIsChosen) {
  frmZj& form = Customers();
  ASSERT_TRUE(form.UserChoose(form.cboKhOrder, 1));
  EXPECT_EQ(Names(), (Texts{"北方贸易", "大地五金", "华东电子"}));
  EXPECT_EQ(basic::Left(form.cboAcntName.Items().front(), 2), "现金");
}

TEST_F(RegisterList, CountsTheRecords) {
  frmZj& form = Customers();
  EXPECT_EQ(form.lblKhTotal.Caption(), "(共3个)");
}

TEST_F(RegisterList, SelectsTheCurrentRecordAgainAfterAReload) {
  frmZj& form = Customers();
  GoTo("北方贸易");
  ASSERT_TRUE(form.UserClick(form.cmdAcntRefresh));
  EXPECT_EQ(form.Grid1.ActiveRow(), 3);
  EXPECT_EQ(form.lblKhName.Caption(), "北方贸易");
  EXPECT_EQ(form.lblKhName.Tag(), "1");
}

TEST_F(RegisterList, SelectsTheFirstRowWhenTheCurrentRecordIsGone) {
  frmZj& form = Customers();
  GoTo("北方贸易");
  world.Sql("Delete From cards Where fID=1;");
  ASSERT_TRUE(form.UserClick(form.cmdAcntRefresh));
  EXPECT_EQ(form.Grid1.ActiveRow(), 1);
  EXPECT_EQ(form.lblKhName.Caption(), "华东电子");
}

TEST_F(RegisterList, BringsTheListToTheFrontAndGivesItTheFocus) {
  frmZj& form = Customers();
  form.UserTab(form.SSTab1, 2);
  ASSERT_TRUE(form.UserClick(form.cmdKhSeek));
  EXPECT_EQ(form.SSTab1.Tab(), 0);
  EXPECT_EQ(form.Focused(), &form.Grid1);
}

TEST_F(RegisterList, LeavesAnEmptyCustomerTableEmpty) {
  world.Sql("Delete From cards;");
  frmZj& form = Customers();
  EXPECT_EQ(form.Grid1.RowCount(), 0);
  EXPECT_EQ(form.lblKhTotal.Caption(), "(共0个)");
  EXPECT_EQ(form.lblKhName.Tag(), "0");
  EXPECT_EQ(world.One("Select count(*) From cards"), "0");
}

TEST_F(RegisterList, DoesNotSwitchTheTabWhenNothingIsListed) {
  world.Sql("Delete From cards;");
  frmZj& form = Customers();
  form.UserTab(form.SSTab1, 2);
  ASSERT_TRUE(form.UserClick(form.cmdAcntRefresh));
  EXPECT_EQ(form.SSTab1.Tab(), 2);
}

TEST_F(RegisterList, SeedsTwoAccountsIntoAnEmptyAccountTable) {
  world.Sql("Delete From tAccounts;");
  frmZj& form = Accounts();
  EXPECT_EQ(form.lblKhTotal.Caption(), "(共2个)");
  EXPECT_EQ(world.Rows("Select fID,CompCode,name,compname,fBank,fAcntID From tAccounts Order By "
                       "fID"),
            (std::vector<Texts>{
                {"1", "0001", "总经理", "现金", "现金", "000001"},
                {"2", "0002", "总经理", "招商银行", "招商银行深圳分行", "075500000001"}}));
}

TEST_F(RegisterList, SeedsAgainWhenASearchMatchesNoAccount) {
  frmZj& form = Accounts();
  world.Statements();
  LoadRegister(form, "a.CompCode='nothing'");
  const Texts ran = world.Statements();
  EXPECT_EQ(ran[1], "select max(fID) from tAccounts");
  EXPECT_EQ(ran[2],
            "Insert Into tAccounts (CompCode,name,compname,fBank,fAcntID,fID) "
            "Values ('0001','总经理','现金','现金','000001',3)");
  EXPECT_EQ(ran[3],
            "Insert Into tAccounts (CompCode,name,compname,fBank,fAcntID,fID) "
            "Values ('0002','总经理','招商银行','招商银行深圳分行','075500000001',4)");
  EXPECT_EQ(ran[4], ran[0]);
  EXPECT_EQ(form.Grid1.RowCount(), 0);
}

TEST_F(RegisterList, ListsTheSeededAccountsThatMatchTheSearch) {
  frmZj& form = Accounts();
  LoadRegister(form, "a.CompCode='0001'");
  EXPECT_EQ(Names(), (Texts{"现金"}));
}

TEST_F(RegisterList, ReloadsWhenTheUserChoosesACurrency) {
  frmZj& form = Customers();
  world.Statements();
  ASSERT_TRUE(form.UserChoose(form.cboHb2, 0));
  EXPECT_TRUE(Ran(kSelect));
}

TEST_F(RegisterList, ShowsTheGridAndThePointerAgainAfterAFailedReload) {
  frmZj& form = Customers();
  world.Sql("Alter Table cards Rename To gone;");
  EXPECT_FALSE(form.UserClick(form.cmdAcntRefresh));
  EXPECT_TRUE(form.Grid1.Visible());
  EXPECT_TRUE(form.Grid2.Visible());
  EXPECT_EQ(form.GetMousePointer(), ui::MousePointer::Default);
  EXPECT_EQ(world.headless.boxes.TakeErrors().size(), 1u);
  world.Sql("Alter Table gone Rename To cards;");
  EXPECT_TRUE(form.UserClick(form.cmdAcntRefresh));
  EXPECT_EQ(form.Grid1.RowCount(), 3);
}

TEST_F(RegisterList, RefusesACurrentRecordTagThatIsNoNumber) {
  frmZj& form = Customers();
  form.lblKhName.SetTag("abc");
  EXPECT_FALSE(form.UserClick(form.cmdAcntRefresh));
  EXPECT_EQ(world.headless.boxes.TakeErrors().size(), 1u);
}

TEST_F(RegisterList, TakesTheArrowOffAHeaderWhoseOrderIsGone) {
  frmZj& form = Customers();
  ASSERT_TRUE(form.UserHeader(form.Grid1, 2));
  ASSERT_TRUE(form.UserClick(form.cmdAcntRefresh));
  EXPECT_EQ(form.Grid1.Header(2), "客户单位");
}

TEST_F(RegisterList, FollowsWithTheLedgerOfTheCurrentRecord) {
  AddEntries(kCustomers, 1, 2);
  AddEntries(kCustomers, 2, 1);
  frmZj& form = Customers();
  EXPECT_EQ(form.Grid2.RowCount(), 1);
  form.lblKhName.SetTag("1");
  LoadRegister(form, "");
  EXPECT_EQ(form.Grid2.RowCount(), 2);
}

TEST_F(RegisterList, PadsAccountNamesToFortyCharactersBeforeTheId) {
  frmZj& form = Customers();
  const std::string item = form.cboAcntName.Items().front();
  EXPECT_EQ(basic::Left(item, 40), "中国银行" + std::string(36, ' '));
  EXPECT_EQ(basic::Mid(item, 41), "2");
}

TEST_F(RegisterList, CutsAccountNamesToFortyCharacters) {
  std::string name;
  for (int i = 0; i < 45; ++i) name += "银";
  world.Sql("Update tAccounts Set compname='" + name + "' Where fID=2;");
  frmZj& form = Customers();
  EXPECT_EQ(basic::Mid(form.cboAcntName.Items().front(), 41), "2");
}

}  // namespace
}  // namespace qvzj::test
