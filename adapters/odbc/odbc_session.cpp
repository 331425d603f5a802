#include "adapters/odbc/odbc_session.h"

#include <algorithm>

#include "adapters/icu/utf16.h"
#include "adapters/odbc/odbc_fetch.h"
#include "adapters/odbc/odbc_handle.h"
#include "adapters/odbc/odbc_row_writer.h"
#include "platform/basic/text.h"

namespace qvzj {
namespace {

/// What the user reads when a change may or may not have been stored, by language.
constexpr const char* kOutcomeUnknown[2] = {
    "与数据库服务器的连接在存盘时中断，无法确定这次修改是否已经保存。请先刷新核对，再决定是否重做"
    "。",
    "與資料庫伺服器的連線在存檔時中斷，無法確定這次修改是否已經儲存。請先重新整理核對，"
    "再決定是否重做。",
};

bool IsRead(const std::string& sql) {
  return basic::EqualIgnoringCase(std::string_view(sql).substr(0, 6), "select");
}

bool IsPlainName(const std::string& name) {
  return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
  });
}

bool IsWordCharacter(char c) { return IsPlainName(std::string(1, c)); }

/// Puts "***" for every place where `secret` stands by itself.
void HideWord(std::string& text, const std::string& secret) {
  if (secret.empty()) return;
  for (size_t at = 0; (at = text.find(secret, at)) != std::string::npos;) {
    const size_t end = at + secret.size();
    const bool begins_inside = at > 0 && IsWordCharacter(text[at - 1]);
    const bool ends_inside = end < text.size() && IsWordCharacter(text[end]);
    if (begins_inside || ends_inside) {
      at = end;
    } else {
      text.replace(at, secret.size(), "***");
      at += 3;
    }
  }
}

/// Runs it; ended by the server when it takes longer than `timeout` seconds, unless that is 0.
void Start(const OdbcStatement& statement, const std::string& sql, int timeout) {
  if (timeout > 0) {
    SQLSetStmtAttr(statement.Get(), SQL_ATTR_QUERY_TIMEOUT,
                   reinterpret_cast<SQLPOINTER>(static_cast<SQLULEN>(timeout)), 0);
  }
  std::u16string wide = ToUtf16(sql);
  const SQLRETURN result = SQLExecDirectW(statement.Get(), reinterpret_cast<SQLWCHAR*>(wide.data()),
                                          static_cast<SQLINTEGER>(wide.size()));
  if (result != SQL_NO_DATA) statement.Check(result);
}

}  // namespace

OdbcSession::OdbcSession(OdbcOptions options)
    : options_(std::move(options)),
      schema_([this](const std::string& table) { return DescribeTable(table); }) {
  Connect();
}

OdbcSession::~OdbcSession() = default;

void OdbcSession::Connect() {
  try {
    connection_ =
        std::make_unique<OdbcConnection>(options_.connection_string, options_.login_timeout);
    Prepare();
  } catch (const OdbcError& error) {
    connection_.reset();
    Refuse(error);
  }
}

void OdbcSession::Prepare() {
  const std::string patience = std::to_string(options_.lock_timeout.count());
  if (options_.engine == ServerEngine::TransactSql) {
    RunOnce("SET DATEFORMAT mdy");
    RunOnce("SET LOCK_TIMEOUT " + (patience == "0" ? "-1" : patience));
    return;
  }
  RunOnce("SET standard_conforming_strings = on");
  RunOnce("SET lock_timeout = " + patience);
  // The suite's own orders let case decide nothing; a database without them has its engine's.
  text_orders_[0] = "\"zh-Hans-x-icu\"";
  text_orders_[1] = "\"zh-Hant-x-icu\"";
  data::Recordset own =
      RunOnce("select collname from pg_collation where collname in ('qv_pinyin','qv_stroke')");
  for (; !own.Eof(); own.MoveNext()) {
    text_orders_[own.Text(0) == "qv_stroke" ? 1 : 0] = own.Text(0);
  }
}

dialect::Translation OdbcSession::Translate(std::string_view statement) {
  const dialect::Target target = options_.engine == ServerEngine::TransactSql
                                     ? dialect::TransactSqlTarget()
                                     : dialect::PostgresTarget(text_orders_[Language()]);
  return dialect::Translate(statement, target, schema_);
}

void OdbcSession::Execute(std::string_view statement) { Query(statement); }

data::Recordset OdbcSession::Query(std::string_view statement) {
  const dialect::Translation translation = Translate(statement);
  if (translation.text.empty()) throw DataError("Command text was not set for the command object");
  if (translation.added) {
    schema_.Forget();  // another session may have added it meanwhile
    const auto& [table, column] = *translation.added;
    if (schema_.TypeOf(table, column) != dialect::ColumnType::Unknown) return {{}, {}};
    schema_.Forget();
  }
  return Run(translation.text);
}

data::Recordset OdbcSession::Native(std::string_view sql) { return Run(std::string(sql)); }

