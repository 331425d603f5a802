#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/basic/date.h"

namespace qvzj::script {

/// What the command line asks for.
struct Options {
  bool help = false;
  std::string data;      ///< --data: folder of the desktop database
  std::string server;    ///< --server: details of a database server
  std::string user;      ///< --user: database user
  std::string password;  ///< --password; "-" asks for it
  std::string database;  ///< --database: default database on the server
  std::string settings;  ///< --settings: file of the per-user settings
  std::optional<basic::Date> today;
  std::string script;  ///< file to play; "" = standard input
};

/// Reads the arguments behind the program's name. Throws ScriptError for wrong usage.
Options ParseOptions(const std::vector<std::string>& arguments);

/// The database password: the option's, asked for where that is "-"; without the option what the
/// variable QVDB_PASSWORD holds, where a server is named. A command line can be read by every user
/// of the machine.
std::string PasswordOf(const Options& options,
                       const std::function<std::string(const std::string& prompt)>& ask);

/// What --help prints: the options and every command.
std::string Usage(bool draws);

}  // namespace qvzj::script
