#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/dialect/translate.h"
#include "adapters/odbc/odbc_schema.h"
#include "platform/basic/errors.h"
#include "platform/data/store.h"

namespace qvzj {

class CallThread;
class OdbcConnection;
class OdbcError;

enum class ServerEngine {
  PostgreSql,   ///< PostgreSQL and servers that speak its language
  TransactSql,  ///< SQL Server and other servers of its protocol
};

/// How a database server is reached and used.
struct OdbcOptions {
  ServerEngine engine = ServerEngine::PostgreSql;
  /// Complete ODBC connection string, credentials included.
  std::string connection_string;
  /// Texts that must never show in an error: the driver's messages are cleared of them.
  std::vector<std::string> secrets;
  /// Seconds to wait for the server at the start; 0 = the driver's own.
  int login_timeout = 10;
  /// How long a statement of the module that reads, or that writes, may take; 0 = without end.
  std::chrono::milliseconds read_limit{60000};
  std::chrono::milliseconds write_limit{30000};
  /// How long a statement waits for a row or table that another session holds; 0 = without end.
  std::chrono::milliseconds lock_timeout{10000};
  /// Order of texts, asked at every statement: 0 by pinyin, 1 by strokes. Empty: by pinyin.
  std::function<int()> language;
};

/// A session on a database server through ODBC. A read that finds the connection dropped is run
/// once more on a new one; a write is not, because nobody knows whether it took effect.
/// A statement of the module that takes longer than it may is ended by the server. One that the
/// server does not end either is left behind together with its connection, and the next opens a new
/// one; so a call comes back whatever the server does. Bulk work (Native, Writer, transactions) has
/// no limit.
/// Not to be used from two threads at once.
class OdbcSession : public data::Store {
 public:
  /// Connects. Throws DataError with what the driver said.
  explicit OdbcSession(OdbcOptions options);
  ~OdbcSession() override;

  void Execute(std::string_view statement) override;
  data::Recordset Query(std::string_view statement) override;

  data::Engine Speaks() const override;
  data::Recordset Native(std::string_view sql) override;
  /// What stands in the server's own language for a statement of the module.
  dialect::Translation Translate(std::string_view statement);

  std::unique_ptr<data::RowWriter> Writer(std::string_view table,
                                          const std::vector<std::string_view>& columns) override;
  /// Inside a transaction no lost connection is opened again: what went before is gone with it.
  void Begin() override;
  void Commit() override;
  void Rollback() noexcept override;
  /// Needs PostgreSQL; throws DataError on other servers.
  int64_t LastGivenId(const std::string& table) override;
  void GiveIdsAbove(const std::string& table, int64_t id) override;
  /// "": servers watch over their files themselves.
  std::string CheckIntegrity() override { return {}; }

 private:
  /// How long something may take, 0 = without end, and what is lost when it takes longer.
  struct Patience {
    std::chrono::milliseconds limit{0};
    bool reads = true;
  };

  data::Recordset Run(const std::string& sql, Patience patience);
  data::Recordset RunOnce(const std::string& sql, Patience patience);
  OdbcSchema::Columns DescribeTable(const std::string& table);
  void Connect();
  void Open();
  void Prepare();
  /// How long a statement of the module may take.
  Patience PatienceFor(const std::string& sql) const;
  Patience PatienceAtLogin() const;
  /// Runs a call which must own all that it touches. Throws what it throws, or DataError with what
  /// is known when it took longer than it may.
  void Within(Patience patience, std::function<void()> call);
  /// Ends the statement that has taken too long; returns when it ended well after all.
  void End(Patience patience);
  /// Name of the generator of a table's fID; "" when it has none.
  std::string IdGenerator(const std::string& table);
  /// True when a statement that failed so may be run once more on a new connection.
  bool MayReconnectAfter(const OdbcError& error) const;
  std::string WithoutSecrets(std::string text) const;
  /// Throws what the driver said without its secrets: ConstraintError for a broken rule of a table.
  [[noreturn]] void Refuse(const OdbcError& error) const;
  int Language() const { return options_.language && options_.language() == 1 ? 1 : 0; }

  OdbcOptions options_;
  std::unique_ptr<CallThread> calls_;           // null: to be made at the next call with a limit
  std::shared_ptr<OdbcConnection> connection_;  // null: lost, to be opened at the next statement
  bool in_transaction_ = false;
  OdbcSchema schema_;
  std::string text_orders_[2];  // collations by language
};

}  // namespace qvzj