data::Recordset OdbcSession::Run(const std::string& sql) {
  if (!connection_) Connect();
  try {
    return RunOnce(sql);
  } catch (const OdbcError& error) {
    if (!MayReconnectAfter(error)) Refuse(error);
    connection_.reset();
    if (!IsRead(sql)) {
      throw DataError(std::string(kOutcomeUnknown[Language()]) + "\n" +
                      WithoutSecrets(error.what()));
    }
  }
  Connect();
  try {
    return RunOnce(sql);
  } catch (const OdbcError& error) {
    Refuse(error);
  }
}

bool OdbcSession::MayReconnectAfter(const OdbcError& error) const {
  return !in_transaction_ && (error.ConnectionLost() || connection_->Dead());
}

data::Recordset OdbcSession::RunOnce(const std::string& sql) {
  const OdbcStatement statement(connection_->Get());
  // The module's texts hold braces and question marks that are nobody's parameters.
  SQLSetStmtAttr(statement.Get(), SQL_ATTR_NOSCAN, reinterpret_cast<SQLPOINTER>(SQL_NOSCAN_ON), 0);
  Start(statement, sql, options_.statement_timeout);
  return FetchAll(statement, connection_->ReadsLongValuesInBlocks());
}

OdbcSchema::Columns OdbcSession::DescribeTable(const std::string& table) {
  if (!IsPlainName(table)) return {};
  if (!connection_) Connect();
  OdbcSchema::Columns columns;
  try {
    const OdbcStatement statement(connection_->Get());
    Start(statement, "select * from " + table + " where 1=0", options_.statement_timeout);
    for (OdbcColumn& column : DescribeColumns(statement)) {
      columns.emplace(basic::Lower(column.name), column.type);
    }
  } catch (const OdbcError& error) {
    const bool no_such_table = error.State() == "42P01" || error.State() == "42S02";
    if (no_such_table) return {};
    if (!MayReconnectAfter(error)) Refuse(error);
    connection_.reset();
    Connect();
    return DescribeTable(table);
  }
  return columns;
}

data::Engine OdbcSession::Speaks() const {
  return options_.engine == ServerEngine::TransactSql ? data::Engine::TransactSql
                                                      : data::Engine::PostgreSql;
}

std::unique_ptr<data::RowWriter> OdbcSession::Writer(std::string_view table,
                                                     const std::vector<std::string_view>& columns) {
  if (!connection_) Connect();
  const auto refuse = [this](const OdbcError& error) { Refuse(error); };
  try {
    return std::make_unique<OdbcRowWriter>(*connection_, table, columns, refuse);
  } catch (const OdbcError& error) {
    Refuse(error);
  }
}

void OdbcSession::Begin() {
  // A connection that the server has dropped in the meantime is noticed, and replaced, here.
  Run("select 1");
  connection_->SetAutocommit(false);
  in_transaction_ = true;
}

void OdbcSession::Commit() {
  try {
    connection_->EndTransaction(SQL_COMMIT);
    connection_->SetAutocommit(true);
  } catch (const OdbcError& error) {
    if (!error.ConnectionLost() && !connection_->Dead()) Refuse(error);
    throw DataError(std::string(kOutcomeUnknown[Language()]) + "\n" + WithoutSecrets(error.what()));
  }
  in_transaction_ = false;
}

void OdbcSession::Rollback() noexcept {
  in_transaction_ = false;
  bool alive = !connection_->Dead();
  try {
    connection_->EndTransaction(SQL_ROLLBACK);
    connection_->SetAutocommit(true);
  } catch (const DataError&) {
    alive = false;
  }
  if (!alive) connection_.reset();  // the server undoes what a lost connection had begun
}

std::string OdbcSession::IdGenerator(const std::string& table) {
  if (options_.engine != ServerEngine::PostgreSql) {
    throw DataError("Id generators are known for PostgreSQL only");
  }
  return Native("select pg_get_serial_sequence('" + basic::Lower(table) + "','fid')").Text(0);
}

int64_t OdbcSession::LastGivenId(const std::string& table) {
  const std::string generator = IdGenerator(table);
  if (generator.empty()) return 0;
  const data::Recordset last =
      Native("select case when is_called then last_value else last_value-1 end from " + generator);
  return static_cast<int64_t>(last.Number(0));
}

void OdbcSession::GiveIdsAbove(const std::string& table, int64_t id) {
  const std::string generator = IdGenerator(table);
  if (generator.empty() || id <= LastGivenId(table)) return;
  Native("select setval('" + generator + "'," + std::to_string(id) + ")");
}

std::string OdbcSession::WithoutSecrets(std::string text) const {
  for (const std::string& secret : options_.secrets) {
    HideWord(text, secret);
  }
  return text;
}

void OdbcSession::Refuse(const OdbcError& error) const {
  const std::string said = WithoutSecrets(error.what());
  if (const auto rule = error.BrokenRule()) throw data::ConstraintError(*rule, said);
  throw DataError(said);
}

}  // namespace qvzj
