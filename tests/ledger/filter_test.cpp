#include "ledger/filter.h"

#include "tests/ledger/ledger_world.h"

namespace qvzj::test {
namespace {

using basic::Date;

class LedgerFilter : public LedgerTest {};

TEST_F(LedgerFilter, IsOnlyTheModeWhenEveryBoxIsOff) {
  EXPECT_EQ(LedgerCondition(Open(kCustomers)), "b.fType1=0");
}

TEST_F(LedgerFilter, NamesMoneyAccountsInTheirMode) {
  EXPECT_EQ(LedgerCondition(Open(kAccounts)), "b.fType1=1");
}

TEST_F(LedgerFilter, CombinesDateCheckedStateAndNumberInOrder) {
  frmZj& form = Open();
  form.UserClick(form.chkDate(0));
  form.UserDate(form.dtpDate(0), Date::FromYmd(2024, 3, 1));
  form.UserClick(form.chkVerify(0));
  form.UserClick(form.chkID(0));
  world.Type(form.txtID(0), "2024*");
  EXPECT_EQ(LedgerCondition(form),
            "b.fType1=0 and b.fDate>=#03/01/2024# And b.fChecker='' And b.fAcntNo like '2024%'");
}

TEST_F(LedgerFilter, WritesEveryConditionInItsPlace) {
  frmZj& form = Open();
  Shared().DateQuote = "'";
  form.cboHb2.SetListIndex(1);
  form.chkDate(0).SetValue(1);
  form.chkDate(1).SetValue(1);
  form.dtpDate(0).SetValue(Date::FromYmd(2024, 1, 2));
  form.dtpDate(1).SetValue(Date::FromYmd(2024, 12, 31));
  form.chkVerify(1).SetValue(0);
  for (int i = 0; i < 3; ++i) {
    form.chkID(i).SetValue(1);
    form.txtID(i).SetText("d" + std::to_string(i));
    form.chkUser(i).SetValue(1);
    form.txtUser(i).SetText("*u" + std::to_string(i));
  }
  form.chkBrief.SetValue(1);
  form.txtBrief.SetText("#b");
  EXPECT_EQ(LedgerCondition(form),
            "b.fType1=0 And fMoneyCode='USD' and b.fDate>='01/02/2024' And b.fDate<='12/31/2024'"
            " And b.fChecker<>'' And b.fAcntNo like '%d0%' And b.fInvID like '%d1%'"
            " And b.fOrderID like '%d2%' And b.fBrief like '_b' And b.fUser like '%u0'"
            " And b.fDoneman like '%u1' And b.fChecker like '%u2'");
}

TEST_F(LedgerFilter, TakesAGreyedBoxAsOff) {
  frmZj& form = Open();
  form.chkDate(0).SetValue(2);
  form.chkID(0).SetValue(2);
  EXPECT_EQ(LedgerCondition(form), "b.fType1=0");
}

TEST_F(LedgerFilter, SearchesOnlyEmptyValuesForATickedBoxWithoutText) {
  frmZj& form = Open();
  form.chkBrief.SetValue(1);
  EXPECT_EQ(LedgerCondition(form), "b.fType1=0 And b.fBrief like ''");
}

TEST_F(LedgerFilter, KeepsAnInnerStarLiteral) {
  frmZj& form = Open();
  form.chkBrief.SetValue(1);
  form.txtBrief.SetText("a*c");
  EXPECT_EQ(LedgerCondition(form), "b.fType1=0 And b.fBrief like '%a*c%'");
}

TEST_F(LedgerFilter, CombinesTheCheckerPatternWithBothCheckedStates) {
  frmZj& form = Open();
  form.chkUser(2).SetValue(1);
  form.txtUser(2).SetText("王");
  EXPECT_EQ(LedgerCondition(form), "b.fType1=0 And b.fChecker like '%王%'");
}

TEST_F(LedgerFilter, MatchesNothingWhenTheDatesAreReversed) {
  Add({});
  frmZj& form = Open();
  form.chkDate(0).SetValue(1);
  form.chkDate(1).SetValue(1);
  form.dtpDate(0).SetValue(Date::FromYmd(2024, 12, 31));
  form.dtpDate(1).SetValue(Date::FromYmd(2024, 1, 1));
  Load(form);
  EXPECT_EQ(form.Grid2.RowCount(), 0);
  EXPECT_TRUE(world.Messages().empty());
}

TEST_F(LedgerFilter, KeepsTheLastTickedStateBoxTicked) {
  frmZj& form = Open();
  form.UserClick(form.chkVerify(0));
  EXPECT_EQ(form.chkVerify(0).Value(), 0);
  form.UserClick(form.chkVerify(1));
  EXPECT_EQ(form.chkVerify(1).Value(), 1);
  EXPECT_EQ(LedgerCondition(form), "b.fType1=0 And b.fChecker=''");
}

TEST_F(LedgerFilter, LeadsFromATickedBoxToItsField) {
  frmZj& form = Open();
  form.UserClick(form.chkDate(1));
  EXPECT_EQ(form.Focused(), &form.dtpDate(1));
  form.UserClick(form.chkID(2));
  EXPECT_EQ(form.Focused(), &form.txtID(2));
  form.UserClick(form.chkUser(1));
  EXPECT_EQ(form.Focused(), &form.txtUser(1));
  form.UserClick(form.chkBrief);
  EXPECT_EQ(form.Focused(), &form.txtBrief);
  form.UserClick(form.chkBrief);
  EXPECT_EQ(form.Focused(), &form.chkBrief);
}

TEST_F(LedgerFilter, WalksOnWithEnterAndEndsAtTheRefreshButton) {
  frmZj& form = Open();
  ASSERT_TRUE(form.UserFocus(form.chkDate(0)));
  Texts walked;
  while (form.Focused() != &form.cmdAcntRefresh && walked.size() < 30) {
    walked.push_back(form.Focused()->FullName());
    form.UserKey(ui::Key::Named(ui::Key::Name::Enter));
  }
  EXPECT_EQ(walked, (Texts{"chkDate(0)", "dtpDate(0)", "chkDate(1)", "dtpDate(1)", "chkID(0)",
                           "txtID(0)", "chkID(1)", "txtID(1)", "chkID(2)", "txtID(2)", "chkBrief",
                           "txtBrief", "chkUser(0)", "txtUser(0)", "chkUser(1)", "txtUser(1)",
                           "chkUser(2)", "txtUser(2)", "chkVerify(0)"}));
}

TEST_F(LedgerFilter, JumpsFromTheOtherStateBoxToTheRefreshButtonToo) {
  frmZj& form = Open();
  ASSERT_TRUE(form.UserFocus(form.chkVerify(1)));
  form.UserKey(ui::Key::Named(ui::Key::Name::Enter));
  EXPECT_EQ(form.Focused(), &form.cmdAcntRefresh);
}

TEST_F(LedgerFilter, RefusesASingleQuoteAndKeepsTheFocus) {
  frmZj& form = Open();
  for (ui::TextBox* box : {&form.txtID(0), &form.txtBrief, &form.txtUser(2)}) {
    world.Type(*box, "O'Neil");
    EXPECT_FALSE(form.UserFocus(form.Grid1));
    EXPECT_EQ(form.Focused(), box);
    EXPECT_EQ(world.Messages(), Texts{"文本错误: 文本中不可含有<引号>或<单引号> !"});
    form.UserKey(ui::Key::Named(ui::Key::Name::Escape));
  }
}

TEST_F(LedgerFilter, RunsNoStatementOfItsOwn) {
  frmZj& form = Open();
  form.UserClick(form.chkID(0));
  world.Type(form.txtID(0), "x");
  form.UserClick(form.chkVerify(0));
  form.UserFocus(form.Grid1);
  EXPECT_TRUE(world.Statements().empty());
}

}  // namespace
}  // namespace qvzj::test
