// A monkey at the keyboard: random acts, legal and illegal, through the scripted front end, with
// checks after each.
//
//   monkey [--seed N] [--actions N] [--log FILE] FIXTURE.sql
//
// FIXTURE.sql holds the rows to begin with. When a check fails, the acts so far are in FILE
// (default: monkey-SEED.qvs in the working folder), a script for qvzj-script, and the exit status
// is 1.

#include <stdlib.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "suite/store/schema.h"
#include "tests/endurance/monkey_acts.h"
#include "tests/endurance/monkey_checks.h"
#include "tests/endurance/script_stage.h"

namespace qvzj::endurance {
namespace {

namespace fs = std::filesystem;

constexpr int kCompareEvery = 250;

struct Options {
  uint64_t seed = 1;
  int actions = 20000;
  std::string log;
  std::string fixture;
};

Options Parse(const std::vector<std::string>& arguments) {
  Options options;
  for (size_t i = 0; i < arguments.size(); ++i) {
    const bool more = i + 1 < arguments.size();
    if (arguments[i] == "--seed" && more) {
      options.seed = std::stoull(arguments[++i]);
    } else if (arguments[i] == "--actions" && more) {
      options.actions = std::stoi(arguments[++i]);
    } else if (arguments[i] == "--log" && more) {
      options.log = arguments[++i];
    } else if (options.fixture.empty() && !arguments[i].starts_with("-")) {
      options.fixture = arguments[i];
    } else {
      throw std::invalid_argument("wrong usage at " + arguments[i]);
    }
  }
  if (options.fixture.empty()) throw std::invalid_argument("no fixture named");
  if (options.log.empty()) options.log = "monkey-" + std::to_string(options.seed) + ".qvs";
  return options;
}

/// The monkey's day. Answers what went wrong, "" when nothing did.
class Day {
 public:
  Day(const Options& options, const std::string& folder, SqliteSession& real, SqliteSession& shadow)
      : options_(options),
        stage_(folder),
        checks_(stage_, real, shadow),
        real_(real),
        dice_(options.seed),
        log_(options.log) {}

  std::string Run() {
    while (done_ < options_.actions) {
      for (const std::string& move : NextMoves(dice_, stage_.control.Form())) {
        const std::string fault = Play(move);
        if (!fault.empty()) {
          return "act " + std::to_string(done_) + ", " + move + ": " + fault;
        }
      }
    }
    const std::string fault = checks_.CompareData();
    return fault.empty() ? real_.CheckIntegrity() : fault;
  }

  std::string Summary() {
    return std::to_string(done_) + " acts, " + std::to_string(reports_) + " saves reported, " +
           Lines(real_, "select count(*) from tAccountDetail")[0] + " entries at the end";
  }

 private:
  std::string Play(const std::string& move) {
    log_ << move << std::endl;
    ++done_;
    checks_.Before(move);
    const auto printed = stage_.Play(move);
    for (const ShownBox& box : stage_.headless.boxes.Shown()) reports_ += box.style == 64;
    if (!move.starts_with("answer")) stage_.headless.boxes.ClearQueue();
    std::string fault = checks_.After(move, printed);
    if (fault.empty() && done_ % kCompareEvery == 0) fault = checks_.CompareData();
    return fault;
  }

  const Options& options_;
  ScriptStage stage_;
  MonkeyChecks checks_;
  SqliteSession& real_;
  Dice dice_;
  std::ofstream log_;
  int done_ = 0;
  int reports_ = 0;
};

int Main(const std::vector<std::string>& arguments) {
  const Options options = Parse(arguments);
  std::string folder = (fs::temp_directory_path() / "qvzj-monkey-XXXXXX").string();
  if (!mkdtemp(folder.data())) throw std::runtime_error("cannot make a temporary folder");
  std::string fault;
  {
    const auto real = MakeData((fs::path(folder) / store::kDataFile).string(), options.fixture);
    const auto shadow = MakeData((fs::path(folder) / "shadow.db").string(), options.fixture);
    Day day(options, folder, *real, *shadow);
    fault = day.Run();
    std::printf("seed %llu: %s\n", static_cast<unsigned long long>(options.seed),
                day.Summary().c_str());
  }
  fs::remove_all(folder);
  if (fault.empty()) {
    fs::remove(options.log);
    return 0;
  }
  std::printf("FAULT at %s\nThe acts are in %s\n", fault.c_str(), options.log.c_str());
  return 1;
}

}  // namespace
}  // namespace qvzj::endurance

int main(int argc, char** argv) {
  try {
    return qvzj::endurance::Main(std::vector<std::string>(argv + 1, argv + argc));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "monkey: %s\n", error.what());
    return 2;
  }
}
