#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "tools/qvdb/user_command.h"

namespace qvzj {

/// Where a command reads and writes.
struct QvdbStreams {
  std::istream& in;
  std::ostream& out;         ///< results
  std::ostream& err;         ///< refused rows, progress, failures
  AskPassword ask_password;  ///< for the passwords of users
};

/// Runs one command of the tool that maintains databases; `words` is its command line without the
/// program's name. Answers the exit status: 0 done, 1 done but rows were refused or faults found,
/// 2 not done (the reason is on `err`).
int RunQvdb(const std::vector<std::string>& words, const QvdbStreams& streams);

/// The folder of the user's own data: $XDG_DATA_HOME/qvzj, or ~/.local/share/qvzj.
std::string DefaultDataFolder();

}  // namespace qvzj
