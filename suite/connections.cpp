#include "suite/connections.h"

#include "adapters/sqlite/sqlite_session.h"
#include "platform/basic/errors.h"
#include "suite/schema.h"

namespace qvzj {
namespace {

/// The data file in `folder`, which may end in a slash of either kind.
std::string DataFileIn(std::string folder) {
  while (folder.size() > 1 && (folder.back() == '/' || folder.back() == '\\')) folder.pop_back();
  return folder + "/" + kDataFile;
}

}  // namespace

bool SuiteConnections::OpenConnection(uint8_t kind, data::Connection& connection,
                                      const std::string& path, const std::string&,
                                      const std::string&, const std::string&) {
  last_error_.clear();
  try {
    if (kind != 0) throw DataError("no database server is supported here");
    SqliteOptions sqlite;
    sqlite.busy_timeout = options.busy_timeout;
    sqlite.language = options.language;
    connection.Attach(OpenSqlite(DataFileIn(path), sqlite));
    return true;
  } catch (const DataError& error) {
    last_error_ = error.what();
    return false;
  }
}

}  // namespace qvzj
