#include "services/gate.h"

#include <gtest/gtest.h>

#include "services/connect.h"
#include "tests/services/fake_data.h"

namespace qvzj {
namespace {

using test::FakeWorld;

/// The user component as a host may bring it: logs "clerk" in unless it is told to fail.
struct FakeUser : UserComponent {
  void Run(UserCall& call) override {
    if (call.action != UserCall::kLogin || cancelled) return;
    call.access.user_path = "/data/books";
    call.comp_name = "总公司";
    call.user_name = "clerk";
    call.my_power = "101";
    call.zg_name = "boss";
    call.login_model = "model";
    call.login_info = "info";
  }
  bool cancelled = false;
};

struct GateWorld : FakeWorld {
  GateWorld() {
    headless.user.inner = &user;
    Shared().UserName = "clerk";
    OpenData();
  }
  // One row in the function table.
  void Function(const std::string& serial, const std::string& second_pass = "0",
                const std::string& password = "") {
    engine.answer = [=](const std::string&) {
      return test::FakeAnswer{{"SerialNo", "model_Name", "Model_Name_0", "SecondPass", "password"},
                              {{serial, "mnuCard", "客户资料", second_pass, password}}};
    };
  }
  void Rights(size_t position) {
    Shared().myPower = std::string(350, '0');
    Shared().myPower[position - 1] = '1';
  }
  void Answer(const std::string& text) { headless.boxes.Queue({text, true}); }

