#include "ledger/query.h"

#include <array>

#include "tests/ledger/ledger_world.h"

namespace qvzj::test {
namespace {

class LedgerQuery : public LedgerTest {
 protected:
  frmZj& OpenAll(int16_t mode = kCustomers) {
    frmZj& form = Open(mode);
    form.UserClick(form.OptSelect(0));
    return form;
  }
};

TEST_F(LedgerQuery, TakesNoIdThatIsNoNumberIntoAStatement) {
  Add({.number = "N1"});
  Add({.number = "N2"});
  world.Sql(
      "create table crafted as select * from tAccountDetail; drop table tAccountDetail;"
      "alter table crafted rename to tAccountDetail;");
  for (const char* column : {"fID", "fCompID", "fID2", "fType2", "fInit"}) {
    frmZj& form = OpenAll();
    world.Sql(std::string("update tAccountDetail set ") + column +
              "='1 or 1=1' where fAcntNo='N2';");
    form.UserClick(form.cmdAcntRefresh);
    const Texts errors = world.headless.boxes.TakeErrors();
    ASSERT_EQ(errors.size(), 1u) << column;
    EXPECT_NE(errors[0].find(std::string("tAccountDetail.") + column + " 应为数字，现为“1 or 1=1”"),
              std::string::npos)
        << errors[0];
    EXPECT_EQ(form.Grid2.RowCount(), 0);
    form.UserClose();
    world.Sql(std::string("update tAccountDetail set ") + column +
              "=1;"
              "update tAccountDetail set fID=rowid;");
    world.Messages();
  }
  EXPECT_EQ(world.One("select count(*) from tAccountDetail"), "2");
}

TEST_F(LedgerQuery, SignsBalancesAndTotalsCustomers) {
  Add({.number = "N1", .a = "100", .b = "30"});
  Add({.type2 = "2", .number = "N2", .a = "50"});
  frmZj& form = Open();
  EXPECT_EQ(Column(form, col::kMoneyA), (Texts{"100.00", "-50.00"}));
  EXPECT_EQ(Column(form, col::kMoneyB), (Texts{"30.00", ""}));
  EXPECT_EQ(Column(form, col::kBalance), (Texts{"70.00", "20.00"}));
  const Texts totals = {"100.00", "30.00", "70.00", "50.00", "0.00", "50.00"};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(Total(form, i), totals[static_cast<size_t>(i)]) << i;
}

TEST_F(LedgerQuery, AddsAmountsUpInMoneyAccounts) {
  Add({.type1 = 1, .number = "N1", .init = "1", .a = "500"});
  Add({.type1 = 1, .number = "N2", .b = "30"});
  Add({.type1 = 1, .type2 = "2", .number = "N3", .b = "10"});
  frmZj& form = Open(kAccounts);
  EXPECT_EQ(Column(form, col::kMoneyA), (Texts{"500.00", "", ""}));
  EXPECT_EQ(Column(form, col::kMoneyB), (Texts{"", "30.00", "-10.00"}));
  EXPECT_EQ(Column(form, col::kBalance), (Texts{"500.00", "530.00", "520.00"}));
  EXPECT_EQ(Total(form, 0), "500.00");
  EXPECT_EQ(Total(form, 1), "30.00");
  EXPECT_EQ(Total(form, 4), "10.00");
  EXPECT_EQ(Total(form, 5), "520.00");
}

TEST_F(LedgerQuery, LeavesTheHiddenTotalsOfMoneyAccountsAsTheyWere) {
  frmZj& form = Open(kAccounts);
  form.txtTotal(2).SetText("x");
  form.txtTotal(3).SetText("y");
  Load(form);
  EXPECT_EQ(Total(form, 2), "x");
  EXPECT_EQ(Total(form, 3), "y");
}

TEST_F(LedgerQuery, CountsADirectionOf0AsPayable) {
  Add({.type2 = "0", .a = "5"});
  frmZj& form = Open();
  EXPECT_EQ(Column(form, col::kMoneyA), Texts{"-5.00"});
  EXPECT_EQ(Total(form, 3), "5.00");
}

TEST_F(LedgerQuery, ShowsZerosAsEmptyCellsButWritesAZeroBalance) {
  Add({.number = "N1", .a = "7"});
  Add({.number = "N2", .b = "7"});
  frmZj& form = Open();
  EXPECT_EQ(Column(form, col::kMoneyA), (Texts{"7.00", ""}));
  EXPECT_TRUE(form.Grid2.CellEmpty(col::kMoneyB, 1));
  EXPECT_EQ(Column(form, col::kBalance), (Texts{"7.00", "0.00"}));
}

TEST_F(LedgerQuery, HasABalanceOfExactly0WhereAmountsCancelOut) {
  Add({.number = "N1", .a = "0.1"});
  Add({.number = "N2", .a = "0.2"});
  Add({.number = "N3", .b = "0.3"});
  const ui::Grid& grid = Open().Grid2;
  EXPECT_EQ(grid.CellNumber(col::kBalance, 3), 0);
  EXPECT_DOUBLE_EQ(grid.CellNumber(col::kBalance, 2), 0.3);
}

TEST_F(LedgerQuery, RestartsTheBalanceAtEveryRegisterName) {
  Add({.comp = 1, .number = "N1", .a = "1"});
  Add({.comp = 1, .number = "N2", .a = "2"});
  Add({.comp = 2, .number = "N3", .a = "4"});
  frmZj& form = OpenAll();
  EXPECT_EQ(Column(form, col::kBalance), (Texts{"1.00", "3.00", "4.00"}));
}

TEST_F(LedgerQuery, KeepsOneBalanceOverRecordsOfTheSameName) {
  world.Sql("update cards set compname='甲公司' where fID=2;");
  Add({.comp = 1, .number = "N1", .a = "1"});
  Add({.comp = 2, .number = "N2", .a = "4"});
  EXPECT_EQ(Column(OpenAll(), col::kBalance), (Texts{"1.00", "5.00"}));
}

TEST_F(LedgerQuery, ListsEntriesWithoutARegisterRecordAsOneGroup) {
  Add({.comp = 17, .number = "N1", .a = "1"});
  Add({.comp = 18, .number = "N2", .a = "2"});
  Add({.comp = 1, .number = "N3", .a = "4"});
  frmZj& form = OpenAll();
  EXPECT_EQ(Column(form, col::kName), (Texts{"(17) - Error", "(18) - Error", "甲公司"}));
  EXPECT_EQ(Column(form, col::kBalance), (Texts{"1.00", "3.00", "4.00"}));
}

TEST_F(LedgerQuery, ShowsDatesYearFirst) {
  Add({.date = "2024-03-09"});
  EXPECT_EQ(Column(Open(), col::kDate), Texts{"2024-03-09"});
}

TEST_F(LedgerQuery, GreysCheckedEntriesAndOnlyThose) {
  Add({.number = "N1", .checker = "'王'"});
  Add({.number = "N2"});
  Add({.number = "N3", .checker = "null"});
  frmZj& form = Open();
  EXPECT_EQ(form.Grid2.RowColor(1), 0xE0E0E0u);
  EXPECT_FALSE(form.Grid2.RowColor(2).has_value());
  EXPECT_FALSE(form.Grid2.RowColor(3).has_value());
}

TEST_F(LedgerQuery, ShowsThePayableSidePositiveOnTheThirdTab) {
  Add({.number = "N1", .a = "100", .b = "30"});
  Add({.type2 = "2", .number = "N2", .a = "50", .b = "20"});
  frmZj& form = Open();
  form.UserTab(form.SSTab2, 2);
  Load(form);
  EXPECT_EQ(Column(form, col::kMoneyA), (Texts{"-100.00", "50.00"}));
  EXPECT_EQ(Column(form, col::kMoneyB), (Texts{"-30.00", "20.00"}));
  EXPECT_EQ(Column(form, col::kBalance), (Texts{"-70.00", "-40.00"}));
  EXPECT_EQ(Total(form, 0), "100.00");
  EXPECT_EQ(Total(form, 3), "50.00");
}

TEST_F(LedgerQuery, TurnsOpeningAmountsAndBalancesRoundOnTheThirdTabAsComingToItDoes) {
  Add({.type1 = 1, .number = "N1", .init = "1", .a = "500"});
  Add({.type1 = 1, .number = "N2", .b = "30"});
  frmZj& form = Open(kAccounts);
  form.UserTab(form.SSTab2, 2);
  Load(form);
  EXPECT_EQ(Column(form, col::kMoneyA), (Texts{"-500.00", ""}));
  EXPECT_EQ(Column(form, col::kMoneyB), (Texts{"", "-30.00"}));
  EXPECT_EQ(Column(form, col::kBalance), (Texts{"-500.00", "-530.00"}));
}

TEST_F(LedgerQuery, SumsManySmallAmountsToTheCent) {
  world.Sql(
      "with recursive n(i) as (select 1 union all select i+1 from n where i<100000) "
      "insert into tAccountDetail (fDate,fCompID,fType1,fType2,fAcntNo,fMoneyA,fMoneyB,"
      "fChecker,fMoneyRate) select '2024-03-01',1,0,1,printf('%06d',i),0.1,0,'',1 from n;");
  frmZj& form = Open();
  EXPECT_EQ(form.Grid2.RowCount(), 100000);
  EXPECT_EQ(Total(form, 0), "10000.00");
  EXPECT_EQ(form.Grid2.CellText(col::kBalance, 100000), "10000.00");
}

TEST_F(LedgerQuery, KeepsAnEntryWithin250Bytes) {
  world.Sql(
      "with recursive n(i) as (select 1 union all select i+1 from n where i<20000) "
      "insert into tAccountDetail (fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,"
      "fBrief,fInvID,fOrderID,fUser,fDoneman,fChecker,fID2,fMoneyCode,fMoneyRate) "
      "select date('2022-01-01','+'||(i%700)||' days'),1,0,1+i%2,printf('202403PZ%05d',i),0,i*1.5,"
      "i*0.5,'收到货款'||i,printf('CK20240315%04d',i),printf('DD20240315%04d',i),'用户'||(i%7),"
      "'经办'||(i%5),'审核'||(i%3),i%8,'RMB',1+i%3 from n;");
  frmZj& form = Open();
  ASSERT_EQ(form.Grid2.RowCount(), 20000);
  EXPECT_LE(form.Grid2.MemoryBytes() / 20000, 250u);
}

TEST_F(LedgerQuery, ShowsTheHourglassWhileItLoadsAndNotAfterwards) {
  frmZj& form = Open();
  struct Pointers : ui::FormObserver {
    void ControlChanged(ui::Control&, ui::Aspect) override {}
    void FormChanged(ui::Form& changed, ui::Aspect aspect) override {
      if (aspect == ui::Aspect::MousePointer) seen.push_back(changed.GetMousePointer());
    }
    void PopUpMenu(ui::Form&, ui::MenuItem&, int32_t, int32_t) override {}
    std::vector<ui::MousePointer> seen;
  } pointers;
  form.AddObserver(&pointers);
  Load(form);
  form.RemoveObserver(&pointers);
  using enum ui::MousePointer;
  EXPECT_EQ(pointers.seen, (std::vector{Hourglass, Default}));
}

TEST_F(LedgerQuery, BuildsTheStatementForOneRecord) {
  frmZj& form = Open();
  Load(form);
  EXPECT_EQ(world.Statements().front(),
            "Select b.fDate,b.fAcntNo,a.CompName,b.fMoneyA,b.fMoneyB,0 as hh,b.fBrief,b.fInvID,"
            "b.fOrderID,b.fUser,b.fDoneman,b.fChecker,b.fMoneyRate,b.fType2,b.fInit,b.fCompID,"
            "b.fID,b.fID2 From cards a Right Join tAccountDetail b On b.fCompID=a.fID Where "
            "b.fType1=0 And a.fID=1 Order By a.CompCode,a.CompName,b.fDate,b.fAcntNo");
}

TEST_F(LedgerQuery, OrdersByNameInMoneyAccountsWhenAsked) {
  frmZj& form = Open(kAccounts);
  form.cboKhOrder.SetListIndex(1);
  form.UserClick(form.OptSelect(0));
  EXPECT_EQ(world.Statements().front(),
            "Select b.fDate,b.fAcntNo,a.CompName,b.fMoneyA,b.fMoneyB,0 as hh,b.fBrief,b.fInvID,"
            "b.fOrderID,b.fUser,b.fDoneman,b.fChecker,b.fMoneyRate,b.fType2,b.fInit,b.fCompID,"
            "b.fID,b.fID2 From tAccounts a Right Join tAccountDetail b On b.fCompID=a.fID Where "
            "b.fType1=1 Order By a.CompName,b.fDate,b.fAcntNo");
}

TEST_F(LedgerQuery, AddsTheRegisterConditionForSelectedRecords) {
  Add({.comp = 1, .number = "N1"});
  Add({.comp = 2, .number = "N2"});
  frmZj& form = Open();
  form.registerCondition = "a.CompCode like 'C002'";
  form.UserClick(form.OptSelect(1));
  EXPECT_EQ(Column(form, col::kNumber), Texts{"N2"});
}

TEST_F(LedgerQuery, ListsTheWholeLedgerForSelectedRecordsBeforeAnySearch) {
  Add({.number = "N1"});
  Add({.type1 = 1, .number = "N2"});
  frmZj& form = Open();
  form.chkID(0).SetValue(1);
  form.txtID(0).SetText("nothing");
  form.UserClick(form.OptSelect(1));
  EXPECT_EQ(form.Grid2.RowCount(), 2);
}

TEST_F(LedgerQuery, SelectsTheEntryLastShownAgain) {
  Add({.number = "N1"});
  const std::string second = Add({.number = "N2"});
  frmZj& form = Open();
  form.UserCell(form.Grid2, 1, 2);
  Add({.date = "2024-01-01", .number = "N0"});
  Load(form);
  EXPECT_EQ(form.Grid2.ActiveRow(), 3);
  EXPECT_EQ(form.chkAcntInit.Tag(), second);
}

TEST_F(LedgerQuery, SelectsTheFirstRowWhenTheEntryIsGone) {
  Add({.number = "N1"});
  const std::string second = Add({.number = "N2"});
  frmZj& form = Open();
  form.UserCell(form.Grid2, 1, 2);
  world.Sql("delete from tAccountDetail where fID=" + second + ";");
  Load(form);
  EXPECT_EQ(form.Grid2.ActiveRow(), 1);
}

TEST_F(LedgerQuery, SelectsTheFirstRowWhileNoRecordIsCurrent) {
  Add({.number = "N1"});
  Add({.number = "N2"});
  frmZj& form = Open();
  form.UserCell(form.Grid2, 1, 2);
  form.UserClick(form.OptSelect(0));
  for (const char* tag : {"0", ""}) {
    form.UserCell(form.Grid2, 1, 2);
    form.lblKhName.SetTag(tag);
    Load(form);
    EXPECT_EQ(form.Grid2.ActiveRow(), 1);
  }
}

TEST_F(LedgerQuery, FailsOnACurrentRecordThatIsNoNumberAndShowsTheGridAgain) {
  Add({});
  frmZj& form = OpenAll();
  form.lblKhName.SetTag("x");
  EXPECT_FALSE(form.Guard([&] { LoadLedger(form, LedgerCondition(form)); }));
  EXPECT_EQ(form.Grid2.RowCount(), 0);
  EXPECT_TRUE(form.Grid2.Visible());
}

TEST_F(LedgerQuery, SaysWhichAmountsAreMissingAndLeavesTheLedgerEmpty) {
  Add({.number = "N1", .a = "1"});
  Add({.date = "2024-03-02", .number = "N2", .b = "null"});
  Add({.date = "2024-03-03", .number = "N3", .a = "null", .b = "null"});
  frmZj& form = Open();
  EXPECT_EQ(world.Messages(),
            Texts{"帐目金额为空，无法列出帐目，请先更正数据！空金额帐目笔数: 2\r\n\r\n"
                  "第一笔: 票号 N2，日期 2024-03-02"});
  EXPECT_TRUE(world.headless.boxes.TakeErrors().empty());
  EXPECT_EQ(form.Grid2.RowCount(), 0);
  EXPECT_TRUE(form.Grid2.Visible());
  EXPECT_EQ(Total(form, 0), "0.00");
  world.Sql("update tAccountDetail set fMoneyA=2,fMoneyB=2 where fMoneyB is null;");
  form.UserClick(form.OptSelect(0));
  EXPECT_EQ(form.Grid2.RowCount(), 3);
  EXPECT_TRUE(world.Messages().empty());
}

TEST_F(LedgerQuery, SaysInTraditionalChineseWhichAmountsAreMissing) {
  Shared().Language = 1;
  Add({.number = "N2", .b = "null"});
  Open();
  EXPECT_EQ(world.Messages(),
            Texts{"帳目金額為空，無法列出帳目，請先更正數據！空金額帳目筆數: 1\r\n\r\n"
                  "第一筆: 票號 N2，日期 2024-03-01"});
}

TEST_F(LedgerQuery, LetsTheUserWalkPastARecordWithAMissingAmount) {
  Add({.comp = 1, .number = "N1", .a = "null"});
  Add({.comp = 2, .number = "N2", .a = "5"});
  frmZj& form = Open();
  world.Messages();
  form.UserCell(form.Grid1, 2, 2);
  EXPECT_EQ(Column(form, col::kNumber), Texts{"N2"});
  form.UserCell(form.Grid1, 2, 1);
  EXPECT_EQ(form.lblKhName.Caption(), "甲公司");
  EXPECT_EQ(form.Grid2.RowCount(), 0);
  EXPECT_EQ(Total(form, 0), "0.00");
  EXPECT_EQ(world.Messages().size(), 1u);
}

TEST_F(LedgerQuery, ComesBackToTheSameAmountsFromThePayableTabWhereverItWasLoaded) {
  for (const int16_t mode : {kCustomers, kAccounts}) {
    world.Sql("delete from tAccountDetail;");
    Add({.type1 = mode, .number = "N1", .init = "1", .a = "10000"});
    Add({.type1 = mode, .number = "N2", .b = "300"});
    Add({.type1 = mode, .type2 = "2", .number = "N3", .b = "1500"});
    frmZj& form = Open(mode);
    const auto amounts = [&] {
      return std::array{Column(form, col::kMoneyA), Column(form, col::kMoneyB),
                        Column(form, col::kBalance)};
    };
    const auto shown = amounts();
    form.UserTab(form.SSTab2, 2);
    const auto negated = amounts();
    Load(form);
    EXPECT_EQ(amounts(), negated) << mode;
    form.UserTab(form.SSTab2, 0);
    EXPECT_EQ(amounts(), shown) << mode;
    form.UserTab(form.SSTab2, 2);
    form.UserTab(form.SSTab2, 1);
    Load(form);
    EXPECT_EQ(amounts(), shown) << mode;
    form.UserClose();
  }
}

TEST_F(LedgerQuery, ShowsTheEnginesErrorForAStatementItRefusesAndNoOldTotals) {
  Add({.a = "5"});
  frmZj& form = Open();
  form.registerCondition = "a.nosuch=1";
  form.UserClick(form.OptSelect(1));
  EXPECT_EQ(world.headless.boxes.TakeErrors().size(), 1u);
  EXPECT_TRUE(form.Grid2.Visible());
  EXPECT_EQ(form.Grid2.RowCount(), 0);
  EXPECT_EQ(Total(form, 0), "0.00");
}

TEST_F(LedgerQuery, ForgetsTheSortedOrderAtAReload) {
  Add({.number = "N1", .a = "1"});
  Add({.number = "N2", .a = "2"});
  frmZj& form = Open();
  form.UserHeader(form.Grid2, col::kMoneyA);
  EXPECT_EQ(Column(form, col::kNumber), (Texts{"N2", "N1"}));
  Load(form);
  EXPECT_EQ(Column(form, col::kNumber), (Texts{"N1", "N2"}));
}

TEST_F(LedgerQuery, FillsTheHiddenColumns) {
  const std::string id = Add({.comp = 2, .type2 = "2", .init = "1", .id2 = "7", .rate = "1.5"});
  frmZj& form = OpenAll();
  EXPECT_EQ(form.Grid2.CellText(col::kRate, 1), "1.5");
  EXPECT_EQ(form.Grid2.CellText(col::kType2, 1), "2");
  EXPECT_EQ(form.Grid2.CellText(col::kInit, 1), "1");
  EXPECT_EQ(form.Grid2.CellText(col::kCompID, 1), "2");
  EXPECT_EQ(form.Grid2.CellText(col::kID, 1), id);
  EXPECT_EQ(form.Grid2.CellText(col::kID2, 1), "7");
}

}  // namespace
}  // namespace qvzj::test
