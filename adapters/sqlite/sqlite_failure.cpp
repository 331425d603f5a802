#include <sqlite3.h>

#include <cerrno>
#include <string_view>

#include "adapters/sqlite/sqlite_statement.h"
#include "platform/data/errors.h"

/// The causes of what the engine refuses.
namespace qvzj {
namespace {

/// What the system said beneath a file that could not be opened, read or written.
DataCause CauseOfSystem(int error, DataCause otherwise) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return DataCause::NoFile;
    case EACCES:
    case EPERM:
      return DataCause::NoRights;
    case EROFS:
      return DataCause::ReadOnly;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return DataCause::DiskFull;
    case EISDIR:
      return DataCause::NoDatabase;
    default:
      return otherwise;
  }
}

/// Statements about what the data lacks are refused like wrong ones; only the text tells.
bool SaysMissing(std::string_view said) {
  return said.find("no such table") != said.npos || said.find("no such column") != said.npos ||
         said.find("has no column named") != said.npos;
}

DataCause CauseOf(sqlite3* database) {
  const int extended = sqlite3_extended_errcode(database);
  switch (extended) {
    case SQLITE_READONLY_DBMOVED:
      return DataCause::Replaced;
    case SQLITE_READONLY_DIRECTORY:
    case SQLITE_READONLY_CANTINIT:
      return DataCause::NoRights;
    default:
      break;
  }
  switch (extended & 0xFF) {
    case SQLITE_CANTOPEN:
      return CauseOfSystem(sqlite3_system_errno(database), DataCause::Unknown);
    case SQLITE_IOERR:
      return CauseOfSystem(sqlite3_system_errno(database), DataCause::DiskFailed);
    case SQLITE_NOTADB:
      return DataCause::NoDatabase;
    case SQLITE_CORRUPT:
      return DataCause::Damaged;
    case SQLITE_FULL:
      return DataCause::DiskFull;
    case SQLITE_READONLY:
      return DataCause::ReadOnly;
    case SQLITE_PERM:
    case SQLITE_AUTH:
      return DataCause::NoRights;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL:
      return DataCause::Locked;
    case SQLITE_ERROR:
      return SaysMissing(sqlite3_errmsg(database)) ? DataCause::Missing : DataCause::Unknown;
    default:
      return DataCause::Unknown;
  }
}

data::Rule BrokenRule(int extended) {
  switch (extended) {
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_ROWID:
      return data::Rule::Unique;
    case SQLITE_CONSTRAINT_FOREIGNKEY:
      return data::Rule::Reference;
    case SQLITE_CONSTRAINT_NOTNULL:
      return data::Rule::NotNull;
    default:
      return data::Rule::Other;
  }
}

}  // namespace

void ThrowSqlite(sqlite3* database) {
  const std::string said = sqlite3_errmsg(database);
  const int extended = sqlite3_extended_errcode(database);
  if ((extended & 0xFF) == SQLITE_CONSTRAINT) {
    throw data::ConstraintError(BrokenRule(extended), said);
  }
  throw DataError(said, CauseOf(database));
}

}  // namespace qvzj
