#pragma once

#include <sql.h>
#include <sqlext.h>

#include <atomic>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include "platform/data/errors.h"

/// Thin owners of ODBC handles. Every call's failure becomes an OdbcError.
namespace qvzj {

/// What the driver said, with the five characters of the SQLSTATE of its first record and the
/// server's own number for it.
class OdbcError : public DataError {
 public:
  OdbcError(std::string state, int native, const std::string& text);
  const std::string& State() const { return state_; }
  /// True when the state alone says that the connection is gone.
  bool ConnectionLost() const;
  /// True when the server ended the statement because it was asked to.
  bool Cancelled() const { return state_ == "57014" || state_ == "HY008"; }
  /// The rule of a table that a row would have broken; nothing when that is not what failed.
  std::optional<data::Rule> BrokenRule() const;

 private:
  std::string state_;
  int native_;
};

/// One handle of the driver manager, freed with the object.
template <SQLSMALLINT kType>
class OdbcHandle {
 public:
  explicit OdbcHandle(SQLHANDLE parent);
  ~OdbcHandle() { SQLFreeHandle(kType, handle_); }
  OdbcHandle(const OdbcHandle&) = delete;
  OdbcHandle& operator=(const OdbcHandle&) = delete;

  SQLHANDLE Get() const { return handle_; }
  /// Throws what the driver said when `result` is a failure.
  void Check(SQLRETURN result) const {
    if (!SQL_SUCCEEDED(result)) Throw();
  }
  [[noreturn]] void Throw() const;

 private:
  SQLHANDLE handle_ = SQL_NULL_HANDLE;
};

using OdbcEnvironment = OdbcHandle<SQL_HANDLE_ENV>;
using OdbcStatement = OdbcHandle<SQL_HANDLE_STMT>;

/// A connection of its own, closed with the object. Used by one thread at a time, but for Cancel.
class OdbcConnection {
 public:
  /// Opens by a connection string. Timeouts in seconds, 0 = none.
  OdbcConnection(const std::string& connection_string, int login_timeout);
  ~OdbcConnection();

  SQLHANDLE Get() const { return connection_.Get(); }
  /// True when the driver knows that the server is gone.
  bool Dead() const;
  /// Off: statements from here on belong together until EndTransaction. Throws OdbcError.
  void SetAutocommit(bool on);
  /// `how` is SQL_COMMIT or SQL_ROLLBACK. Throws OdbcError.
  void EndTransaction(SQLSMALLINT how);
  /// The driver reads long values of any row of a block.
  bool ReadsLongValuesInBlocks() const { return long_values_in_blocks_; }
  /// Asks the server to end the statement that runs, from any thread; may take as long as the
  /// network does. Nothing when none runs.
  void Cancel();

  /// Makes a statement the one that Cancel ends, for as long as the object lives.
  class Running {
   public:
    Running(OdbcConnection& connection, const OdbcStatement& statement);
    ~Running();
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    /// True once Cancel was called for it; drivers forget that between two portions of an answer.
    bool Cancelled() const { return connection_.cancelled_; }

   private:
    OdbcConnection& connection_;
  };

 private:
  OdbcEnvironment environment_{SQL_NULL_HANDLE};
  OdbcHandle<SQL_HANDLE_DBC> connection_;
  bool long_values_in_blocks_ = false;
  std::mutex running_mutex_;
  SQLHANDLE running_ = SQL_NULL_HANDLE;
  std::atomic<bool> cancelled_ = false;
};

}  // namespace qvzj
