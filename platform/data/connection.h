#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/basic/errors.h"
#include "platform/data/recordset.h"

namespace qvzj::data {

/// An open session on one engine. Adapters implement it. Statements come in one of the two
/// dialects the module writes (desktop or server); the session translates them for its engine.
/// Each call runs exactly one statement and refuses text after its end. Failures are DataError
/// with the engine's text.
class Session {
 public:
  virtual ~Session() = default;
  /// Runs a statement that answers no rows. Adding a column that is already there is done.
  virtual void Execute(std::string_view statement) = 0;
  /// Runs a statement that answers rows and reads them all.
  virtual Recordset Query(std::string_view statement) = 0;
  /// Throws DataError when the user must hear of something before the session ends, such as that
  /// the data it worked on is no longer there.
  virtual void CheckBeforeClose() {}
};

enum class StatementKind { Execute, Open };
/// Is told of every statement before it runs, as the module built it.
using StatementWatcher = std::function<void(StatementKind, std::string_view)>;

/// The connection object that the module shares (`cnData`). It starts closed; the connection
/// component opens it by attaching a session.
class Connection {
 public:
  explicit Connection(StatementWatcher watcher = {}) : watcher_(std::move(watcher)) {}

  /// 0 = closed, 1 = open.
  int State() const { return session_ ? 1 : 0; }
  void Attach(std::unique_ptr<Session> session) { session_ = std::move(session); }
  /// Throws DataError when the session had something to say; it is closed all the same.
  void Close();
  /// What the last statement failed with; empty when it went well or none ran. For who was told of
  /// the failure only as a missing answer.
  const std::optional<DataError>& LastFailure() const { return last_failure_; }

  /// Runs a statement without rows. Throws DataError when closed or when the engine refuses.
  void Execute(std::string_view statement);
  /// Opens a forward-only, read-only record set. Throws DataError likewise.
  Recordset Open(std::string_view statement);

 private:
  /// Runs `act` on the session and remembers how it failed.
  template <class Act>
  auto Run(StatementKind kind, std::string_view statement, const Act& act);

  StatementWatcher watcher_;
  std::unique_ptr<Session> session_;
  std::optional<DataError> last_failure_;
};

/// The host suite's connection component: knows where the data lies and how to reach it.
class ConnectionComponent {
 public:
  virtual ~ConnectionComponent() = default;
  /// Opens `connection`. `kind` 0 is the desktop database file in the folder `path`; any other
  /// kind a server described by `path`, with user, password and default database. False when it
  /// could not be opened; nothing is shown and nothing thrown.
  virtual bool OpenConnection(uint8_t kind, Connection& connection, const std::string& path,
                              const std::string& password, const std::string& user_id,
                              const std::string& default_database) = 0;
  /// Why the last OpenConnection answered false, free of credentials; empty after one that answered
  /// true, and from a component that does not tell.
  virtual std::optional<DataError> LastFailure() const { return std::nullopt; }
};

}  // namespace qvzj::data
