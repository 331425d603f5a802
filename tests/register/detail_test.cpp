#include "register/detail.h"

#include "platform/surroundings.h"
#include "tests/register/register_fixture.h"

namespace qvzj::test {
namespace {

class RegisterDetail : public RegisterTest {
 protected:
  frmZj& OpenDetail(int16_t run_mode, const std::string& name) {
    frmZj& form = world.Open(run_mode);
    GoTo(name);
    EXPECT_TRUE(form.UserClick(form.cmdKhMemo));
    return form;
  }
};

TEST_F(RegisterDetail, ShowsTheCurrentRecordsText) {
  frmZj& form = OpenDetail(0, "北方贸易");
  EXPECT_TRUE(form.fraKhMemo.Visible());
  EXPECT_EQ(form.txtKhMemo.Text(), "老客户");
}

TEST_F(RegisterDetail, ReadsTheTableOfTheMode) {
  frmZj& form = Accounts();
  GoTo("现金");
  world.Statements();
  form.UserClick(form.cmdKhMemo);
  EXPECT_EQ(world.Statements(), (Texts{"select a.detail from tAccounts a Where a.fID=1"}));
  EXPECT_EQ(form.txtKhMemo.Text(), "钱箱");
}

TEST_F(RegisterDetail, MakesRoomBelowTheLedgerAndGivesItBack) {
  frmZj& form = Customers();
  const int32_t height = form.SSTab2.GetBounds().height;
  form.UserClick(form.cmdKhMemo);
  EXPECT_EQ(form.SSTab2.GetBounds().height, height - form.fraKhMemo.GetBounds().height + 60);
  form.UserClick(form.cmdCancel);
  EXPECT_FALSE(form.fraKhMemo.Visible());
  EXPECT_EQ(form.SSTab2.GetBounds().height, height);
}

TEST_F(RegisterDetail, GivesTheRoomBackInAWindowTooSmallToBeArranged) {
  frmZj& form = Customers();
  form.UserResize(10000, 8000, ui::WindowState::Normal);
  form.UserClick(form.cmdKhMemo);
  form.UserClick(form.cmdCancel);
  EXPECT_EQ(form.SSTab2.GetBounds().height, 8000 - form.SSTab2.GetBounds().top);
}

TEST_F(RegisterDetail, ClosesOnTheSecondPressOfItsButton) {
  frmZj& form = OpenDetail(0, "北方贸易");
  form.UserClick(form.cmdKhMemo);
  EXPECT_FALSE(form.fraKhMemo.Visible());
}

TEST_F(RegisterDetail, IsEmptyWithoutACurrentRecord) {
  world.Sql("Delete From cards;");
  frmZj& form = Customers();
  world.Statements();
  form.UserClick(form.cmdKhMemo);
  EXPECT_EQ(form.txtKhMemo.Text(), "");
  EXPECT_TRUE(world.Statements().empty());
}

TEST_F(RegisterDetail, IsEmptyForAnIdThatIsNoNumberOrIsGone) {
  frmZj& form = OpenDetail(0, "北方贸易");
  LoadRegisterDetail(form, "abc");
  EXPECT_EQ(form.txtKhMemo.Text(), "");
  LoadRegisterDetail(form, "99");
  EXPECT_EQ(form.txtKhMemo.Text(), "");
}

TEST_F(RegisterDetail, StoresTheTextAndSaysSo) {
  frmZj& form = OpenDetail(0, "华东电子");
  world.Type(form.txtKhMemo, "月结");
  EXPECT_TRUE(form.cmdSave.Enabled());
  world.Statements();
  ASSERT_TRUE(form.UserClick(form.cmdSave));
  EXPECT_EQ(world.Statements(), (Texts{"select a.detail from cards a Where a.fID=2",
                                       "Update cards set detail='月结' Where fID=2"}));
  const ShownBox box = world.headless.boxes.Shown().back();
  EXPECT_EQ(box.text, "客户详情: [华东电子] 修改完毕 ！");
  EXPECT_EQ(box.style, box::kPlain);
  EXPECT_EQ(world.One("Select detail From cards Where fID=2"), "月结");
}

TEST_F(RegisterDetail, OffersToSaveOnlyAfterAChange) {
  frmZj& form = OpenDetail(0, "华东电子");
  EXPECT_FALSE(form.cmdSave.Enabled());
  world.Type(form.txtKhMemo, "月");
  form.UserClick(form.cmdSave);
  EXPECT_FALSE(form.cmdSave.Enabled());
  world.Type(form.txtKhMemo, "季");
  EXPECT_TRUE(form.cmdSave.Enabled());
}

TEST_F(RegisterDetail, SavesNothingWithoutACurrentRecord) {
  world.Sql("Delete From cards;");
  frmZj& form = Customers();
  form.UserClick(form.cmdKhMemo);
  world.Type(form.txtKhMemo, "text");
  world.Statements();
  form.UserClick(form.cmdSave);
  EXPECT_TRUE(world.Statements().empty());
  EXPECT_TRUE(form.cmdSave.Enabled());
  EXPECT_TRUE(world.Messages().empty());
}

TEST_F(RegisterDetail, RefusesATextWithAQuote) {
  frmZj& form = OpenDetail(0, "北方贸易");
  world.Type(form.txtKhMemo, "x', name='y");
  form.UserClick(form.cmdSave);
  EXPECT_EQ(world.Messages(), (Texts{"文本错误: 文本中不可含有<引号>或<单引号> !"}));
  EXPECT_TRUE(form.cmdSave.Enabled());
  EXPECT_EQ(world.One("Select detail From cards Where fID=1"), "老客户");
}

TEST_F(RegisterDetail, OpensTheContactRecordsOfTheCurrentCustomer) {
  world.control.setCompName("总公司");
  frmZj& form = Customers();
  GoTo("大地五金");
  ASSERT_TRUE(form.UserClick(form.mnuKhContact));
  ASSERT_EQ(world.headless.task.calls.size(), 1u);
  const TaskCall& call = world.headless.task.calls.front();
  EXPECT_EQ(call.customer_name, "大地五金");
  EXPECT_EQ(call.customer_id, 3);
  EXPECT_EQ(call.user_name, "admin");
  EXPECT_EQ(call.comp_name, "总公司");
  EXPECT_EQ(call.access.user_path, world.folder.Path().string());
  EXPECT_EQ(call.date, basic::Date::FromYmd(2024, 3, 15));
  EXPECT_EQ(call.mode1, 9);
  EXPECT_EQ(call.mode2, 0);
}

TEST_F(RegisterDetail, OpensNoContactWithoutACurrentCustomer) {
  world.Sql("Delete From cards;");
  frmZj& form = Customers();
  form.UserClick(form.mnuKhContact);
  EXPECT_TRUE(world.headless.task.calls.empty());
}

TEST_F(RegisterDetail, SaysSoWhereTheSuiteHasNoTaskComponent) {
  frmZj& form = Customers();
  Around().task = nullptr;
  form.UserClick(form.mnuKhContact);
  EXPECT_EQ(world.Messages(), (Texts{"联系记录组件 [qvTask] 未安装 !"}));
}

}  // namespace
}  // namespace qvzj::test
