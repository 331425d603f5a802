#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "adapters/dialect/translate.h"
#include "adapters/sqlite/sqlite_statement.h"
#include "platform/data/store.h"

namespace qvzj {

class SqliteSchema;

/// How a data file is opened.
struct SqliteOptions {
  /// How long a statement waits for another process that holds the file.
  std::chrono::milliseconds busy_timeout{10000};
  /// Makes the file, for its owner alone, when it is missing; otherwise a missing file is an error.
  bool create = false;
  bool read_only = false;
  /// Order of texts, asked at every statement: 0 by pinyin, 1 by strokes. Empty: by pinyin.
  std::function<int()> language;
};

/// A data file of SQLite. On a local disk it is kept with a write-ahead log, elsewhere with a
/// rollback journal; in both cases what a statement wrote is on the disk when the call returns.
/// Not to be used from two threads at once.
class SqliteSession : public data::Store {
 public:
  ~SqliteSession() override;
  void Execute(std::string_view statement) override;
  data::Recordset Query(std::string_view statement) override;

  data::Engine Speaks() const override { return data::Engine::Sqlite; }
  data::Recordset Native(std::string_view sql) override;
  /// Runs statements in SQLite's own language, each ended by ";".
  void NativeScript(std::string_view sql);
  /// A statement in SQLite's own language with parameters to bind.
  SqliteStatement Prepare(std::string_view sql);
  /// What stands in SQLite's own language for a statement of the module.
  dialect::Translation Translate(std::string_view statement) const;

  /// Rows that the last insert, update or delete touched.
  int64_t Changes() const;
  /// Record id that the last insert gave.
  int64_t LastId() const;
  std::unique_ptr<data::RowWriter> Writer(std::string_view table,
                                          const std::vector<std::string_view>& columns) override;
  void Begin() override;
  void Commit() override;
  void Rollback() noexcept override;
  int64_t LastGivenId(const std::string& table) override;
  void GiveIdsAbove(const std::string& table, int64_t id) override;
  /// Looks at every page, index and row of the file.
  std::string CheckIntegrity() override;
  /// The engine's own handle, valid as long as the session.
  sqlite3* Handle() const { return database_.get(); }

 private:
  friend std::unique_ptr<SqliteSession> OpenSqlite(const std::string&, const SqliteOptions&);
  SqliteSession(sqlite3* database, const SqliteOptions& options);

  struct Closer {
    void operator()(sqlite3* database) const;
  };
  std::unique_ptr<sqlite3, Closer> database_;
  std::unique_ptr<SqliteSchema> schema_;
  std::function<int()> language_;
};

/// Opens the data file. Throws DataError with the file's name and the engine's text when it is
/// missing, cannot be opened, is no database or stays locked.
std::unique_ptr<SqliteSession> OpenSqlite(const std::string& file, const SqliteOptions& options);

}  // namespace qvzj
