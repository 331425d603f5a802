#include "forms/startup.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "services/connect.h"
#include "services/context.h"
#include "tests/support/world.h"

namespace qvzj::test {
namespace {

using Texts = std::vector<std::string>;

class StartUp : public ::testing::Test {
 protected:
  StartUp() {
    world.Sql(
        "Insert Into cards (fID,CompCode,compname,fType0) Values (1,'0001','北方贸易',0),"
        " (2,'0002','华东电子',1);"
        "Insert Into tAccounts (fID,CompCode,compname) Values (1,'A1','现金');"
        "Insert Into Moneys (MoneyCode,MoneyRate,MoneyType) Values ('RMB',1,1),('USD',7.1,2);"
        "Insert Into Employees (employCode,employee) Values ('2','Bob'),('1','Ann');"
        "Insert Into tRsBasic (fName) Values ('Carl');");
  }
  /// Rows of the suite's function table, each in force.
  void AddFunctions(const std::vector<std::string>& names) {
    int number = 1;
    for (const std::string& name : names) {
      world.Sql(
          "Insert Into tSysFunc (SerialNo,model_Name,Model_Name_0,Model_Name_1,SecondPass,"
          "password,NoUse_) Values (" +
          std::to_string(number++) + ",'" + name + "','" + name + "-s','" + name + "-t',0,'',0);");
    }
  }
  /// The ledger as it was before entries and money accounts were linked.
  void DropLink() {
    world.Sql(
        "Drop Index iLedgerLink; Drop Index iLedgerCounter;"
        "Alter Table tAccountDetail Drop Column fID2;");
  }
  bool Ran(const std::string& statement) {
    const Texts ran = world.Statements();
    return std::find(ran.begin(), ran.end(), statement) != ran.end();
  }

