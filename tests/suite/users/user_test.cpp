#include "suite/users/user.h"

#include <gtest/gtest.h>

#include "frontends/headless/headless.h"
#include "suite/store/connections.h"
#include "tests/suite/users/rights_folder.h"

namespace qvzj::users {
namespace {

struct SetClock : TryClock {
  int64_t Now() const override { return now; }
  int64_t now = 1000;
};

/// A rights database with the user wang (password "secret") and headless surroundings.
struct UserWorld {
  UserWorld() {
    headless.Install(connections);
    RightsDatabase rights(folder.File(), RightsDatabase::Missing::Create);
    rights.Add("wang", "secret", "101");
    rights.SetUnit("总公司");
    rights.SetExempt("boss");
    login.action = UserCall::kLogin;
    login.rights_file = folder.Path() + "\\qvSet.mdb";
    login.access.user_path = "/data";
    login.comp_name = "分公司";
  }
  ~UserWorld() { Around() = {}; }
  UserWorld(const UserWorld&) = delete;
  UserWorld& operator=(const UserWorld&) = delete;

  void Answer(const std::string& text) { headless.boxes.Queue({text, true}); }
  void Cancel() { headless.boxes.Queue({"cancel", false}); }
  // What the window's user does while it is shown.
  void InWindow(std::function<void(frmLogin&)> act) {
    headless.presenter.run_modal = [act = std::move(act)](ui::Form& form) {
      act(dynamic_cast<frmLogin&>(form));
    };
  }
  static void Type(ui::TextBox& box, const std::string& text) {
    box.GetForm().UserFocus(box);
    box.GetForm().UserInsert(box, text);
  }
  static void Press(ui::Form& form, ui::Key::Name key) { form.UserKey(ui::Key::Named(key)); }