  FakeUser user;
};

TEST(ModuleGate, AnswersTheFunctionsNumberWithoutACheck) {
  GateWorld world;
  world.Function("17", "1", "abc");
  Shared().myPower = std::string(350, '0');
  EXPECT_EQ(ModuleGate("mnuCard", 0, false), 17);
  EXPECT_TRUE(world.Messages().empty());
}

TEST(ModuleGate, LooksTheFunctionUpByInternalOrShownNameToTheLetter) {
  GateWorld world;
  ModuleGate("mnuCard", 0, false);
  EXPECT_EQ(world.engine.statements.back(),
            "select SerialNo,model_Name,Model_Name_0,SecondPass,password from tSysFunc Where "
            "NoUse_=0 And Model_Name = 'mnuCard' or Model_Name_0 = 'mnuCard'");
}

TEST(ModuleGate, TakesTheShownNameOfTheCurrentLanguage) {
  GateWorld world;
  Shared().Language = 1;
  ModuleGate("mnuCard", 0, false);
  EXPECT_EQ(world.engine.statements.back(),
            "select SerialNo,model_Name,Model_Name_1,SecondPass,password from tSysFunc Where "
            "NoUse_=0 And Model_Name = 'mnuCard' or Model_Name_1 = 'mnuCard'");
}

TEST(ModuleGate, AnswersMinusThousandForAnUnknownFunction) {
  GateWorld world;
  world.engine.answer = nullptr;
  EXPECT_EQ(ModuleGate("mnuNothing", 0, true), -1000);
}

TEST(ModuleGate, AnswersOneForAnEmptyNameWithoutAskingTheDatabase) {
  GateWorld world;
  EXPECT_EQ(ModuleGate("", 0, true), 1);
  EXPECT_TRUE(world.engine.statements.empty());
}

TEST(ModuleGate, RefusesWithoutTheRight) {
  GateWorld world;
  world.Function("3");
  Shared().myPower = "110";
  EXPECT_EQ(ModuleGate("mnuCard", 0, true), -3);
  const auto shown = world.headless.boxes.TakeShown();
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(shown[0].text, "您无权进行:客户资料 !");
  EXPECT_EQ(shown[0].style, box::kExclamation);
  EXPECT_TRUE(world.headless.user.calls.empty());
}

TEST(ModuleGate, NamesTheActionOfTheOffsetInTheRefusal) {
  GateWorld world;
  world.Function("3");
  Shared().myPower = std::string(350, '0');
  EXPECT_EQ(ModuleGate("mnuCard", 2, true), -5);
  EXPECT_EQ(ModuleGate("mnuCard", 3, true), -6);
  EXPECT_EQ(world.Messages(),
            (std::vector<std::string>{"您无权进行:修改-客户资料 !", "您无权进行:删除-客户资料 !"}));
}

TEST(ModuleGate, ReadsTheRightAtTheNumberPlusTheOffset) {
  GateWorld world;
  world.Function("3");
  world.Rights(5);
  EXPECT_EQ(ModuleGate("mnuCard", 2, true), 5);
  EXPECT_EQ(ModuleGate("mnuCard", 0, true), -3);
}

TEST(ModuleGate, RefusesAFunctionBeyondTheEndOfTheRights) {
  GateWorld world;
  world.Function("351");
  Shared().myPower = std::string(350, '1');
  EXPECT_EQ(ModuleGate("mnuCard", 0, true), -351);
}

TEST(ModuleGate, OpensFunctionMinusOneWithoutAnyRight) {
  GateWorld world;
  world.Function("-1");
  Shared().myPower = std::string(350, '0');
  EXPECT_EQ(ModuleGate("mnuCard", 0, true), -1);
  EXPECT_TRUE(world.Messages().empty());
  EXPECT_EQ(world.headless.user.calls.size(), 1u);
}

TEST(ModuleGate, OverflowsLoudlyWhenNumberPlusOffsetLeaves16Bits) {
  GateWorld world;
  world.Function("32767");
  EXPECT_THROW(ModuleGate("mnuCard", 1, false), OverflowError);
}

TEST(ModuleGate, RecordsTheOpeningOfAFunctionAfterAllChecks) {
  GateWorld world;
  world.Function("3", "1", "abc");
  world.Rights(3);
  world.Answer("abc");
  EXPECT_EQ(ModuleGate("客户资料", 0, true), 3);
  ASSERT_EQ(world.headless.user.calls.size(), 1u);
  EXPECT_EQ(world.headless.user.calls[0].action, UserCall::kRecordAccess);
  EXPECT_EQ(world.headless.user.calls[0].function, "mnuCard客户资料");
  EXPECT_EQ(world.headless.user.calls[0].user_name, "clerk");
}

TEST(ModuleGate, RefusesAWrongSecondPassword) {
  GateWorld world;
  world.Function("3", "1", "abc");
  world.Rights(3);
  world.Answer("ABC");
  EXPECT_EQ(ModuleGate("mnuCard", 0, true), -3);
  EXPECT_TRUE(world.headless.user.calls.empty());
}

TEST(ModuleGate, NeverPromptsForAPasswordThatIsNotInForce) {
  GateWorld world;
  world.Function("3", "0", "abc");
  world.Rights(3);
  EXPECT_EQ(ModuleGate("mnuCard", 0, true), 3);
  EXPECT_TRUE(world.Messages().empty());
}

TEST(ModuleGate, LogsAUserInWhenNobodyIs) {
  GateWorld world;
  world.Function("17");
  Shared().UserName = "";
  Shared().UserPath = "/old";
  Shared().myModel = "11111111111";
  Shared().PowerPath = "C:\\rights\\";
  EXPECT_EQ(ModuleGate("mnuCard", 0, false), 17);
  ASSERT_EQ(world.headless.user.calls.size(), 1u);
  const UserCall& call = world.headless.user.calls[0];
  EXPECT_EQ(call.action, UserCall::kLogin);
  EXPECT_EQ(call.rights_file, "C:\\rights\\qvSet.mdb");
  EXPECT_EQ(call.my_model, "11111111111");
  EXPECT_EQ(call.flag, 1);
  EXPECT_EQ(Shared().UserName, "clerk");
  EXPECT_EQ(Shared().UserPath, "/data/books");
  EXPECT_EQ(Shared().CompName, "总公司");
  EXPECT_EQ(Shared().myPower, "101");
  EXPECT_EQ(Shared().ZgName, "boss");
  EXPECT_EQ(Shared().LoginModel, "model");
  EXPECT_EQ(Shared().LoginInfo, "info");
}

TEST(ModuleGate, PutsAFixedTextIntoThePathAfterALoginInServerMode) {
  GateWorld world;
  Shared().UserName = "";
  Shared().SQLData = 1;
  ModuleGate("mnuCard", 0, false);
  EXPECT_EQ(Shared().UserPath, "SQL Server");
}

TEST(ModuleGate, LeavesTheExemptUserAndTheRightsWhenTheLoginIsCancelled) {
  GateWorld world;
  Shared().UserName = "";
  Shared().ZgName = "boss";
  Shared().myPower = "011";
  world.user.cancelled = true;
  ModuleGate("mnuCard", 0, false);
  EXPECT_EQ(Shared().ZgName, "boss");
  EXPECT_EQ(Shared().myPower, "011");
}

TEST(ModuleGate, AnswersMinusThousandWhenTheLoginIsCancelled) {
  GateWorld world;
  world.user.cancelled = true;
  Shared().UserName = "";
  EXPECT_EQ(ModuleGate("", 0, false), -1000);
}

TEST(ModuleGate, SaysWhenAProgramHasNoUserComponent) {
  GateWorld world;
  Around().user = nullptr;
  Shared().UserName = "";
  EXPECT_THROW(ModuleGate("mnuCard", 0, false), Error);
}

TEST(PasswordGate, OpensWithoutAskingWhenThereIsNoPassword) {
  FakeWorld world;
  EXPECT_TRUE(PasswordGate(""));
  EXPECT_TRUE(world.Messages().empty());
}

TEST(PasswordGate, IgnoresBlanksAroundBothPasswords) {
  GateWorld world;
  world.Answer(" abc");
  EXPECT_TRUE(PasswordGate("abc "));
  EXPECT_EQ(world.Messages(), std::vector<std::string>{"Please input the Model password !"});
}

TEST(PasswordGate, DeniesAWrongAnswerOnceAndAsksNoMore) {
  GateWorld world;
  world.Answer("Abc");
  EXPECT_FALSE(PasswordGate("abc"));
  const auto shown = world.headless.boxes.TakeShown();
  ASSERT_EQ(shown.size(), 2u);
  EXPECT_EQ(shown[1].text, "Deny Access: The Model password is not valid!");
  EXPECT_EQ(shown[1].style, box::kExclamation);
}

TEST(PasswordGate, TakesACancelAsAnEmptyAnswer) {
  GateWorld world;
  world.headless.boxes.Queue({"cancel", false});
  EXPECT_FALSE(PasswordGate("abc"));
  world.headless.boxes.Queue({"cancel", false});
  EXPECT_TRUE(PasswordGate("  "));
}

}  // namespace
}  // namespace qvzj
