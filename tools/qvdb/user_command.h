#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace qvzj {

/// Asks whoever runs the program for a password; the program decides how (a terminal hides it).
using AskPassword = std::function<std::string(const std::string& prompt)>;

/// Keeps the users of a rights database from a command line:
///
///   add FILE NAME [RIGHTS]    adds a user; RIGHTS is a string of digits, all 1 when left out;
///                             makes the file when it is missing
///   passwd FILE NAME          gives a user a new password and lifts any delay
///   rights FILE NAME RIGHTS   gives a user other function rights
///   disable | enable FILE NAME
///   remove FILE NAME
///   unit FILE [TEXT]          shows or sets the unit's name
///   exempt FILE [NAME]        shows or sets the user who is exempt from the function gates
///   list FILE                 the users, one a line: name, "disabled" where so, number of rights
///   log FILE                  the record of opened functions
///
/// FILE is the database file or the folder that holds it. `args` are the words after "user".
/// Answers the exit status: 0 done, 1 refused or failed (the reason goes to `err`), 2 wrong usage.
int RunUserCommand(const std::vector<std::string>& args, const AskPassword& ask, std::ostream& out,
                   std::ostream& err);

}  // namespace qvzj
