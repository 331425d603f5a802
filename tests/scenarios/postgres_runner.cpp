// Plays every scenario against a private PostgreSQL server and compares what it prints with what
// it prints on the data file.
//
//   postgres_scenario_runner PROGRAM FOLDER [NAME …]
//
// The scenarios are the FOLDER's *.qvs files, or those named. One with the line "# engine: file"
// is about the data file itself and is left out. Each has two databases, the first as the data
// folder of the other engine, the second without tables, and the property stores first.json and
// second.json that open them. Statements are compared as the server dialect spells them; of an
// error that the engine worded its kind and what it names.

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <regex>
#include <sstream>
#include <stdexcept>

#include "platform/basic/text.h"
#include "tests/scenarios/play.h"
#include "tests/scenarios/server_dialect.h"
#include "tests/support/postgres.h"

namespace {

namespace fs = std::filesystem;
using namespace qvzj::test;

/// ctest takes this exit status as "skipped".
constexpr int kSkipped = 77;

/// A component's call without the values that say where the data lies.
std::string WithoutAccess(const std::string& line) {
  static const std::regex json(
      R"("UserPath":"[^"]*","Password":"[^"]*","SQLData":[0-9]+,"UserID":"[^"]*","Default":"[^"]*")");
  static const std::regex print(R"( 6="[^"]*" 7="[^"]*" 8=[0-9]+ 9="[^"]*" 10="[^"]*")");
  return std::regex_replace(std::regex_replace(line, json, "(access)"), print, " (access)");
}

/// What the engines call the same trouble. Names are folded to lower case by the server.
struct Trouble {
  const char* kind;
  const char* on_the_file;    ///< SQLite's wording, with the name of what is concerned, if any
  const char* on_the_server;  ///< PostgreSQL's
};

constexpr Trouble kTroubles[] = {
    {"no table", "no such table: (.*)", "relation \"(.*)\" does not exist.*SQLSTATE 42P01"},
    {"no column", "no such column: (.*)", "column \"?([^\" ]*)\"? does not exist.*SQLSTATE 42703"},
    {"held by another", "database is locked()", "lock timeout().*SQLSTATE 55P03"},
    {"there twice", "UNIQUE constraint failed()", "duplicate key().*SQLSTATE 23505"},
};

/// An error that an engine worded, as its kind; other errors are the module's and stay.
std::string ErrorKind(const std::string& line) {
  for (const Trouble& trouble : kTroubles) {
    for (const char* wording : {trouble.on_the_file, trouble.on_the_server}) {
      std::smatch found;
      if (!std::regex_search(line, found, std::regex(wording))) continue;
      std::string kind = std::string("error: ") + trouble.kind;
      if (std::string(trouble.on_the_server).find("()") == std::string::npos) {
        kind += " " + qvzj::basic::Lower(found[1].str());
      }
      return kind;
    }
  }
  return line;
}

/// A box without the name of the place that could not be opened.
std::string WithoutPlace(const std::string& line, const std::string& address) {
  std::string text = line;
  for (const std::string& place : {address, std::string("data"), std::string("second")}) {
    text = qvzj::basic::Replace(text, "系统数据库 " + place + " 属", "系统数据库 (place) 属");
  }
  return text;
}

/// What must be the same on every engine.
std::string Comparable(const std::string& printed, const std::string& address) {
  std::istringstream in(printed);
  std::string comparable;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("exec ") || line.starts_with("open ")) line = OfServerDialect(line);
    if (line.starts_with("error: ")) line = ErrorKind(line);
    if (line.starts_with("message ")) line = WithoutPlace(line, address);
    if (line.starts_with("user ") || line.starts_with("task ") || line.starts_with("print ")) {
      line = WithoutAccess(line);
    }
    comparable += line + "\n";
  }
  return comparable;
}

std::vector<fs::path> Scenarios(const fs::path& folder, const std::vector<std::string>& names) {
  std::vector<fs::path> scenarios;
  for (const std::string& name : names) scenarios.push_back(folder / (name + ".qvs"));
  if (names.empty()) {
    for (const auto& entry : fs::directory_iterator(folder)) {
      if (entry.path().extension() == ".qvs") scenarios.push_back(entry.path());
    }
  }
  std::sort(scenarios.begin(), scenarios.end());
  return scenarios;
}

/// Plays one scenario; true when it printed what it should.
bool Play(PrivatePostgres& server, const fs::path& program, const fs::path& scenario) {
  const TemporaryFolder folder;
  const std::string database = server.MakeDatabase();
  const ScenarioPlace first{server.Address(), PrivatePostgres::kUser, PrivatePostgres::kPassword,
                            database};
  const ScenarioPlace second{first.path, first.user, first.password, server.MakeBareDatabase()};
  WritePropertyStore(folder.Path() / "first.json", first);
  WritePropertyStore(folder.Path() / "second.json", second);
  TellSecondPlace(second);
  server.RunFile(database, scenario.parent_path() / "fixture.sql");
  if (fs::exists(Beside(scenario, ".sql"))) server.RunFile(database, Beside(scenario, ".sql"));
  const fs::path printed = folder.Path() / "printed.out";
  const fs::path expected = folder.Path() / "expected.out";
  const fs::path script = Beside(scenario, ".sh");
  if (fs::exists(script) && RunIn(folder.Path(), {"sh", "-eu", script.string()}, {}) != 0) {
    throw std::runtime_error(script.string() + " failed");
  }
  const int status = RunIn(folder.Path(),
                           {program.string(), "--server", server.Address(), "--user",
                            PrivatePostgres::kUser, "--password", PrivatePostgres::kPassword,
                            "--database", database, "--today", kScenarioDay, scenario.string()},
                           printed);
  const std::string comparable = Comparable(Content(printed), server.Address());
  const std::string wanted = Comparable(Content(Beside(scenario, ".out")), server.Address());
  std::printf("%s %s\n", comparable == wanted && status == 0 ? "same  " : "FAILED",
              scenario.stem().c_str());
  if (comparable != wanted) {
    std::ofstream(expected) << wanted;
    std::ofstream(printed) << comparable;
    ShowDifference(expected, printed);
  }
  if (status != 0) std::printf("the program ended with %d\n", status);
  return comparable == wanted && status == 0;
}

int Main(const std::vector<std::string>& arguments) {
  if (arguments.size() < 2) {
    std::fputs("usage: postgres_scenario_runner PROGRAM FOLDER [NAME ...]\n", stderr);
    return 2;
  }
  if (const std::string missing = PrivatePostgres::Missing(); !missing.empty()) {
    std::printf("skipped: %s\n", missing.c_str());
    return kSkipped;
  }
  PrivatePostgres server;
  int failed = 0;
  for (const fs::path& scenario :
       Scenarios(fs::absolute(arguments[1]), {arguments.begin() + 2, arguments.end()})) {
    if (OnlyEngine(scenario) == "file") continue;
    if (!Play(server, fs::absolute(arguments[0]), scenario)) ++failed;
  }
  return failed == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Main(std::vector<std::string>(argv + 1, argv + argc));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "postgres_scenario_runner: %s\n", error.what());
    return 2;
  }
}
