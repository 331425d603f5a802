#include "frontends/script/options.h"

#include <gtest/gtest.h>

#include "frontends/script/command.h"
#include "frontends/script/script_error.h"

namespace qvzj::script {
namespace {

TEST(ScriptOptions, ReadTheScriptAndTheDataFolder) {
  const Options options = ParseOptions({"--data", "d", "--today", "2024-03-15", "s.qvs"});
  EXPECT_EQ(options.data, "d");
  EXPECT_EQ(options.today, basic::Date::FromYmd(2024, 3, 15));
  EXPECT_EQ(options.script, "s.qvs");
}

TEST(ScriptOptions, TakeADashAsStandardInput) { EXPECT_EQ(ParseOptions({"-"}).script, ""); }

TEST(ScriptOptions, RefuseWhatTheyDoNotKnow) {
  EXPECT_THROW(ParseOptions({"--colour"}), ScriptError);
  EXPECT_THROW(ParseOptions({"--data"}), ScriptError);
  EXPECT_THROW(ParseOptions({"--today", "2024-02-30"}), ScriptError);
  EXPECT_THROW(ParseOptions({"a", "b"}), ScriptError);
  EXPECT_THROW(ParseOptions({"--data", "d", "--server", "s"}), ScriptError);
}

TEST(ScriptOptions, HelpNamesEveryCommand) {
  const std::string usage = Usage(true);
  for (const auto group : {HostCommands(), UserCommands(), LookCommands(), PictureCommands()}) {
    for (const Command& command : group) {
      EXPECT_NE(usage.find("\n  " + std::string(command.name)), std::string::npos) << command.name;
    }
  }
}

}  // namespace
}  // namespace qvzj::script
