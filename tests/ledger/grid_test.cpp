#include "ledger/grid.h"

#include "tests/ledger/ledger_world.h"

namespace qvzj::test {
namespace {

class LedgerGrid : public LedgerTest {
 protected:
  Texts Headers(const frmZj& form) {
    return {form.Grid2.CellText(col::kMoneyA, 0), form.Grid2.CellText(col::kMoneyB, 0),
            form.Grid2.CellText(col::kBalance, 0)};
  }
};

TEST_F(LedgerGrid, HeadsTheAmountsOfCustomersByTab) {
  frmZj& form = Open();
  const Texts all = {"应收(+)/应付(-)", "实收(+)/实付(-)", "应收余额"};
  EXPECT_EQ(Headers(form), all);
  form.UserTab(form.SSTab2, 1);
  EXPECT_EQ(Headers(form), (Texts{"应收", "实收", "应收余额"}));
  form.UserTab(form.SSTab2, 2);
  EXPECT_EQ(Headers(form), (Texts{"应付", "实付", "应付余额"}));
  Load(form);
  EXPECT_EQ(Headers(form), (Texts{"应付", "实付", "应付余额"}));
  form.UserTab(form.SSTab2, 0);
  EXPECT_EQ(Headers(form), all);
}

TEST_F(LedgerGrid, HeadsTheAmountsOfMoneyAccountsByTab) {
  frmZj& form = Open(kAccounts);
  EXPECT_EQ(Headers(form), (Texts{"期初金额", "进帐(+)/出帐(-)", "余额"}));
  form.UserTab(form.SSTab2, 1);
  EXPECT_EQ(Headers(form), (Texts{"期初金额", "进帐", "余额"}));
  form.UserTab(form.SSTab2, 2);
  EXPECT_EQ(Headers(form), (Texts{"期初金额", "出帐", "余额"}));
}

TEST_F(LedgerGrid, HeadsTheAmountsInTraditionalChinese) {
  Shared().Language = 1;
  frmZj& form = Open();
  EXPECT_EQ(Headers(form), (Texts{"應收(+)/應付(-)", "實收(+)/實付(-)", "應收余额"}));
}

TEST_F(LedgerGrid, TurnsTheSignsOnlyWhereThePayableTabComesOrGoes) {
  Add({.number = "N1", .a = "100", .b = "30"});
  Add({.type2 = "2", .number = "N2", .a = "50"});
  frmZj& form = Open();
  const auto amounts = [&] {
    return std::vector<Texts>{Column(form, 4), Column(form, 5), Column(form, 6)};
  };
  const auto before = amounts();
  form.UserTab(form.SSTab2, 1);
  EXPECT_EQ(amounts(), before);
  form.UserTab(form.SSTab2, 2);
  EXPECT_EQ(amounts(),
            (std::vector<Texts>{{"-100.00", "50.00"}, {"-30.00", ""}, {"-70.00", "-20.00"}}));
  EXPECT_TRUE(form.Grid2.CellEmpty(5, 2));
  form.UserTab(form.SSTab2, 0);
  EXPECT_EQ(amounts(), before);
}

TEST_F(LedgerGrid, SortsByAHeaderAndTurnsTheOrderWithEveryClick) {
  Add({.number = "N1", .a = "2"});
  Add({.number = "N2", .a = "10"});
  Add({.number = "N3", .a = "1"});
  frmZj& form = Open();
  form.UserHeader(form.Grid2, 4);
  EXPECT_EQ(Column(form, 2), (Texts{"N2", "N1", "N3"}));
  form.UserHeader(form.Grid2, 4);
  EXPECT_EQ(Column(form, 2), (Texts{"N3", "N1", "N2"}));
  form.UserHeader(form.Grid2, 2);  // keeps the ascending order last used
  EXPECT_EQ(Column(form, 2), (Texts{"N1", "N2", "N3"}));
  form.UserHeader(form.Grid2, 2);
  EXPECT_EQ(Column(form, 2), (Texts{"N3", "N2", "N1"}));
}

TEST_F(LedgerGrid, SortsTextsByPinyin) {
  Add({.number = "N1", .brief = "'中'"});
  Add({.number = "N2", .brief = "'阿'"});
  frmZj& form = Open();
  form.UserHeader(form.Grid2, col::kBrief);
  form.UserHeader(form.Grid2, col::kBrief);
  EXPECT_EQ(Column(form, col::kBrief), (Texts{"阿", "中"}));
}

TEST_F(LedgerGrid, DoesNotSortByADataCell) {
  Add({.number = "N1", .a = "1"});
  Add({.number = "N2", .a = "2"});
  frmZj& form = Open();
  form.UserCell(form.Grid2, 4, 2);
  EXPECT_EQ(Column(form, 2), (Texts{"N1", "N2"}));
}

TEST_F(LedgerGrid, KeepsTheColourWithItsRowWhenSorted) {
  Add({.number = "N1", .a = "1", .checker = "'王'"});
  Add({.number = "N2", .a = "2"});
  frmZj& form = Open();
  form.UserHeader(form.Grid2, 4);
  EXPECT_FALSE(form.Grid2.RowColor(1).has_value());
  EXPECT_TRUE(form.Grid2.RowColor(2).has_value());
}

TEST_F(LedgerGrid, ShowsTheSortedRowThatTheUserMovesTo) {
  Add({.number = "N1", .a = "1"});
  Add({.type2 = "2", .number = "N2", .a = "2"});
  frmZj& form = Open();
  form.UserHeader(form.Grid2, 4);
  form.UserCell(form.Grid2, 1, 2);
  EXPECT_EQ(form.txtAcnt2(1).Text(), "N2");
  EXPECT_EQ(form.txtAcnt2(3).Text(), "2.00");
}

TEST_F(LedgerGrid, KeepsTheFocusWhileTheUserWalksTheRows) {
  Add({.number = "N1"});
  Add({.number = "N2"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(0));
  form.UserCell(form.Grid2, 1, 2);
  EXPECT_EQ(form.Focused(), &form.Grid2);
  EXPECT_EQ(form.txtAcnt2(1).Text(), "N2");
}

TEST_F(LedgerGrid, StopsSavingOnACheckedEntryWhileAChangeIsArmed) {
  Add({.number = "N1"});
  Add({.number = "N2", .checker = "'王'"});
  Add({.number = "N3"});
  frmZj& form = Open();
  form.UserClick(form.cmdAction(2));
  form.UserCell(form.Grid2, 1, 2);
  EXPECT_FALSE(form.cmdAcntSave.Enabled());
  EXPECT_TRUE(form.txtAcnt2(6).Locked());
  form.UserCell(form.Grid2, 1, 3);
  EXPECT_TRUE(form.cmdAcntSave.Enabled());
  EXPECT_FALSE(form.txtAcnt2(6).Locked());
}

TEST_F(LedgerGrid, StopsSavingWhenAReloadSelectsACheckedEntry) {
  Add({.number = "N1", .checker = "'王'"});
  const std::string second = Add({.number = "N2"});
  frmZj& form = Open();
  form.UserCell(form.Grid2, 1, 2);
  form.UserClick(form.cmdAction(2));
  world.Sql("delete from tAccountDetail where fID=" + second + ";");
  Load(form);
  EXPECT_FALSE(form.cmdAcntSave.Enabled());
}

TEST_F(LedgerGrid, OpensTheEntryForViewingByADoubleClick) {
  Add({.number = "N1"});
  Add({.number = "N2"});
  frmZj& form = Open();
  form.UserCellDoubleClick(form.Grid2, 3, 0);
  EXPECT_FALSE(form.picAcnt.Visible());
  form.UserCellDoubleClick(form.Grid2, 3, 2);
  EXPECT_TRUE(form.picAcnt.Visible());
  EXPECT_EQ(form.cmdAcntSave.Tag(), "0");
  EXPECT_EQ(form.txtAcnt2(1).Text(), "N2");
}

TEST_F(LedgerGrid, GivesEveryRowTheHeightOfTheOneThatWasDragged) {
  Add({});
  frmZj& form = Open();
  form.UserRowHeight(form.Grid2, 1, 1, 450);
  EXPECT_EQ(form.Grid2.RowHeight(), 450);
}

}  // namespace
}  // namespace qvzj::test
