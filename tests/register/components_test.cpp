#include "services/context.h"
#include "tests/register/register_fixture.h"

namespace qvzj::test {
namespace {

class RegisterComponents : public RegisterTest {
 protected:
  /// What the host said, each value of its own.
  void FillShared() {
    Context& shared = Shared();
    shared.Language = 1;
    shared.UserPath = "path";
    shared.Password = "password";
    shared.SQLData = 7;
    shared.UserID = "user id";
    shared.Default = "default";
    shared.CompName = "company";
    shared.UserName = "user";
    shared.myPower = "power";
    shared.ZgName = "exempt";
  }
  void ExpectAccess(const DataAccess& access) {
    EXPECT_EQ(access.user_path, "path");
    EXPECT_EQ(access.password, "password");
    EXPECT_EQ(access.sql_data, 7);
    EXPECT_EQ(access.user_id, "user id");
    EXPECT_EQ(access.default_database, "default");
  }
};

TEST_F(RegisterComponents, TheContactIsToldEverything) {
  frmZj& form = Customers();
  GoTo("大地五金");
  FillShared();
  ASSERT_TRUE(form.UserClick(form.mnuKhContact));
  ASSERT_EQ(world.headless.task.calls.size(), 1u);
  const TaskCall& call = world.headless.task.calls.front();
  EXPECT_EQ(call.language, 1);
  ExpectAccess(call.access);
  EXPECT_EQ(call.comp_name, "company");
  EXPECT_EQ(call.user_name, "user");
  EXPECT_EQ(call.my_power, "power");
  EXPECT_EQ(call.zg_name, "exempt");
  EXPECT_EQ(call.date, basic::Date::FromYmd(2024, 3, 15));
  EXPECT_EQ(call.customer_name, "大地五金");
  EXPECT_EQ(call.customer_id, 3);
}

TEST_F(RegisterComponents, ThePrintIsToldEverything) {
  frmZj& form = Customers();
  FillShared();
  ASSERT_TRUE(form.UserClick(form.cmdKhPrint));
  ASSERT_EQ(world.headless.print.jobs.size(), 1u);
  const PrintJob& job = world.headless.print.jobs.front();
  EXPECT_EQ(job.kind, 0);
  EXPECT_EQ(job.language, 1);
  ExpectAccess(job.access);
  EXPECT_EQ(job.company, "company");
  EXPECT_EQ(job.user, "user");
  EXPECT_EQ(job.title, "客户列表清单");
  EXPECT_EQ(job.extra, "");
}

TEST_F(RegisterComponents, ThePrintTakesAnExtraTextFromTheHost) {
  frmZj& form = Customers();
  form.gotoPrint(form.Grid1, "title", "report", "extra");
  ASSERT_EQ(world.headless.print.jobs.size(), 1u);
  EXPECT_EQ(world.headless.print.jobs[0].title, "title");
  EXPECT_EQ(world.headless.print.jobs[0].report, "report");
  EXPECT_EQ(world.headless.print.jobs[0].extra, "extra");
}

TEST_F(RegisterComponents, TheMissingContactIsNamedInTraditionalChinese) {
  frmZj& form = Customers();
  Around().task = nullptr;
  Shared().Language = 1;
  form.UserClick(form.mnuKhContact);
  EXPECT_EQ(LastBox(), "聯系記錄組件 [qvTask] 未安裝 !");
}

TEST_F(RegisterComponents, EnterWalksThroughTheCustomerTypes) {
  frmZj& form = Customers();
  form.UserClick(form.mnuKhManage(1));
  for (int i = 0; i < form.optKhType.Count(); ++i) {
    ASSERT_TRUE(form.UserFocus(form.optKhType(i)));
    form.UserKey(ui::Key::Named(ui::Key::Name::Enter));
    EXPECT_EQ(form.Focused(), &form.cmdKhSave) << i;
  }
}

// A supplier's or sales dealer's side is a matter of customers: an account has no type, whatever
// its row holds.
TEST_F(RegisterComponents, AnAccountTurnsNoEntryToASide) {
  world.Sql(
      "update tAccounts set fType0=1 where fID=1; update tAccounts set fType0=2 where fID=2;");
  frmZj& form = Accounts();
  form.UserClick(form.cmdAction(1));
  form.UserClick(form.optType2(1));
  GoTo("现金");
  EXPECT_TRUE(form.optType2(1).Selected());
  form.UserClick(form.optType2(2));
  GoTo("中国银行");
  EXPECT_TRUE(form.optType2(2).Selected());
}

}  // namespace
}  // namespace qvzj::test
