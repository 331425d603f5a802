#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/dialect/translate.h"
#include "adapters/sqlite/disk.h"
#include "adapters/sqlite/sqlite_statement.h"
#include "platform/data/store.h"

namespace qvzj {

class SqliteSchema;

/// The engine's handle and the names of the file behind it.
struct OpenedFile {
  struct Closer {
    void operator()(sqlite3* database) const;
  };
  std::string path;                     ///< absolute
  std::optional<ShortName> short_name;  ///< where the engine does not take the path
  std::unique_ptr<sqlite3, Closer> database;
};

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
/// Once another file stands under the name of the one that is open, or none, every write is refused
/// (DataCause::Replaced), and what the log still holds goes into the file that it belongs to.
/// Not to be used from two threads at once.
class SqliteSession : public data::Store {
 public:
  ~SqliteSession() override;
  void Execute(std::string_view statement) override;
  data::Recordset Query(std::string_view statement) override;
  void CheckBeforeClose() override { CheckFileIsThere(); }

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
  sqlite3* Handle() const { return file_.database.get(); }

 private:
  friend std::unique_ptr<SqliteSession> OpenSqlite(const std::string&, const SqliteOptions&);
  SqliteSession(OpenedFile file, const SqliteOptions& options);
  /// Throws DataError when the file that is open is not the one that is there.
  void CheckFileIsThere() const;

  OpenedFile file_;
  std::optional<FileIdentity> identity_;  // of the file at the start; empty while it is opened
  std::unique_ptr<SqliteSchema> schema_;
  std::function<int()> language_;
};

/// Opens the data file. Throws DataError with the file's name and the engine's text when it is
/// missing, cannot be opened, is no database or stays locked.
std::unique_ptr<SqliteSession> OpenSqlite(const std::string& file, const SqliteOptions& options);

}  // namespace qvzj
