#include <gtest/gtest.h>
#include <stdio.h>
#include <sys/wait.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "tests/support/world.h"

namespace qvzj::script {
namespace {

struct Ended {
  int status = -1;
  std::string printed;
};

/// Runs the program with `arguments`, a part of a shell's command line, and `script` as its input.
Ended RunProgram(const std::string& arguments, const std::string& script = "") {
  const test::TemporaryFolder folder;
  const std::string input = (folder.Path() / "input.qvs").string();
  std::ofstream(input) << script;
  const std::string command =
      std::string(QV_SCRIPT_PROGRAM) + " " + arguments + " < " + input + " 2>/dev/null";
  Ended ended;
  FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) return ended;
  char buffer[4096];
  while (const size_t count = fread(buffer, 1, sizeof buffer, pipe)) {
    ended.printed.append(buffer, count);
  }
  const int status = pclose(pipe);
  ended.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return ended;
}

TEST(ScriptProgram, PrintsItsUsageOnRequest) {
  const Ended ended = RunProgram("--help");
  EXPECT_EQ(ended.status, 0);
  EXPECT_TRUE(ended.printed.starts_with("usage: qvzj-script"));
}

TEST(ScriptProgram, EndsWithTwoOnWrongUsage) {
  EXPECT_EQ(RunProgram("--colour").status, 2);
  EXPECT_EQ(RunProgram("--colour").printed, "");
}

TEST(ScriptProgram, EndsWithTwoWhenTheScriptCannotBeRead) {
  EXPECT_EQ(RunProgram("/no/such/script.qvs").status, 2);
}

TEST(ScriptProgram, EndsWithOneAfterAnErrorThatWasNotExpected) {
  const Ended ended = RunProgram("", "jump\n");
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.printed, "error: unknown command jump\n");
}

TEST(ScriptProgram, EndsWithZeroWhenEveryCommandWentWell) {
  const Ended ended = RunProgram("-", "expect property myName => myName=\"\"\n");
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.printed, "");
}

/// The property store that a script saves first of all, as text.
std::string StoreAfter(const std::string& arguments, const std::string& typed = "") {
  const test::TemporaryFolder folder;
  const std::string file = (folder.Path() / "store.json").string();
  EXPECT_EQ(RunProgram(arguments, typed + "save " + file + "\n").status, 0);
  std::ifstream in(file);
  return {std::istreambuf_iterator<char>(in), {}};
}

TEST(ScriptProgram, TakesThePasswordOfAServerFromAVariableOrAsksForIt) {
  setenv("QVDB_PASSWORD", "p w", 1);
  EXPECT_TRUE(StoreAfter("--server s").find("\"Password\": \"p w\"") != std::string::npos);
  EXPECT_TRUE(StoreAfter("--server s --password own").find("\"own\"") != std::string::npos);
  EXPECT_TRUE(StoreAfter("--data d").find("p w") == std::string::npos);
  unsetenv("QVDB_PASSWORD");
  EXPECT_TRUE(StoreAfter("--server s").find("p w") == std::string::npos);
  EXPECT_TRUE(StoreAfter("--server s --password -", "as'ked\n").find("\"as'ked\"") !=
              std::string::npos);
}

TEST(ScriptProgram, KeepsSettingsForTheirOwnerAlone) {
  const test::TemporaryFolder folder;
  const std::string file = (folder.Path() / "settings.json").string();
  RunProgram("--settings " + file, "setting tessary qvTask DataPath UID=u;PWD=p");
  EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms{0600});
}

TEST(ScriptProgram, KeepsSettingsInTheFileItIsGiven) {
  const test::TemporaryFolder folder;
  const std::string file = (folder.Path() / "settings.json").string();
  EXPECT_EQ(RunProgram("--settings " + file, "setting tessary qvTask DataPath /x").status, 0);
  std::ifstream in(file);
  const std::string text{std::istreambuf_iterator<char>(in), {}};
  EXPECT_NE(text.find("\"DataPath\": \"/x\""), std::string::npos) << text;
  std::ofstream(file) << "not JSON";
  EXPECT_EQ(RunProgram("--settings " + file).status, 2);
}

}  // namespace
}  // namespace qvzj::script
