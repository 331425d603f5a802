#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// What the programs that play scenarios share.
namespace qvzj::test {

/// The day on which every scenario plays.
inline constexpr const char* kScenarioDay = "2024-03-15";

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
