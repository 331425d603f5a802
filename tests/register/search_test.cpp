#include "register/search.h"

#include "tests/register/register_fixture.h"

namespace qvzj::test {
namespace {

class RegisterSearch : public RegisterTest {
 protected:
  frmZj& OpenSearch(int16_t run_mode = 0) {
    frmZj& form = world.Open(run_mode);
    EXPECT_TRUE(form.UserTab(form.SSTab1, 2));
    return form;
  }
  void Seek(int row, const std::string& text) {
    frmZj& form = world.Form();
    ASSERT_TRUE(form.UserClick(form.chkSeek(row)));
    if (text.empty()) return;
    ASSERT_TRUE(world.Type(form.txtSeek(row), text));
  }
  void Search() {
    frmZj& form = world.Form();
    ASSERT_TRUE(form.UserClick(form.cmdKhSeek));
  }
};

TEST_F(RegisterSearch, ListsTheWholeRegisterWithNothingTicked) {
  frmZj& form = OpenSearch();
  EXPECT_EQ(BuildRegisterCondition(form), "1=1");
  Search();
  EXPECT_EQ(form.Grid1.RowCount(), 3);
  EXPECT_EQ(form.registerCondition, "1=1");
}

TEST_F(RegisterSearch, ATickedRowWithoutATextFindsEveryRecordThatHasAny) {
  OpenSearch();
  world.Sql(
      "update cards set province=null where fID=1; update cards set province='' where fID=2;");
  Seek(3, "");
  Search();
  EXPECT_EQ(world.Form().Grid1.RowCount(), 2);
}

TEST_F(RegisterSearch, JoinsTheTickedRowsInOrder) {
  frmZj& form = OpenSearch();
  Seek(3, "上*");
  Seek(1, "电子");
  EXPECT_EQ(BuildRegisterCondition(form),
            "1=1 And a.compname like '%电子%' And a.province like '上%'");
  Search();
  EXPECT_EQ(Names(), (Texts{"华东电子"}));
}

TEST_F(RegisterSearch, AddsATickedRowWithoutText) {
  frmZj& form = OpenSearch();
  Seek(6, "");
  EXPECT_EQ(BuildRegisterCondition(form), "1=1 And a.telphone like '%'");
}

TEST_F(RegisterSearch, KeepsTheRegisterFilteredAcrossReloads) {
  frmZj& form = OpenSearch();
  Seek(1, "五金");
  Search();
  ASSERT_TRUE(form.UserClick(form.cmdAcntRefresh));
  EXPECT_EQ(Names(), (Texts{"大地五金"}));
}

TEST_F(RegisterSearch, AddsTheCustomerTypeAsItIsWritten) {
  frmZj& form = OpenSearch();
  ASSERT_TRUE(form.UserClick(form.optSeek(1)));
  EXPECT_EQ(BuildRegisterCondition(form), "1=1 And (a.fType0=0 or a.fType0=1)");
  ASSERT_TRUE(form.UserClick(form.optSeek(2)));
  EXPECT_EQ(BuildRegisterCondition(form), "1=1 And (a.fType0=0 Or a.fType0=2)");
  ASSERT_TRUE(form.UserClick(form.optSeek(3)));
  EXPECT_EQ(BuildRegisterCondition(form), "1=1 And (a.fType0=0 Or a.fType0=3)");
}

TEST_F(RegisterSearch, FindsCustomersWhoSupplyAndSellUnderEveryType) {
  frmZj& form = OpenSearch();
  ASSERT_TRUE(form.UserClick(form.optSeek(1)));
  Search();
  EXPECT_EQ(Names(), (Texts{"华东电子", "北方贸易"}));
}

TEST_F(RegisterSearch, IgnoresTheTypeForMoneyAccounts) {
  frmZj& form = OpenSearch(1);
  ASSERT_TRUE(form.UserClick(form.optSeek(1)));
  EXPECT_EQ(BuildRegisterCondition(form), "1=1");
}

TEST_F(RegisterSearch, MovesToTheTextOfARowThatWasTicked) {
  frmZj& form = OpenSearch();
  ASSERT_TRUE(form.UserClick(form.chkSeek(2)));
  EXPECT_EQ(form.Focused(), &form.txtSeek(2));
  ASSERT_TRUE(form.UserClick(form.chkSeek(2)));
  EXPECT_EQ(form.Focused(), &form.chkSeek(2));
}

TEST_F(RegisterSearch, WalksOnWithEnter) {
  frmZj& form = OpenSearch();
  form.UserFocus(form.chkSeek(0));
  form.UserKey(ui::Key::Named(ui::Key::Name::Enter));
  EXPECT_EQ(form.Focused(), &form.txtSeek(0));
  form.UserKey(ui::Key::Named(ui::Key::Name::Enter));
  EXPECT_EQ(form.Focused(), &form.chkSeek(1));
}

TEST_F(RegisterSearch, JumpsFromTheTypesToTheSearchButtonWithEnter) {
  frmZj& form = OpenSearch();
  form.UserFocus(form.optSeek(0));
  form.UserKey(ui::Key::Named(ui::Key::Name::Enter));
  EXPECT_EQ(form.Focused(), &form.cmdKhSeek);
}

TEST_F(RegisterSearch, JumpsFromTheSelectionToTheSearchButtonWithEnter) {
  frmZj& form = OpenSearch();
  form.UserFocus(form.OptSelect(2));
  form.UserKey(ui::Key::Named(ui::Key::Name::Enter));
  EXPECT_EQ(form.Focused(), &form.cmdKhSeek);
}

TEST_F(RegisterSearch, WalksOnFromTheSelectionWhileTheSearchPageIsBehindAnother) {
  frmZj& form = Customers();
  ASSERT_FALSE(form.cmdKhSeek.CanFocus());
  form.UserFocus(form.OptSelect(2));
  form.UserKey(ui::Key::Named(ui::Key::Name::Enter));
  ASSERT_NE(form.Focused(), nullptr);
  ui::Control* const by_enter = form.Focused();
  EXPECT_NE(by_enter, &form.OptSelect(2));
  form.UserFocus(form.OptSelect(2));
  form.UserKey(ui::Key::Named(ui::Key::Name::Tab));
  EXPECT_EQ(by_enter, form.Focused()) << "where Tab goes";
}

TEST_F(RegisterSearch, KeepsTheFocusInATextWithAQuote) {
  frmZj& form = OpenSearch();
  ASSERT_TRUE(form.UserClick(form.chkSeek(1)));
  world.Type(form.txtSeek(1), "O'Neil");
  EXPECT_FALSE(form.UserClick(form.cmdKhSeek));
  EXPECT_EQ(form.Focused(), &form.txtSeek(1));
  EXPECT_EQ(LastBox(), "文本错误: 文本中不可含有<引号>或<单引号> !");
  EXPECT_EQ(form.registerCondition, "");
}

TEST_F(RegisterSearch, ReloadsTheLedgerWhenAnotherSelectionIsChosen) {
  AddEntries(kCustomers, 1, 2);
  AddEntries(kCustomers, 2, 1);
  frmZj& form = Customers();
  EXPECT_EQ(form.Grid2.RowCount(), 1);
  ASSERT_TRUE(form.UserClick(form.OptSelect(0)));
  EXPECT_EQ(form.Grid2.RowCount(), 3);
}

}  // namespace
}  // namespace qvzj::test
