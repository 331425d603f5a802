#include "tests/ledger/ledger_world.h"

namespace qvzj::test {
namespace {

class LedgerTotals : public LedgerTest {};

TEST_F(LedgerTotals, CountOpeningAmountsOfBothDirectionsInMoneyAccounts) {
  Add({.type1 = 1, .type2 = "1", .number = "N1", .init = "1", .a = "500"});
  Add({.type1 = 1, .type2 = "2", .number = "N2", .init = "1", .a = "70"});
  EXPECT_EQ(Total(Open(kAccounts), 0), "570.00");
}

TEST_F(LedgerTotals, BalanceAnAccountWithOpeningAmountsOfBothDirections) {
  Add({.type1 = 1, .type2 = "1", .number = "N1", .init = "1", .a = "500"});
  Add({.type1 = 1, .type2 = "2", .number = "N2", .init = "1", .a = "70"});
  Add({.type1 = 1, .type2 = "1", .number = "N3", .b = "30"});
  Add({.type1 = 1, .type2 = "2", .number = "N4", .b = "10"});
  EXPECT_EQ(Total(Open(kAccounts), 5), "590.00");
}

TEST_F(LedgerTotals, SayWhatIsStillToPayWhereSomethingWasPaid) {
  Add({.type2 = "2", .a = "50", .b = "20"});
  frmZj& form = Open();
  EXPECT_EQ(Total(form, 3), "50.00");
  EXPECT_EQ(Total(form, 4), "20.00");
  EXPECT_EQ(Total(form, 5), "30.00");
}

TEST_F(LedgerTotals, GoBackTo0WithTheLastEntryAndLeaveTheEditor) {
  Add({.type2 = "1", .number = "N1", .a = "100", .b = "30"});
  Add({.type2 = "2", .number = "N2", .a = "50", .b = "20"});
  frmZj& form = Open();
  for (int i = 0; i < 6; ++i) ASSERT_NE(Total(form, i), "0.00") << i;
  const std::string shown = form.txtAcnt2(1).Text();
  world.Sql("delete from tAccountDetail;");
  form.UserClick(form.OptSelect(2));
  EXPECT_EQ(form.Grid2.RowCount(), 0);
  for (int i = 0; i < 6; ++i) EXPECT_EQ(Total(form, i), "0.00") << i;
  EXPECT_EQ(form.txtAcnt2(1).Text(), shown);
  EXPECT_TRUE(form.Grid2.Visible());
}

TEST_F(LedgerTotals, GoBackTo0WhenTheLedgerCannotBeRead) {
  Add({.type2 = "1", .number = "N1", .a = "100", .b = "30"});
  Add({.type2 = "2", .number = "N2", .a = "50", .b = "20"});
  frmZj& form = Open();
  for (int i = 0; i < 6; ++i) ASSERT_NE(Total(form, i), "0.00") << i;
  world.Sql("alter table tAccountDetail rename column fBrief to gone;");
  EXPECT_FALSE(form.UserClick(form.OptSelect(0)));
  for (int i = 0; i < 6; ++i) EXPECT_EQ(Total(form, i), "0.00") << i;
}

}  // namespace
}  // namespace qvzj::test
