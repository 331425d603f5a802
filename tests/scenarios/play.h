#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// What the programs that play scenarios share.
namespace qvzj::test {

/// The day on which every scenario plays.
inline constexpr const char* kScenarioDay = "2024-03-15";

/// Where the data of a scenario lies.
struct ScenarioPlace {
  std::string path;  ///< the data folder, or the server's address
  std::string user;
  std::string password;
  std::string database;  ///< "" for a data folder
};

/// Writes the property store with which a host opens the place as user "admin" who may do
/// everything. No value may hold a character that JSON escapes.
void WritePropertyStore(const std::filesystem::path& file, const ScenarioPlace& place);
/// Tells the scripts that prepare a scenario how qvdb reaches the second place: the variables
/// QVDB_SECOND and, for a server, QVDB_PASSWORD.
void TellSecondPlace(const ScenarioPlace& place);

/// The only engine that a scenario is about, "file" or "server", as its line "# engine: …" says;
/// "" when it plays on every engine.
std::string OnlyEngine(const std::filesystem::path& scenario);

/// All bytes of a file, "" when it cannot be read.
std::string Content(const std::filesystem::path& file);
/// The file of the same name with another extension.
std::filesystem::path Beside(std::filesystem::path scenario, const char* extension);
/// Runs a program in `folder` and waits; its output goes to `output` where that is not empty. The
/// permissions of files hold for root as well. Answers the exit status, 128 and more for a signal.
int RunIn(const std::filesystem::path& folder, std::vector<std::string> command,
          const std::filesystem::path& output);
/// Prints how two files differ.
void ShowDifference(const std::filesystem::path& expected, const std::filesystem::path& printed);

}  // namespace qvzj::test
