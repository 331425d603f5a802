#include "suite/store/connections.h"

#include <charconv>
#include <cstdlib>

#include "adapters/sqlite/sqlite_session.h"
#include "platform/basic/errors.h"
#include "suite/store/schema.h"

namespace qvzj::store {
namespace {

/// What the module puts into the data path after a login in server mode.
constexpr const char* kLoggedInServer = "SQL Server";

/// The data file in `folder`, which may end in a slash of either kind.
std::string DataFileIn(std::string folder) {
  while (folder.size() > 1 && (folder.back() == '/' || folder.back() == '\\')) folder.pop_back();
  return folder + "/" + kDataFile;
}

std::unique_ptr<SqliteSession> OpenFolder(const std::string& folder,
                                          const ConnectionOptions& options) {
  SqliteOptions sqlite;
  sqlite.busy_timeout = options.busy_timeout;
  sqlite.language = options.language;
  return OpenSqlite(DataFileIn(folder), sqlite);
}

/// Takes the seconds that a variable holds over into `limit`.
void TakeLimit(const char* variable, std::chrono::milliseconds& limit) {
  const char* const set = std::getenv(variable);
  if (!set) return;
  const std::string_view text = set;
  int seconds = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), seconds);
  const bool number = failure == std::errc() && end == text.data() + text.size() && seconds >= 0;
  if (number) limit = std::chrono::seconds(seconds);
}

}  // namespace

ConnectionOptions WithLimitsOfEnvironment(ConnectionOptions options) {
  TakeLimit("QVZJ_READ_LIMIT", options.read_limit);
  TakeLimit("QVZJ_WRITE_LIMIT", options.write_limit);
  return options;
}

bool SuiteConnections::OpenConnection(uint8_t kind, data::Connection& connection,
                                      const std::string& path, const std::string& password,
                                      const std::string& user_id,
                                      const std::string& default_database) {
  last_failure_.reset();
  try {
    Open(kind, connection, {path, user_id, password, default_database});
    return true;
  } catch (const DataError& error) {
    last_failure_ = error;
    return false;
  }
}

void SuiteConnections::Open(uint8_t kind, data::Connection& connection, ServerLogin login) {
  if (kind == 0) {
    connection.Attach(OpenFolder(login.address, options));
    return;
  }
  if (login.address == kLoggedInServer && !last_server_.empty()) login.address = last_server_;
  connection.Attach(OpenServer(login, options));
  last_server_ = login.address;
}

NativeStatements OpenNative(uint8_t kind, const ServerLogin& login,
                            const ConnectionOptions& options) {
  std::shared_ptr<data::Store> store;
  if (kind == 0) {
    store = OpenFolder(login.address, options);
  } else {
    store = OpenServer(login, options);
  }
  return [store](std::string_view sql) { return store->Native(sql); };
}

}  // namespace qvzj::store
