// Scripts made of the lines of the project's own scenarios, mixed up and broken. Whatever a line
// holds, it is played or reported: nothing is thrown, and every printed line is one line.

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "suite/store/schema.h"
#include "tests/endurance/script_stage.h"
#include "tests/fuzz/fuzz.h"
#include "tests/fuzz/mangle.h"
#include "tests/support/temporary_folder.h"

namespace qvzj::fuzz {
namespace {

namespace fs = std::filesystem;

constexpr int kLines = 60;  // of a script

/// Lines that would leave the round's own folder, ask a server, or wait for another process.
bool LeadsElsewhere(const std::string& line) {
  for (const char* word : {"/", "..", "SQLData", "restore", "pragma", "begin", "shot", "picture"}) {
    if (line.find(word) != std::string::npos) return true;
  }
  return false;
}

/// The lines of every scenario in `folder`, in their order.
std::vector<std::string> LinesOf(const fs::path& folder) {
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == ".qvs") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  std::vector<std::string> lines;
  for (const fs::path& file : files) {
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);) {
      if (!line.empty() && line[0] != '#' && !LeadsElsewhere(line)) lines.push_back(line);
    }
  }
  if (lines.empty()) throw std::runtime_error("no scenarios in " + folder.string());
  return lines;
}

/// A size of the window that no screen has, or one that many have.
std::string Resize(Dice& dice) {
  static constexpr const char* kStates[] = {"normal", "minimised", "maximised"};
  const auto size = [&dice] {
    return dice.Chance(50) ? NastyNumber(dice) : std::to_string(dice.Between(0, 40000));
  };
  const std::string width = size();
  return "resize " + width + " " + size() + " " + dice.Pick(kStates);
}

/// Plays lines one after the other as they stand in the scenarios, now and then from elsewhere,
/// now and then broken.
class Round {
 public:
  Round(Dice& dice, const std::vector<std::string>& lines, const std::string& fixture)
      : dice_(dice), lines_(lines) {
    endurance::MakeData((folder_.Path() / store::kDataFile).string(), fixture);
    stage_.emplace(folder_.Path().string());
  }

  void Play() {
    fs::current_path(folder_.Path());
    PlayLine("refresh " + std::to_string(dice_.Below(2)) + " 0");
    for (int i = 0; i < kLines; ++i) PlayLine(NextLine());
    PlayLine("close");
  }

 private:
  std::string NextLine() {
    if (dice_.Chance(5)) return Resize(dice_);
    if (dice_.Chance(5)) return "answer ok ok";
    if (dice_.Chance(25)) at_ = dice_.Below(static_cast<uint32_t>(lines_.size()));
    std::string line = lines_[at_++ % lines_.size()];
    if (dice_.Chance(30)) line = Mangle(dice_, line);
    std::erase(line, '\n');  // a script's line has none
    // Broken as it is, it may have become one of those.
    return LeadsElsewhere(line) ? "statements" : line;
  }

  void PlayLine(const std::string& line) {
    Tell(line);
    for (const std::string& printed : stage_->Play(line)) {
      if (printed.find('\n') != std::string::npos) {
        throw Fault("\"" + line + "\" printed more than a line: " + printed);
      }
    }
  }

  Dice& dice_;
  const std::vector<std::string>& lines_;
  test::TemporaryFolder folder_;
  std::optional<endurance::ScriptStage> stage_;
  size_t at_ = 0;
};

void PlayRound(Dice& dice, const std::vector<std::string>& files) {
  const fs::path folder = files.at(0);
  static const std::vector<std::string> lines = LinesOf(folder);
  const fs::path home = fs::current_path();
  struct Back {
    const fs::path& home;
    ~Back() { fs::current_path(home); }
  } back{home};
  Round(dice, lines, (folder / "fixture.sql").string()).Play();
}

}  // namespace
}  // namespace qvzj::fuzz

int main(int argc, char** argv) {
  return qvzj::fuzz::Main(argc, argv, {60, qvzj::fuzz::PlayRound});
}
