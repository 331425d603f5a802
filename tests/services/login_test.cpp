#include <gtest/gtest.h>

#include "services/connect.h"
#include "services/gate.h"
#include "tests/services/fake_data.h"

namespace qvzj {
namespace {

/// A user component that keeps what it was given and logs nobody in.
struct WatchingUser : UserComponent {
  void Run(UserCall& call) override { given = call; }
  UserCall given;
};

struct LoginWorld : test::FakeWorld {
  LoginWorld() { headless.user.inner = &user; }
  WatchingUser user;
};

TEST(Login, IsToldEverythingThatTheHostSaid) {
  LoginWorld world;
  Context& shared = Shared();
  shared.Language = 1;
  shared.UserPath = "/books";
  shared.Password = "secret";
  shared.SQLData = 1;
  shared.UserID = "sa";
  shared.Default = "database";
  shared.myModel = "00000000001";
  shared.PowerPath = "/rights";
  shared.CompName = "总公司";
  shared.myPower = "101";
  shared.ZgName = "boss";
  shared.LoginModel = "model";
  shared.LoginInfo = "info";
  ModuleGate("mnuCard", 0, false);
  const UserCall& given = world.user.given;
  EXPECT_EQ(given.action, 4);
  EXPECT_EQ(given.language, 1);
  EXPECT_EQ(given.access.user_path, "/books");
  EXPECT_EQ(given.access.password, "secret");
  EXPECT_EQ(given.access.sql_data, 1);
  EXPECT_EQ(given.access.user_id, "sa");
  EXPECT_EQ(given.access.default_database, "database");
  EXPECT_EQ(given.my_model, "00000000001");
  EXPECT_EQ(given.rights_file, "/rights\\qvSet.mdb");
  EXPECT_EQ(given.comp_name, "总公司");
  EXPECT_EQ(given.user_name, "");
  EXPECT_EQ(given.flag, 1);
  EXPECT_EQ(given.function, "");
  EXPECT_EQ(given.my_power, "101");
  EXPECT_EQ(given.zg_name, "boss");
  EXPECT_EQ(given.login_model, "model");
  EXPECT_EQ(given.login_info, "info");
}

TEST(Login, AsksNothingWhereAUserIsKnown) {
  LoginWorld world;
  OpenData();
  Shared().UserName = "clerk";
  ModuleGate("", 0, false);
  EXPECT_EQ(world.user.given.action, 0);
}

TEST(SecondPassword, IsAskedForOnlyWhereTheColumnHoldsExactlyOne) {
  for (const char* flag : {"2", "-1", "0.5", ""}) {
    LoginWorld world;
    OpenData();
    Shared().UserName = "clerk";
    Shared().myPower = "111";
    world.engine.answer = [flag](const std::string&) {
      return test::FakeAnswer{{"SerialNo", "model_Name", "Model_Name_0", "SecondPass", "password"},
                              {{"3", "mnuCard", "客户资料", flag, "abc"}}};
    };
    EXPECT_EQ(ModuleGate("mnuCard", 0, true), 3) << flag;
    EXPECT_TRUE(world.Messages().empty()) << flag;
  }
}

}  // namespace
}  // namespace qvzj
