#include "tests/scenarios/play.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace qvzj::test {
namespace {

namespace fs = std::filesystem;

/// Number of the capability that lets root write where the permissions forbid it.
constexpr int kDacOverride = 1;

}  // namespace

void WritePropertyStore(const fs::path& file, const ScenarioPlace& place) {
  std::ofstream(file) << R"({"myModel": "11111111111", "ZgName": "admin", "UserPath": ")"
                      << place.path << R"(", "Password": ")" << place.password
                      << R"(", "SQLData": )" << (place.database.empty() ? 0 : 1)
                      << R"(, "UserID": ")" << place.user << R"(", "Default": ")" << place.database
                      << "\"}\n";
}

void TellSecondPlace(const ScenarioPlace& place) {
  std::string options = "--data " + place.path;
  if (!place.database.empty()) {
    options = "--server " + place.path + " --user " + place.user + " --database " + place.database;
    setenv("QVDB_PASSWORD", place.password.c_str(), 1);
  }
  setenv("QVDB_SECOND", options.c_str(), 1);
}

std::string OnlyEngine(const fs::path& scenario) {
  static const std::regex line("(^|\n)# engine: ([a-z]+)\n");
  std::smatch found;
  const std::string script = Content(scenario);
  return std::regex_search(script, found, line) ? found[2].str() : "";
}

std::string Content(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

fs::path Beside(fs::path scenario, const char* extension) {
  return scenario.replace_extension(extension);
}

int RunIn(const fs::path& folder, std::vector<std::string> command, const fs::path& output) {
  std::vector<char*> arguments;
  for (std::string& word : command) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("cannot start " + command[0]);
  if (child == 0) {
    prctl(PR_CAPBSET_DROP, kDacOverride, 0, 0, 0);
    if (chdir(folder.c_str()) != 0) _exit(126);
    if (!output.empty()) {
      const int file = open(output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
      if (file < 0 || dup2(file, STDOUT_FILENO) < 0) _exit(126);
    }
    execvp(arguments[0], arguments.data());
    _exit(127);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

void ShowDifference(const fs::path& expected, const fs::path& printed) {
  std::printf("%s differs from what was printed:\n", expected.c_str());
  std::fflush(stdout);
  RunIn(expected.parent_path(),
        {"diff", "-u", "--label", "expected", "--label", "printed", expected.string(),
         printed.string()},
        {});
}

}  // namespace qvzj::test
