// Plays one scenario and compares what it prints with what it should print.
//
//   scenario_runner [--update] PROGRAM SCENARIO.qvs
//
// The scenario runs in a folder of its own, with the data folder "data" in it: the schema, the
// rows of fixture.sql and those of SCENARIO.sql, if there is one. Beside it lies "second", whose
// data file is empty. The property stores first.json and second.json open them. SCENARIO.sh, if
// there is one, runs in the folder before the program does; "qvdb … $QVDB_SECOND" works on the
// second place. The output must equal SCENARIO.out line by line and
// the program must end with 0. --update writes SCENARIO.out instead of comparing.

#include <stdlib.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "adapters/sqlite/sqlite_session.h"
#include "suite/store/schema.h"
#include "tests/scenarios/play.h"

namespace {

namespace fs = std::filesystem;
using namespace qvzj::test;

void PrepareData(const fs::path& folder, const fs::path& scenario) {
  fs::create_directory(folder);
  qvzj::SqliteOptions options;
  options.create = true;
  const auto session = qvzj::OpenSqlite((folder / qvzj::store::kDataFile).string(), options);
  qvzj::store::CreateSchema(*session);
  session->NativeScript(Content(scenario.parent_path() / "fixture.sql"));
  const fs::path own = Beside(scenario, ".sql");
  if (fs::exists(own)) session->NativeScript(Content(own));
}

/// Plays the scenario in the fresh folder `folder`; its output goes to `printed`.
int Play(const fs::path& program, const fs::path& scenario, const fs::path& folder,
         const fs::path& printed) {
  PrepareData(folder / "data", scenario);
  fs::create_directory(folder / "second");
  std::ofstream(folder / "second" / qvzj::store::kDataFile).flush();
  WritePropertyStore(folder / "first.json", {"data", "", "", ""});
  WritePropertyStore(folder / "second.json", {"second", "", "", ""});
  TellSecondPlace({"second", "", "", ""});
  const fs::path script = Beside(scenario, ".sh");
  if (fs::exists(script) && RunIn(folder, {"sh", "-eu", script.string()}, {}) != 0) {
    throw std::runtime_error(script.string() + " failed");
  }
  return RunIn(folder,
               {program.string(), "--data", "data", "--today", kScenarioDay, scenario.string()},
               printed);
}

int Compare(const fs::path& expected, const fs::path& printed, int status) {
  if (Content(expected) != Content(printed) || !fs::exists(expected)) {
    ShowDifference(expected, printed);
    return 1;
  }
  if (status != 0) std::printf("the program ended with %d\n", status);
  return status == 0 ? 0 : 1;
}

int Main(std::vector<std::string> arguments) {
  const bool update = !arguments.empty() && arguments[0] == "--update";
  if (update) arguments.erase(arguments.begin());
  if (arguments.size() != 2) {
    std::fputs("usage: scenario_runner [--update] PROGRAM SCENARIO.qvs\n", stderr);
    return 2;
  }
  const fs::path program = fs::absolute(arguments[0]);
  const fs::path scenario = fs::absolute(arguments[1]);
  std::string pattern = (fs::temp_directory_path() / "qvzj-scenario-XXXXXX").string();
  if (!mkdtemp(pattern.data())) throw std::runtime_error("cannot make a temporary folder");
  const fs::path folder = pattern;
  const fs::path printed = folder / "printed.out";
  const int status = Play(program, scenario, folder, printed);
  int result = 0;
  if (update) {
    fs::copy_file(printed, Beside(scenario, ".out"), fs::copy_options::overwrite_existing);
    std::printf("wrote %s; the program ended with %d\n", Beside(scenario, ".out").c_str(), status);
    result = status;
  } else {
    result = Compare(Beside(scenario, ".out"), printed, status);
  }
  fs::permissions(folder / "data", fs::perms::owner_all, fs::perm_options::add);
  fs::remove_all(folder);
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Main(std::vector<std::string>(argv + 1, argv + argc));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "scenario_runner: %s\n", error.what());
    return 1;
  }
}
