#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/data/store.h"
#include "suite/store/server_address.h"

namespace qvzj::store {

struct ConnectionOptions {
  /// How long a statement waits for another process that holds the data file, or on a server for
  /// another session that holds its rows or table.
  std::chrono::milliseconds busy_timeout{10000};
  /// Language of the user, asked at every statement: texts order by pinyin for 0 and by strokes
  /// for 1. Empty: by pinyin.
  std::function<int()> language;
  /// What stands behind every kind other than 0.
  ServerOptions server{};
  /// Seconds to wait for a server that does not answer.
  int login_timeout = 10;
  /// How long a statement that reads, or that writes, may take on a server; 0 = without end.
  std::chrono::milliseconds read_limit{60000};
  std::chrono::milliseconds write_limit{30000};
};

/// The options with the limits that the user of the machine has set for statements on servers, in
/// seconds, 0 for none: QVZJ_READ_LIMIT and QVZJ_WRITE_LIMIT. What is no such number is passed
/// over.
ConnectionOptions WithLimitsOfEnvironment(ConnectionOptions options);

/// The suite's connection component: kind 0 is the data file in the folder `path`, which must be
/// there and is never created here; any other kind is the database server that `path` names (see
/// ServerLogin). A login in server mode leaves the text "SQL Server" in place of the server's
/// details; it stands for the server that was opened last.
class SuiteConnections : public data::ConnectionComponent {
 public:
  explicit SuiteConnections(ConnectionOptions connection_options = {})
      : options(std::move(connection_options)) {}

  bool OpenConnection(uint8_t kind, data::Connection& connection, const std::string& path,
                      const std::string& password, const std::string& user_id,
                      const std::string& default_database) override;
  std::optional<DataError> LastFailure() const override { return last_failure_; }
  /// Its text; "" when there is none.
  std::string LastError() const { return last_failure_ ? last_failure_->what() : ""; }

  /// May be changed at any time; holds for connections opened afterwards.
  ConnectionOptions options;

 private:
  void Open(uint8_t kind, data::Connection& connection, ServerLogin login);

  std::optional<DataError> last_failure_;
  std::string last_server_;  // address of the last server that was opened
};

/// Runs one statement in an engine's own language and reads its rows.
using NativeStatements = std::function<data::Recordset(std::string_view)>;

/// A connection of its own to the same place as OpenConnection's, for statements in the engine's
/// own language. Throws DataError when it cannot be opened.
NativeStatements OpenNative(uint8_t kind, const ServerLogin& login,
                            const ConnectionOptions& options);

/// A session on a server. Throws DataError; its text holds no credentials.
std::unique_ptr<data::Store> OpenServer(const ServerLogin& login, const ConnectionOptions& options);

}  // namespace qvzj::store
