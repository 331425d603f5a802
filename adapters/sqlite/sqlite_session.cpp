#include "adapters/sqlite/sqlite_session.h"

#include <sqlite3.h>

#include "adapters/sqlite/disk.h"
#include "adapters/sqlite/sqlite_functions.h"
#include "adapters/sqlite/sqlite_row_writer.h"
#include "adapters/sqlite/sqlite_schema.h"
#include "adapters/system/private_files.h"
#include "platform/basic/errors.h"

namespace qvzj {
namespace {

/// Names no file to the engine.
constexpr std::string_view kInMemory = ":memory:";

/// Opens the handle; the caller closes it also after a failure.
int OpenHandle(const std::string& file, const SqliteOptions& options, sqlite3** database) {
  int flags = options.read_only ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
  if (options.create && !options.read_only) {
    flags |= SQLITE_OPEN_CREATE;
    // The engine gives what it makes beside the file, its log, the same rights.
    if (file != kInMemory) MakePrivateFile(file);
  }
  // A session belongs to one thread, so the engine need not lock itself at every value read.
  flags |= SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
  return sqlite3_open_v2(file.c_str(), database, flags, nullptr);
}

/// Chooses the journal. A file that another process is using right now keeps the one it has.
void ChooseJournal(sqlite3* database, const std::string& file) {
  if (sqlite3_db_readonly(database, "main") == 1) return;
  const char* sql = OnLocalDisk(file) ? "pragma journal_mode=wal" : "pragma journal_mode=delete";
  const int result = sqlite3_exec(database, sql, nullptr, nullptr, nullptr) & 0xFF;
  const bool usable = result == SQLITE_OK || result == SQLITE_BUSY || result == SQLITE_LOCKED ||
                      result == SQLITE_READONLY || result == SQLITE_CANTOPEN;
  if (!usable) ThrowSqlite(database);
}

}  // namespace

void SqliteSession::Closer::operator()(sqlite3* database) const { sqlite3_close_v2(database); }

SqliteSession::SqliteSession(sqlite3* database, const SqliteOptions& options)
    : database_(database),
      schema_(std::make_unique<SqliteSchema>(database)),
      language_(options.language) {}

SqliteSession::~SqliteSession() = default;

std::unique_ptr<SqliteSession> OpenSqlite(const std::string& file, const SqliteOptions& options) {
  sqlite3* handle = nullptr;
  const int result = OpenHandle(file, options, &handle);
  std::unique_ptr<SqliteSession> session(new SqliteSession(handle, options));
  try {
    if (result != SQLITE_OK) ThrowSqlite(handle);
    sqlite3_busy_timeout(handle, static_cast<int>(options.busy_timeout.count()));
    RegisterFunctions(handle);
    // The file is first looked into here: no database, or locked for good, shows now.
    session->NativeScript("select count(*) from sqlite_master");
    ChooseJournal(handle, file);
    session->NativeScript("pragma synchronous=full; pragma cache_size=-65536");
  } catch (const DataError& error) {
    throw DataError(file + ": " + error.what(), error.Cause());
  }
  return session;
}

dialect::Translation SqliteSession::Translate(std::string_view statement) const {
  const bool by_strokes = language_ && language_() == 1;
  const dialect::Target target =
      dialect::SqliteTarget(by_strokes ? kStrokeCollation : kPinyinCollation);
  return dialect::Translate(statement, target, *schema_);
}

void SqliteSession::Execute(std::string_view statement) { Query(statement); }

data::Recordset SqliteSession::Query(std::string_view statement) {
  const dialect::Translation translation = Translate(statement);
  if (translation.added) {
    schema_->Forget();  // another process may have added it meanwhile
    const auto& [table, column] = *translation.added;
    if (schema_->TypeOf(table, column) != dialect::ColumnType::Unknown) return {{}, {}};
    schema_->Forget();
  }
  SqliteStatement prepared = Prepare(translation.text);
  if (prepared.ParameterCount() > 0) throw DataError("No value given for a parameter");
  return prepared.ReadAll();
}

data::Recordset SqliteSession::Native(std::string_view sql) { return Prepare(sql).ReadAll(); }

void SqliteSession::NativeScript(std::string_view sql) {
  while (true) {
    SqliteStatement statement = SqliteStatement::TakeFrom(database_.get(), sql);
    if (statement.Empty()) return;
    statement.Run();
  }
}

SqliteStatement SqliteSession::Prepare(std::string_view sql) { return {database_.get(), sql}; }

int64_t SqliteSession::Changes() const { return sqlite3_changes64(database_.get()); }

int64_t SqliteSession::LastId() const { return sqlite3_last_insert_rowid(database_.get()); }

std::string SqliteSession::CheckIntegrity() {
  std::string report;
  data::Recordset lines = Native("pragma integrity_check");
  for (; !lines.Eof(); lines.MoveNext()) {
    if (lines.Text(0) == "ok") continue;
    if (!report.empty()) report += '\n';
    report += lines.Text(0);
  }
  return report;
}

std::unique_ptr<data::RowWriter> SqliteSession::Writer(
    std::string_view table, const std::vector<std::string_view>& columns) {
  return std::make_unique<SqliteRowWriter>(Prepare(data::InsertStatement(table, columns, 1)));
}

void SqliteSession::Begin() { NativeScript("begin immediate"); }

void SqliteSession::Commit() { NativeScript("commit"); }

void SqliteSession::Rollback() noexcept {
  // The engine has ended the transaction by itself after some failures.
  if (sqlite3_get_autocommit(Handle())) return;
  sqlite3_exec(Handle(), "rollback", nullptr, nullptr, nullptr);
}

int64_t SqliteSession::LastGivenId(const std::string& table) {
  SqliteStatement last =
      Prepare("select coalesce(max(seq),0) from sqlite_sequence where name=? collate nocase");
  last.Bind(1, std::string_view(table));
  last.Step();
  return last.Integer(0);
}

void SqliteSession::GiveIdsAbove(const std::string& table, int64_t id) {
  if (id <= LastGivenId(table)) return;
  SqliteStatement forget = Prepare("delete from sqlite_sequence where name=? collate nocase");
  forget.Bind(1, std::string_view(table));
  forget.Run();
  SqliteStatement keep = Prepare(
      "insert into sqlite_sequence (name,seq) select name,? from sqlite_master"
      " where type='table' and name=? collate nocase");
  keep.Bind(1, id);
  keep.Bind(2, std::string_view(table));
  keep.Run();
}

}  // namespace qvzj