  test::RightsFolder folder;
  Headless headless;
  store::SuiteConnections connections;
  SetClock clock;
  BoxLogin boxes;
  FormLogin window;
  UserCall login;
};

TEST(Login, ByBoxesHandsTheUsersContextBack) {
  UserWorld world;
  SuiteUser user(world.boxes, world.clock);
  world.Answer("WANG");
  world.Answer("secret");
  user.Run(world.login);
  EXPECT_EQ(world.login.user_name, "wang");
  EXPECT_EQ(world.login.my_power.substr(0, 4), "1010");
  EXPECT_EQ(world.login.zg_name, "boss");
  EXPECT_EQ(world.login.comp_name, "总公司");
  EXPECT_EQ(world.login.access.user_path, "/data");
  EXPECT_EQ(world.headless.boxes.Shown().size(), 2u);
}

TEST(Login, ByBoxesAsksAgainAfterAWrongPassword) {
  UserWorld world;
  SuiteUser user(world.boxes, world.clock);
  for (const char* text : {"wang", "wrong", "wang", "secret"}) world.Answer(text);
  user.Run(world.login);
  EXPECT_EQ(world.login.user_name, "wang");
  const auto shown = world.headless.boxes.TakeShown();
  ASSERT_EQ(shown.size(), 5u);
  EXPECT_EQ(shown[2].text, "用户名或密码不正确!");
  EXPECT_EQ(shown[2].style, box::kExclamation);
}

TEST(Login, LeavesTheUserEmptyWhenItIsCancelled) {
  UserWorld world;
  SuiteUser user(world.boxes, world.clock);
  world.Answer("wang");
  world.Cancel();
  user.Run(world.login);
  EXPECT_EQ(world.login.user_name, "");
  EXPECT_EQ(world.login.comp_name, "分公司");
}

TEST(Login, TellsHowLongTriesAreRefusedAfterTooManyWrongOnes) {
  UserWorld world;
  SuiteUser user(world.boxes, world.clock);
  for (int i = 0; i < 3; ++i) {
    world.Answer("wang");
    world.Answer("wrong");
  }
  world.Answer("wang");
  world.Answer("secret");
  world.Cancel();
  user.Run(world.login);
  EXPECT_EQ(world.login.user_name, "");
  const auto shown = world.headless.boxes.TakeShown();
  ASSERT_EQ(shown.size(), 13u);
  EXPECT_EQ(shown[11].text, "密码错误次数过多，请在 1 秒后再试!");
}

TEST(Login, KeepsTheDelayOverTwoLogins) {
  UserWorld world;
  SuiteUser user(world.boxes, world.clock);
  for (int i = 0; i < 3; ++i) {
    world.Answer("wang");
    world.Answer("wrong");
    world.Cancel();
    user.Run(world.login);
  }
  world.headless.boxes.TakeShown();
  world.Answer("wang");
  world.Answer("secret");
  world.Cancel();
  user.Run(world.login);
  EXPECT_EQ(world.login.user_name, "");
  world.clock.now += 1;
  world.Answer("wang");
  world.Answer("secret");
  user.Run(world.login);
  EXPECT_EQ(world.login.user_name, "wang");
}

TEST(Login, SaysWhenTheRightsDatabaseIsMissing) {
  UserWorld world;
  SuiteUser user(world.boxes, world.clock);
  world.login.rights_file = world.folder.Path() + "/nowhere/qvSet.mdb";
  user.Run(world.login);
  EXPECT_EQ(world.login.user_name, "");
  const auto shown = world.headless.boxes.TakeShown();
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(shown[0].style, box::kCritical);
  EXPECT_EQ(shown[0].text.rfind("用户权限数据库不能打开: ", 0), 0u);
}

TEST(Login, SpeaksTraditionalChinese) {
  UserWorld world;
  SuiteUser user(world.boxes, world.clock);
  world.login.language = 1;
  world.Cancel();
  user.Run(world.login);
  EXPECT_EQ(world.headless.boxes.Shown()[0].title, "用戶登錄");
}

TEST(LoginWindow, TakesNamePasswordAndEnter) {
  UserWorld world;
  SuiteUser user(world.window, world.clock);
  world.InWindow([&](frmLogin& form) {
    EXPECT_EQ(form.Focused(), &form.txtUser);
    world.Type(form.txtUser, "wang");
    world.Press(form, ui::Key::Name::Enter);
    EXPECT_EQ(form.Focused(), &form.txtPassword);
    world.Type(form.txtPassword, "secret");
    world.Press(form, ui::Key::Name::Enter);
    EXPECT_FALSE(form.Loaded());
  });
  user.Run(world.login);
  EXPECT_EQ(world.login.user_name, "wang");
  EXPECT_TRUE(world.headless.presenter.Open().empty());
}

TEST(LoginWindow, EmptiesAWrongPasswordAndStays) {
  UserWorld world;
  SuiteUser user(world.window, world.clock);
  world.InWindow([&](frmLogin& form) {
    world.Type(form.txtUser, "wang");
    world.Type(form.txtPassword, "wrong");
    form.UserClick(form.cmdOK);
    EXPECT_TRUE(form.Loaded());
    EXPECT_EQ(form.txtUser.Text(), "wang");
    EXPECT_EQ(form.txtPassword.Text(), "");
    EXPECT_EQ(form.Focused(), &form.txtPassword);
    form.UserClick(form.cmdCancel);
  });
  user.Run(world.login);
  EXPECT_EQ(world.login.user_name, "");
  ASSERT_EQ(world.headless.boxes.Shown().size(), 1u);
  EXPECT_EQ(world.headless.boxes.Shown()[0].text, "用户名或密码不正确!");
}

TEST(LoginWindow, ClosesByEscape) {
  UserWorld world;
  SuiteUser user(world.window, world.clock);
  bool closed = false;
  world.InWindow([&](frmLogin& form) {
    world.Press(form, ui::Key::Name::Escape);
    closed = !form.Loaded();
  });
  user.Run(world.login);
  EXPECT_TRUE(closed);
  EXPECT_EQ(world.login.user_name, "");
}

TEST(LoginWindow, HidesThePasswordAndKeepsItOffTheClipboard) {
  UserWorld world;
  SuiteUser user(world.window, world.clock);
  world.InWindow([&](frmLogin& form) {
    EXPECT_TRUE(form.txtPassword.Masked());
    world.Type(form.txtPassword, "secret");
    form.UserSelect(form.txtPassword, 0, 6);
    ui::Key copy = ui::Key::Character('c');
    copy.ctrl = true;
    form.UserKey(copy);
    EXPECT_EQ(world.headless.clipboard.Text(), "");
  });
  user.Run(world.login);
}

TEST(LoginWindow, LogsNobodyInWhereItCannotBeShownModally) {
  UserWorld world;
  SuiteUser user(world.window, world.clock);
  user.Run(world.login);
  EXPECT_EQ(world.login.user_name, "");
  EXPECT_TRUE(world.headless.presenter.Open().empty());
}

TEST(RecordAccess, GoesIntoTheRightsDatabaseOfTheLogin) {
  UserWorld world;
  SuiteUser user(world.boxes, world.clock);
  world.Answer("wang");
  world.Answer("secret");
  user.Run(world.login);
  UserCall record;
  record.action = UserCall::kRecordAccess;
  record.user_name = "wang";
  record.function = "mnuCard客户资料";
  user.Run(record);
  RightsDatabase rights(world.folder.File(), RightsDatabase::Missing::Fail);
  ASSERT_EQ(rights.Record().size(), 1u);
  EXPECT_EQ(rights.Record()[0].function, "mnuCard客户资料");
}

TEST(RecordAccess, GoesIntoTheProgramsDatabaseWhenNobodyLoggedIn) {
  UserWorld world;
  SuiteUser user(world.boxes, world.clock);
  UserCall record;
  record.action = UserCall::kRecordAccess;
  EXPECT_THROW(user.Run(record), DataError);
  user.SetRightsFile(world.folder.File());
  EXPECT_NO_THROW(user.Run(record));
}

}  // namespace
}  // namespace qvzj::users
