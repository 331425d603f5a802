#include <gtest/gtest.h>

#include "services/context.h"
#include "suite/users/user.h"
#include "suite/visits/task.h"
#include "tests/support/world.h"

namespace qvzj::users {
namespace {

/// The module with the suite's own user and task components behind it.
struct SuiteWorld : test::World {
  SuiteWorld() {
    Sql("insert into tSysFunc(SerialNo,model_Name,Model_Name_0,Model_Name_1) values"
        "(1,'mnuZjComp','客户帐','客戶帳'),(2,'mnuCard','客户资料','客戶資料');"
        "insert into cards(fID,CompCode,compname,fType0) values(7,'K7','华星公司',0);");
    RightsDatabase rights((folder.Path() / kRightsFile).string(), RightsDatabase::Missing::Create);
    rights.Add("wang", "secret", "11");
    rights.SetUnit("总公司");
    rights.SetExempt("boss");
    headless.user.inner = &user;
    headless.task.inner = &task;
  }
  // Nobody is logged in and the host knows an exempt user, so that the gates ask.
  void LoggedOut() {
    control.setUserName("");
    control.setZgName("boss");
    control.setPowerPath(folder.Path().string() + "\\");
  }

  BoxLogin dialogue;
  SystemTryClock clock;
  SuiteUser user{dialogue, clock};
  visits::BoxTask task;
};

TEST(Suite, LogsTheUserInWhenTheModuleStarts) {
  SuiteWorld world;
  world.LoggedOut();
  world.AnswerText("wang");
  world.AnswerText("secret");
  frmZj& form = world.Open(0);
  EXPECT_EQ(Shared().UserName, "wang");
  EXPECT_EQ(Shared().CompName, "总公司");
  EXPECT_EQ(Shared().myPower.substr(0, 3), "110");
  EXPECT_TRUE(form.cmdManage.Enabled());
  EXPECT_FALSE(form.cmdKhPrint.Enabled()) << "the suite has no such function";
  EXPECT_EQ(world.headless.user.calls.size(), 1u);
}

TEST(Suite, EnablesNothingGatedWhenNobodyLogsIn) {
  SuiteWorld world;
  world.LoggedOut();
  for (int i = 0; i < 4; ++i) world.Answer("cancel");
  frmZj& form = world.Open(0);
  EXPECT_FALSE(form.cmdManage.Enabled());
  EXPECT_FALSE(form.mnuKhManage(1).Enabled());
  EXPECT_EQ(Shared().UserName, "");
}

TEST(Suite, KeepsACustomerWithVisitRecordsFromBeingDeleted) {
  SuiteWorld world;
  frmZj& form = world.Open(0);
  world.AnswerText("+送样品");
  world.AnswerText("");
  ASSERT_TRUE(form.UserClick(form.mnuKhContact));
  EXPECT_EQ(world.One("select fBrief from tTaskList where taskID=7 and fType=1"), "送样品");
  world.Messages();

  world.Answer("ok");
  form.UserClick(form.mnuKhManage(3));
  form.UserClick(form.cmdKhSave);
  const auto messages = world.Messages();
  ASSERT_FALSE(messages.empty());
  EXPECT_NE(messages.back().find("已有[拜访记录]存在"), std::string::npos) << messages.back();
  EXPECT_EQ(world.One("select count(*) from cards where fID=7"), "1");
}

}  // namespace
}  // namespace qvzj::users