  World world;
};

TEST_F(StartUp, OpensTheRegisterAndTheLedgerOfTheMode) {
  frmZj& form = world.Open(1);
  EXPECT_EQ(form.State(), 1);
  EXPECT_EQ(form.Caption(), "资金帐户管理系统");
  EXPECT_EQ(form.Grid1.RowCount(), 1);
  EXPECT_TRUE(form.Grid1.Visible());
  EXPECT_TRUE(form.Grid2.Visible());
}

TEST_F(StartUp, RunsItsStatementsInOrder) {
  world.Open(0);
  const Texts ran = world.Statements();
  const Texts begin = {"select count(*) from tAccountDetail Where 1=2",
                       "select count(*) from tJXC_InvSet Where fSetNo=51",
                       "Select MoneyCode,0 as aa from Moneys Order By MoneyType desc",
                       "select employee from Employees Order By employee",
                       "select count(*) from tAccountDetail Where fID2>0",
                       "select compname,fID from tAccounts Order By CompCode"};
  ASSERT_GE(ran.size(), begin.size());
  EXPECT_EQ(Texts(ran.begin(), ran.begin() + static_cast<long>(begin.size())), begin);
}

TEST_F(StartUp, ListsTheCurrenciesAndChoosesNoneInTheFilter) {
  frmZj& form = world.Open(0);
  EXPECT_EQ(form.cboHb.Items(), (Texts{"USD", "RMB"}));
  EXPECT_EQ(form.cboHb2.Items(), (Texts{"USD", "RMB"}));
  EXPECT_EQ(form.cboHb2.ListIndex(), -1);
}

TEST_F(StartUp, ListsTheStaffOfTheSuite) {
  frmZj& form = world.Open(0);
  EXPECT_EQ(form.cboDoneMan.Items(), (Texts{"Ann", "Bob"}));
}

TEST_F(StartUp, ListsTheStaffFromTheOtherTableForAUserWhoSetItSo) {
  world.headless.settings.Set("Tessary", "qv2000", "JbrFrom", "1");
  frmZj& form = world.Open(0);
  EXPECT_EQ(form.cboDoneMan.Items(), (Texts{"Carl"}));
}

TEST_F(StartUp, TakesTheBuiltInTemplateWhereTheSettingsHaveNone) {
  EXPECT_EQ(world.Open(0).numberTemplate, "yyyymmPZXXXXX");
}

TEST_F(StartUp, TakesTheFirstTemplateInForceOfItsSeries) {
  world.Sql(
      "Insert Into tJXC_InvSet (fSetNo,fSetNoUse_,fRowID,fSetAutoNo) Values (51,1,1,'OFFXXX'),"
      "(51,0,3,'LATEXXX'),(51,0,2,'KHXXX'),(52,0,4,'ZHXXX');");
  EXPECT_EQ(world.Open(0).numberTemplate, "KHXXX");
  EXPECT_EQ(world.Form()._getInvSet(52), "ZHXXX");
  EXPECT_EQ(world.Form()._getInvSet(60), "");
}

TEST_F(StartUp, TakesTheBuiltInTemplateWhereEveryRowIsSwitchedOff) {
  world.Sql(
      "Insert Into tJXC_InvSet (fSetNo,fSetNoUse_,fRowID,fSetAutoNo) Values (52,1,1,'OFFXXX');");
  EXPECT_EQ(world.Open(1).numberTemplate, "yyyymmPZXXXXX");
}

TEST_F(StartUp, AddsTheLinkToAnOlderLedgerOnceAndOnlyForCustomers) {
  DropLink();
  const std::string upgrade = "AlTER TABLE tAccountDetail add Column [fID2] long";
  EXPECT_EQ(world.One("Select count(*) From pragma_table_info('tAccountDetail') Where "
                      "name='fID2'"),
            "0");
  world.Open(1);
  EXPECT_FALSE(Ran(upgrade));
  world.Form().UserClose();
  world.Open(0);
  EXPECT_TRUE(Ran(upgrade));
  EXPECT_EQ(world.One("Select count(*) From pragma_table_info('tAccountDetail') Where "
                      "name='fID2'"),
            "1");
  world.Form().UserClose();
  world.Open(0);
  EXPECT_FALSE(Ran(upgrade));
}

TEST_F(StartUp, KeysInTheMoneyAccountsOfAnOlderLedgerWithoutTouchingItsTable) {
  DropLink();
  world.Sql(
      "Insert Into tAccountDetail (fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,"
      "fBrief,fChecker,fMoneyCode,fMoneyRate) Values "
      "('2024-03-01',1,1,1,'Z1',0,0,5,'','','RMB',1);");
  frmZj& form = world.Open(1);
  EXPECT_EQ(world.ColumnTexts(form.Grid2, 2), std::vector<std::string>{"Z1"});
  form.UserClick(form.cmdAction(2));
  world.Type(form.txtAcnt2(6), "改");
  form.UserClick(form.cmdAcntSave);
  EXPECT_EQ(world.One("Select fBrief From tAccountDetail Where fID=1"), "改");
  form.UserClick(form.cmdAction(1));
  world.Type(form.txtAcnt2(4), "7");
  form.UserClick(form.cmdAcntSave);
  EXPECT_EQ(world.One("Select count(*) || ' ' || sum(fMoneyB) From tAccountDetail"), "2 12.0");
  EXPECT_TRUE(world.headless.boxes.TakeErrors().empty());
  EXPECT_EQ(world.One("Select count(*) From pragma_table_info('tAccountDetail') Where "
                      "name='fID2'"),
            "0");
}

TEST_F(StartUp, OpensALedgerWithMoreLinksThanACountCanSay) {
  world.Sql(
      "With Recursive n(i) As (Select 1 Union All Select i+1 From n Where i<32768)"
      " Insert Into tAccountDetail (fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,"
      "fChecker,fID2) Select '2024-03-01',1,0,1,i,0,1,0,'',1 From n;");
  frmZj& form = world.Open(0);
  EXPECT_TRUE(Ran("AlTER TABLE tAccountDetail add Column [fID2] long"));
  EXPECT_TRUE(world.headless.boxes.TakeErrors().empty());
  form.UserClick(form.OptSelect(0));
  EXPECT_EQ(form.Grid2.RowCount(), 32768);
  EXPECT_TRUE(form.UserCell(form.Grid2, 1, 32768));
  EXPECT_EQ(form.txtTotal(0).Text(), "32768.00");
}

TEST_F(StartUp, ReportsAFailedStatementAndDoesNotOpen) {
  world.Sql("Drop Table Moneys;");
  world.control.refresh(0, 0);
  EXPECT_EQ(world.control.Form(), nullptr);
  EXPECT_EQ(world.headless.boxes.TakeErrors().size(), 1u);
  EXPECT_TRUE(world.headless.presenter.Open().empty());
}

TEST_F(StartUp, AsksNoGateForTheExemptUser) {
  frmZj& form = world.Open(0);
  for (const std::string& statement : world.Statements()) {
    EXPECT_EQ(statement.find("tSysFunc"), std::string::npos) << statement;
  }
  EXPECT_TRUE(form.cmdManage.Enabled());
  EXPECT_TRUE(form.mnuKhManage(1).Enabled());
  EXPECT_TRUE(form.mnuKhContact.Enabled());
  EXPECT_TRUE(form.cmdKhPrint.Enabled());
}

TEST_F(StartUp, DisablesWhatTheFunctionTableDoesNotKnow) {
  world.control.setUserName("ann");
  AddFunctions({"mnuZjComp", "mnuCardPrint"});
  frmZj& form = world.Open(0);
  EXPECT_TRUE(form.cmdManage.Enabled());
  EXPECT_FALSE(form.mnuKhManage(1).Enabled());
  EXPECT_FALSE(form.mnuKhContact.Enabled());
  EXPECT_TRUE(form.cmdKhPrint.Enabled());
}

TEST_F(StartUp, GatesAddingCardsByItsOwnFunctionWhereThereIsOne) {
  world.control.setUserName("ann");
  AddFunctions({"mnuZjComp", "mnuCardAdd"});
  EXPECT_TRUE(world.Open(0).mnuKhManage(1).Enabled());
}

TEST_F(StartUp, GatesAddingCardsLikeTheCardRegisterOtherwise) {
  world.control.setUserName("ann");
  AddFunctions({"mnuZjComp", "mnuCard"});
  EXPECT_TRUE(world.Open(0).mnuKhManage(1).Enabled());
}

TEST_F(StartUp, GatesTheAccountRegisterByItsOwnFunctionAndNotItsAdding) {
  world.control.setUserName("ann");
  AddFunctions({"mnuZjComp"});
  frmZj& form = world.Open(1);
  EXPECT_FALSE(form.cmdManage.Enabled());
  EXPECT_TRUE(form.mnuKhManage(1).Enabled());
}

TEST_F(StartUp, ClosesTheRegisterMenuWithItsButton) {
  world.control.setUserName("ann");
  AddFunctions({"mnuCard"});
  frmZj& form = world.Open(0);
  EXPECT_FALSE(form.cmdManage.Enabled());
  EXPECT_FALSE(form.UserClick(form.mnuKhManage(1)));
  EXPECT_FALSE(form.UserClick(form.mnuKhManage(3)));
  EXPECT_FALSE(form.cmdKhSave.Visible());
}

TEST_F(StartUp, OpensWithItsFunctionsDisabledWhenTheLoginIsBrokenOff) {
  world.control.setUserName("");
  AddFunctions({"mnuZjComp", "mnuCard", "mnuCardPlan", "mnuCardPrint"});
  frmZj& form = world.Open(0);
  EXPECT_EQ(world.headless.user.calls.size(), 4u);  // one for each function
  EXPECT_FALSE(form.cmdManage.Enabled());
  EXPECT_FALSE(form.mnuKhManage(1).Enabled());
  EXPECT_FALSE(form.mnuKhContact.Enabled());
  EXPECT_FALSE(form.cmdKhPrint.Enabled());
}

TEST_F(StartUp, OpensOnTheCustomerThatTheHostNamed) {
  world.control.setMyTaskID(2);
  world.control.setMyName("华东");
  frmZj& form = world.Open(9);
  EXPECT_EQ(form.State(), 0);
  EXPECT_EQ(form.lblKhName.Tag(), "2");
  EXPECT_EQ(form.lblKhName.Caption(), "华东电子");
  EXPECT_EQ(form.Grid1.ActiveRow(), 2);
  EXPECT_EQ(form.txtSeek(1).Text(), "华东");
  EXPECT_EQ(form.registerCondition, "1=1");
}

TEST_F(StartUp, MapsTheHostsRunModesToTheTwoRegisters) {
  EXPECT_EQ(world.Open(10).State(), 0);
  EXPECT_EQ(world.Form().mode, kCustomers);
  world.Form().UserClose();
  EXPECT_EQ(world.Open(11).State(), 1);
  EXPECT_EQ(world.Form().mode, kAccounts);
  world.Form().UserClose();
  EXPECT_EQ(world.Open(7).State(), 7);
  EXPECT_EQ(world.Form().mode, kAccounts);
}

TEST_F(StartUp, TurnsAnOpenFormToTheOtherRegister) {
  frmZj& form = world.Open(0);
  form.UserClick(form.cmdKhMemo);
  world.Open(1);
  EXPECT_EQ(&world.Form(), &form);
  EXPECT_EQ(form.Caption(), "资金帐户管理系统");
  EXPECT_EQ(world.ColumnTexts(form.Grid1, 2), (Texts{"现金"}));
  EXPECT_FALSE(form.fraKhMemo.Visible());
}

TEST_F(StartUp, KeepsAnOpenFormAsItIsWhenTheHostOpensTheSameRegisterAgain) {
  frmZj& form = world.Open(0);
  form.UserClick(form.cmdKhMemo);
  world.Open(0);
  EXPECT_TRUE(form.fraKhMemo.Visible());
}

TEST_F(StartUp, ClosesTheConnectionWithTheForm) {
  world.Open(0);
  EXPECT_EQ(Shared().cnData->State(), 1);
  world.Form().UserClose();
  EXPECT_EQ(Shared().cnData, nullptr);
  EXPECT_TRUE(world.headless.presenter.Open().empty());
}

TEST_F(StartUp, ClosesOnEitherOfItsButtons) {
  frmZj& form = world.Open(0);
  ASSERT_TRUE(form.UserClick(form.cmdExit));
  EXPECT_EQ(world.control.Form(), nullptr);
  frmZj& again = world.Open(0);
  ASSERT_TRUE(again.UserClick(again.cmdTitleClose));
  EXPECT_EQ(world.control.Form(), nullptr);
}

TEST_F(StartUp, ClosesOnEitherOfItsButtonsWhileAFieldFailsItsCheck) {
  for (const bool exit : {true, false}) {
    frmZj& form = world.Open(0);
    form.UserClick(form.chkBrief);
    world.Type(form.txtBrief, "it's");
    ASSERT_TRUE(form.UserClick(exit ? form.cmdExit : form.cmdTitleClose));
    EXPECT_EQ(world.control.Form(), nullptr);
    EXPECT_TRUE(world.Messages().empty());
  }
}

TEST_F(StartUp, OpensAFreshFormAfterAClose) {
  frmZj& form = world.Open(0);
  form.UserClick(form.OptSelect(0));
  form.UserClose();
  EXPECT_TRUE(world.Open(0).OptSelect(2).Selected());
}

TEST_F(StartUp, MakesRoomForTheEditorInAWindowTooSmallToBeArranged) {
  frmZj& form = world.Open(0);
  form.UserResize(10000, 8000, ui::WindowState::Normal);
  const int32_t top = form.Grid2.GetBounds().top;
  ASSERT_TRUE(form.UserClick(form.cmdAction(kActionNew)));
  EXPECT_EQ(form.Grid2.GetBounds().top, top + form.picAcnt.GetBounds().height + 60);
  ASSERT_TRUE(form.UserClick(form.cmdAcntCancel));
  EXPECT_EQ(form.Grid2.GetBounds().top, top);
}

TEST_F(StartUp, SetsTheDatesToToday) {
  frmZj& form = world.Open(0);
  EXPECT_EQ(form.dtpDate(0).Value(), basic::Date::FromYmd(2024, 3, 15));
  EXPECT_EQ(form.dtpAcntDate.Value(), basic::Date::FromYmd(2024, 3, 15));
}

TEST_F(StartUp, NamesEveryFieldForAssistiveTechnology) {
  frmZj& form = world.Open(0);
  for (const ui::Control* control : form.Controls()) {
    switch (control->GetKind()) {
      case ui::Kind::TextBox:
      case ui::Kind::ComboBox:
      case ui::Kind::DatePicker:
      case ui::Kind::Grid:
        EXPECT_NE(control->AccessibleName(), "") << control->FullName();
        break;
      default:
        break;
    }
  }
}

TEST_F(StartUp, ShowsTheCustomerTypesOnlyForCustomers) {
  EXPECT_TRUE(world.Open(0).fraKhType.Visible());
  world.Form().UserClose();
  EXPECT_FALSE(world.Open(1).fraKhType.Visible());
}

}  // namespace
}  // namespace qvzj::test
