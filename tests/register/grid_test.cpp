#include "register/grid.h"

#include "tests/register/register_fixture.h"

namespace qvzj::test {
namespace {

using RegisterGrid = RegisterTest;

TEST_F(RegisterGrid, CopiesTheRowIntoTheRecordPage) {
  frmZj& form = Customers();
  GoTo("大地五金");
  EXPECT_EQ(form.txtAcnt(0).Text(), "0002");
  EXPECT_EQ(form.txtAcnt(1).Text(), "大地五金");
  EXPECT_EQ(form.txtAcnt(6).Text(), "广东");
  EXPECT_EQ(form.txtAcnt(10).Text(), "");
  EXPECT_TRUE(form.optKhType(2).Selected());
  EXPECT_EQ(form.lblKhName.Caption(), "大地五金");
  EXPECT_EQ(form.lblKhName.Tag(), "3");
}

TEST_F(RegisterGrid, ShowsTheFirstTypeForATypeOfFourOrMoreOrNone) {
  world.Sql("Update cards Set fType0=4 Where fID=1; Update cards Set fType0=Null Where fID=2;");
  frmZj& form = Customers();
  GoTo("大地五金");
  GoTo("北方贸易");
  EXPECT_TRUE(form.optKhType(0).Selected());
  GoTo("大地五金");
  GoTo("华东电子");
  EXPECT_TRUE(form.optKhType(0).Selected());
}

TEST_F(RegisterGrid, NamesTheRecordWhoseTypeIsNoByteAndKeepsTheOneBefore) {
  for (const char* code : {"256", "-1"}) {
    world.Sql(std::string("Update cards Set fType0=") + code + " Where fID=3;");
    frmZj& form = Customers();
    GoTo("北方贸易");
    world.headless.boxes.TakeErrors();
    form.UserCell(form.Grid1, 2, 2);
    EXPECT_EQ(world.headless.boxes.TakeErrors(),
              (Texts{std::string("数据有误：大地五金 的类别代码 ") + code +
                     " 不在 0 至 255 之间。请检查数据！"}));
    EXPECT_EQ(form.lblKhName.Caption(), "北方贸易");
    EXPECT_EQ(form.txtAcnt(1).Text(), "北方贸易");
    form.UserClose();
  }
}

TEST_F(RegisterGrid, TakesNoRecordWhoseIdIsNoNumber) {
  Customers();
  world.Sql(
      "Create Table crafted As Select * From cards; Drop Table cards;"
      "Alter Table crafted Rename To cards; Update cards Set fID='2 or 1=1' Where fID=2;");
  frmZj& form = world.Form();
  form.UserClick(form.cmdAcntRefresh);
  EXPECT_EQ(world.headless.boxes.TakeErrors(),
            (Texts{"数据有误：cards.fID 应为数字，现为“2 or 1=1”。未执行任何操作，请检查数据！"}));
  EXPECT_EQ(world.One("Select count(*) From cards"), "3");
}

TEST_F(RegisterGrid, StartsTheFirstSortDescendingAndFlipsItThen) {
  frmZj& form = Customers();
  ASSERT_TRUE(form.UserHeader(form.Grid1, 1));
  EXPECT_EQ(form.Grid1.Header(1), "编号↓");
  EXPECT_EQ(Names(), (Texts{"北方贸易", "大地五金", "华东电子"}));
  ASSERT_TRUE(form.UserHeader(form.Grid1, 1));
  EXPECT_EQ(form.Grid1.Header(1), "编号↑");
  EXPECT_EQ(Names(), (Texts{"华东电子", "大地五金", "北方贸易"}));
  ASSERT_TRUE(form.UserHeader(form.Grid1, 1));
  EXPECT_EQ(form.Grid1.Header(1), "编号↓");
}

TEST_F(RegisterGrid, SortsAnotherColumnInTheOrderLastUsedAndMovesTheArrow) {
  frmZj& form = Customers();
  form.UserHeader(form.Grid1, 1);
  form.UserHeader(form.Grid1, 1);
  ASSERT_TRUE(form.UserHeader(form.Grid1, 2));
  EXPECT_EQ(form.Grid1.Header(1), "编号");
  EXPECT_EQ(form.Grid1.Header(2), "客户单位↑");
  EXPECT_EQ(Names(), (Texts{"北方贸易", "大地五金", "华东电子"}));
}

TEST_F(RegisterGrid, OrdersByStrokeInTraditionalChinese) {
  world.control.setLanguage(1);
  frmZj& form = Customers();
  form.UserHeader(form.Grid1, 2);
  form.UserHeader(form.Grid1, 2);
  EXPECT_EQ(Names(), (Texts{"大地五金", "北方贸易", "华东电子"}));
}

TEST_F(RegisterGrid, KeepsTheCurrentRecordWhenItSorts) {
  frmZj& form = Customers();
  GoTo("大地五金");
  form.UserHeader(form.Grid1, 1);
  EXPECT_EQ(form.lblKhName.Caption(), "大地五金");
}

TEST_F(RegisterGrid, NeverSortsOnAClickIntoACell) {
  frmZj& form = Customers();
  ASSERT_TRUE(form.UserCell(form.Grid1, 1, 2));
  EXPECT_EQ(form.Grid1.SortColumn(), 0);
  EXPECT_EQ(form.Grid1.Header(1), "编号");
}

TEST_F(RegisterGrid, ChangesNothingWithinOneRow) {
  frmZj& form = Customers();
  world.Statements();
  form.txtAcnt(2).SetText("untouched");
  ASSERT_TRUE(form.UserCell(form.Grid1, 4, form.Grid1.ActiveRow()));
  EXPECT_TRUE(world.Statements().empty());
  EXPECT_EQ(form.txtAcnt(2).Text(), "untouched");
}

TEST_F(RegisterGrid, ReloadsTheLedgerOfTheNewRecordInSingleMode) {
  AddEntries(kCustomers, 1, 2);
  frmZj& form = Customers();
  EXPECT_EQ(form.Grid2.RowCount(), 0);
  GoTo("北方贸易");
  EXPECT_EQ(form.Grid2.RowCount(), 2);
}

TEST_F(RegisterGrid, LeavesTheLedgerAloneInTheOtherModes) {
  frmZj& form = Customers();
  for (const int option : {0, 1}) {
    ASSERT_TRUE(form.UserClick(form.OptSelect(option)));
    world.Statements();
    GoTo(option == 0 ? "北方贸易" : "大地五金");
    EXPECT_TRUE(world.Statements().empty());
  }
}

TEST_F(RegisterGrid, CarriesTheRecordIntoANewEntry) {
  frmZj& form = Customers();
  ASSERT_TRUE(form.UserClick(form.cmdAction(kActionNew)));
  GoTo("大地五金");
  EXPECT_EQ(form.txtAcnt2(2).Text(), "大地五金");
  EXPECT_EQ(form.txtAcnt2(2).Tag(), "3");
}

TEST_F(RegisterGrid, DirectsANewEntryByTheCustomersType) {
  frmZj& form = Customers();
  GoTo("北方贸易");
  ASSERT_TRUE(form.UserClick(form.cmdAction(kActionNew)));
  GoTo("华东电子");  // a supplier
  EXPECT_TRUE(form.optType2(2).Selected());
  GoTo("大地五金");  // a sales dealer
  EXPECT_TRUE(form.optType2(1).Selected());
  form.optType2(2).Select();
  GoTo("北方贸易");  // both: the direction stays
  EXPECT_TRUE(form.optType2(2).Selected());
}

TEST_F(RegisterGrid, DoesNotTouchAnEntryThatIsOnlyViewed) {
  frmZj& form = Customers();
  form.txtAcnt2(2).SetText("as it was");
  GoTo("大地五金");
  EXPECT_EQ(form.txtAcnt2(2).Text(), "as it was");
}

TEST_F(RegisterGrid, OpensTheRecordPageOnADoubleClick) {
  frmZj& form = Customers();
  ASSERT_TRUE(form.UserCellDoubleClick(form.Grid1, 2, 2));
  EXPECT_EQ(form.SSTab1.Tab(), 1);
}

TEST_F(RegisterGrid, IgnoresADoubleClickOnTheHeader) {
  frmZj& form = Customers();
  form.UserCellDoubleClick(form.Grid1, 2, 0);
  EXPECT_EQ(form.SSTab1.Tab(), 0);
}

TEST_F(RegisterGrid, WritesTheIdBackAsANumber) {
  frmZj& form = Customers();
  form.Grid1.SetCellText(form.Grid1.ColumnCount(), 1, "0012");
  ShowRegisterRow(form, 1);
  EXPECT_EQ(form.lblKhName.Tag(), "12");
}

TEST_F(RegisterGrid, ReloadsAnOpenDetailWithTheRow) {
  frmZj& form = Customers();
  ASSERT_TRUE(form.UserClick(form.cmdKhMemo));
  GoTo("北方贸易");
  EXPECT_EQ(form.txtKhMemo.Text(), "老客户");
  GoTo("华东电子");
  EXPECT_EQ(form.txtKhMemo.Text(), "");
}

}  // namespace
}  // namespace qvzj::test
