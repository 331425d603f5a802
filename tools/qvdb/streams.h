#pragma once

#include <functional>
#include <iosfwd>
#include <string>

namespace qvzj::qvdb {

/// Asks whoever runs the program for a password; the program decides how (a terminal hides it).
using AskPassword = std::function<std::string(const std::string& prompt)>;

/// Where a command reads and writes.
struct Streams {
  std::istream& in;
  std::ostream& out;         ///< results
  std::ostream& err;         ///< refused rows, progress, failures
  AskPassword ask_password;  ///< for the passwords of users and of databases
};

}  // namespace qvzj::qvdb
