#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

namespace qvzj::endurance {

/// qvzj-script in a process of its own, fed line by line. It is killed with the object if it still
/// runs.
class ScriptProcess {
 public:
  /// Starts it with these arguments, on the day 2024-03-15.
  explicit ScriptProcess(std::vector<std::string> arguments);
  ~ScriptProcess();
  ScriptProcess(const ScriptProcess&) = delete;
  ScriptProcess& operator=(const ScriptProcess&) = delete;

  /// Hands a line over; it is lost without a word when the process is gone.
  void Send(const std::string& line);
  /// The next line printed, waiting for it; empty when there is none any more.
  std::optional<std::string> Read();
  /// Hands the line over and reads until `property AlertType` answers: all that was printed.
  std::string Ask(const std::string& line);
  /// Kills the process at once, as a power cut would. What it printed can still be read.
  void Kill();
  /// No more lines come; waits for the end and answers the exit status, 128 and more for a signal.
  int Finish();

 private:
  pid_t child_ = -1;
  int in_ = -1;
  int out_ = -1;
  std::string read_;
};

}  // namespace qvzj::endurance
