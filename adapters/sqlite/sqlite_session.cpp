#include "adapters/sqlite/sqlite_session.h"

#include <sqlite3.h>

#include <filesystem>
#include <utility>

#include "adapters/sqlite/sqlite_functions.h"
#include "adapters/sqlite/sqlite_row_writer.h"
#include "adapters/sqlite/sqlite_schema.h"
#include "adapters/system/private_files.h"
#include "platform/basic/errors.h"

namespace qvzj {
namespace {

/// Names no file to the engine.
constexpr std::string_view kInMemory = ":memory:";

/// What the user reads when the file was taken away, by language.
constexpr const char* kReplaced[2] = {
    "打开的数据文件已被替换、移动或删除，没有写入任何内容。请关闭后重新打开。",
    "打開的資料檔案已被替換、移動或刪除，沒有寫入任何內容。請關閉後重新打開。",
};

constexpr const char* kNamesAsGiven = "qv-names-as-given";

/// Copies the name instead of resolving its links, as the engine's own does.
int NameAsGiven(sqlite3_vfs*, const char* name, int room, char* full) {
  if (std::string_view(name).size() >= static_cast<size_t>(room)) return SQLITE_CANTOPEN;
  sqlite3_snprintf(room, full, "%s", name);
  return SQLITE_OK;
}

/// The engine's own way to files, except that a short name (see ShortName) is not made long again.
void RegisterNamesAsGiven() {
  static sqlite3_vfs names_as_given = [] {
    sqlite3_vfs vfs = *sqlite3_vfs_find(nullptr);
    vfs.pNext = nullptr;
    vfs.zName = kNamesAsGiven;
    vfs.xFullPathname = NameAsGiven;
    return vfs;
  }();
  sqlite3_vfs_register(&names_as_given, 0);
}

/// The engine adds up to eight bytes ("-journal") to the name.
bool TooLongForEngine(const std::string& path) {
  return path.size() + 8 > static_cast<size_t>(sqlite3_vfs_find(nullptr)->mxPathname);
}

/// Opens the handle; there is one also after a failure.
int OpenHandle(OpenedFile& file, const SqliteOptions& options) {
  int flags = options.read_only ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
  if (options.create && !options.read_only) {
    flags |= SQLITE_OPEN_CREATE;
    // The engine gives what it makes beside the file, its log, the same rights.
    if (file.path != kInMemory) MakePrivateFile(file.path);
  }
  // A session belongs to one thread, so the engine need not lock itself at every value read.
  flags |= SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
  const char* way = nullptr;
  if (TooLongForEngine(file.path)) {
    RegisterNamesAsGiven();
    file.short_name.emplace(file.path);
    way = kNamesAsGiven;
  }
  const std::string& name = file.short_name ? file.short_name->Text() : file.path;
  sqlite3* database = nullptr;
  const int result = sqlite3_open_v2(name.c_str(), &database, flags, way);
  file.database.reset(database);
  return result;
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

void OpenedFile::Closer::operator()(sqlite3* database) const { sqlite3_close_v2(database); }

SqliteSession::SqliteSession(OpenedFile file, const SqliteOptions& options)
    : file_(std::move(file)),
      schema_(std::make_unique<SqliteSchema>(Handle())),
      language_(options.language) {}

SqliteSession::~SqliteSession() {
  if (!identity_ || IdentityOf(file_.path) == identity_) return;
  // The log lies beside the file that took our file's place and would be taken for that one's. It
  // is emptied into ours, which is still open, and then left alone.
  sqlite3_wal_checkpoint_v2(Handle(), nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
  sqlite3_db_config(Handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

std::unique_ptr<SqliteSession> OpenSqlite(const std::string& file, const SqliteOptions& options) {
  OpenedFile opened;
  opened.path = file == kInMemory ? file : std::filesystem::absolute(file).string();
  const int result = OpenHandle(opened, options);
  std::unique_ptr<SqliteSession> session(new SqliteSession(std::move(opened), options));
  sqlite3* const handle = session->Handle();
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
  session->identity_ = IdentityOf(session->file_.path);
  return session;
}

void SqliteSession::CheckFileIsThere() const {
  if (!identity_ || IdentityOf(file_.path) == identity_) return;
  throw DataError(kReplaced[language_ && language_() == 1 ? 1 : 0], DataCause::Replaced);
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
    SqliteStatement statement = SqliteStatement::TakeFrom(Handle(), sql);
    if (statement.Empty()) return;
    if (!statement.ReadOnly()) CheckFileIsThere();
    statement.Run();
  }
}

SqliteStatement SqliteSession::Prepare(std::string_view sql) {
  SqliteStatement statement(Handle(), sql);
  if (!statement.ReadOnly()) CheckFileIsThere();
  return statement;
}

int64_t SqliteSession::Changes() const { return sqlite3_changes64(Handle()); }

int64_t SqliteSession::LastId() const { return sqlite3_last_insert_rowid(Handle()); }

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

void SqliteSession::Commit() {
  CheckFileIsThere();
  NativeScript("commit");
}

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
