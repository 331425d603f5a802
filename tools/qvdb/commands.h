#pragma once

#include <string>
#include <vector>

#include "tools/qvdb/streams.h"

/// The commands of the tool, a file each. All take the words after the command's name and answer
/// the exit status: 0 done, 1 done but rows were refused or faults found. They throw UsageError for
/// words that cannot be understood and Error for what could not be done.
namespace qvzj::qvdb {

using Words = std::vector<std::string>;

/// Makes the data file or the server's tables where they are missing, with currencies.
int Init(const Words& words, const Streams& streams);
/// Fills an empty database with made-up data.
int Demo(const Words& words, const Streams& streams);
/// Reads a CSV file into the register or the ledger. Status 1 when rows were refused.
int Import(const Words& words, const Streams& streams);
/// Looks for faults of the data. Status 1 when there are any.
int Check(const Words& words, const Streams& streams);
/// Copies all tables from one place to another and compares both.
int Copy(const Words& words, const Streams& streams);

/// Keeps the users of a rights database:
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
/// FILE is the database file or the folder that holds it. Unlike the others it reports by itself:
/// 1 refused or failed (the reason goes to `err`), 2 wrong usage.
int User(const Words& words, const Streams& streams);

}  // namespace qvzj::qvdb
