#pragma once

#include <stdexcept>
#include <string>

namespace qvzj {

/// Root of every error the module raises on purpose; what() is UTF-8 text fit for a message box.
class Error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A value does not fit its 16- or 32-bit type.
class OverflowError : public Error {
 public:
  explicit OverflowError(const std::string& what_overflowed)
      : Error("Overflow: " + what_overflowed) {}
};

/// A text was used as a number or a date and is none.
class TypeMismatchError : public Error {
 public:
  explicit TypeMismatchError(const std::string& what_mismatched)
      : Error("Type mismatch: " + what_mismatched) {}
};

/// The string table has no text of that id.
class ResourceNotFoundError : public Error {
 public:
  explicit ResourceNotFoundError(int id)
      : Error("Resource with identifier " + std::to_string(id) + " not found") {}
};

/// Why an engine refused or failed, as far as it lets that be known. It decides what the user is
/// told besides the engine's own words (see platform/advice.h).
enum class DataCause {
  Unknown,
  Closed,        ///< the connection is not open
  NoFile,        ///< no data file where it should lie
  NoDatabase,    ///< the file is something else
  Damaged,       ///< the file's contents are
  Missing,       ///< a table or a column
  DiskFull,      ///< the disk, or the room granted on it
  DiskFailed,    ///< reading or writing it did
  ReadOnly,      ///< file, disk or server
  NoRights,      ///< of the system's user to the file, or of the server's to the table
  Locked,        ///< by another program or session, for longer than is waited
  Replaced,      ///< the file that is open is no longer the one that is there
  NoServer,      ///< not reached, or lost
  LoginRefused,  ///< user or password
  NoServerData,  ///< no database of that name on the server
  NoDriver,      ///< the program lacks what speaks to that server
  TimedOut,      ///< the server did not answer in time
  Duplicate,     ///< what must be there once is there already
};

/// The database engine refused or failed; what() is what the engine said.
class DataError : public Error {
 public:
  explicit DataError(const std::string& said, DataCause cause = DataCause::Unknown)
      : Error(said), cause_(cause) {}
  DataCause Cause() const { return cause_; }

 private:
  DataCause cause_;
};

}  // namespace qvzj
