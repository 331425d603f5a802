#include "adapters/odbc/odbc_session.h"

#include <algorithm>
#include <optional>

#include "adapters/icu/utf16.h"
#include "adapters/odbc/call_thread.h"
#include "adapters/odbc/odbc_fetch.h"
#include "adapters/odbc/odbc_handle.h"
#include "adapters/odbc/odbc_row_writer.h"
#include "adapters/odbc/odbc_texts.h"
#include "platform/basic/text.h"

namespace qvzj {
namespace {

using std::chrono::milliseconds;

/// How long a server may take to confirm that it ended a statement, at most.
constexpr milliseconds kGrace{5000};

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

void Start(const OdbcStatement& statement, const std::string& sql) {
  // The module's texts hold braces and question marks that are nobody's parameters.
  SQLSetStmtAttr(statement.Get(), SQL_ATTR_NOSCAN, reinterpret_cast<SQLPOINTER>(SQL_NOSCAN_ON), 0);
  std::u16string wide = ToUtf16(sql);
  const SQLRETURN result = SQLExecDirectW(statement.Get(), reinterpret_cast<SQLWCHAR*>(wide.data()),
                                          static_cast<SQLINTEGER>(wide.size()));
  if (result != SQL_NO_DATA) statement.Check(result);
}

data::Recordset RowsOf(OdbcConnection& connection, const std::string& sql) {
  const OdbcStatement statement(connection.Get());
  const OdbcConnection::Running running(connection, statement);
  Start(statement, sql);
  return FetchAll(statement, connection.ReadsLongValuesInBlocks(),
                  [&running] { return running.Cancelled(); });
}

OdbcSchema::Columns ColumnsOf(OdbcConnection& connection, const std::string& table) {
  const OdbcStatement statement(connection.Get());
  const OdbcConnection::Running running(connection, statement);
  Start(statement, "select * from " + table + " where 1=0");
  OdbcSchema::Columns columns;
  for (OdbcColumn& column : DescribeColumns(statement)) {
    columns.emplace(basic::Lower(column.name), column.type);
  }
  return columns;
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
    Open();
    Prepare();
  } catch (const OdbcError& error) {
    connection_.reset();
    Refuse(error);
  } catch (const DataError&) {
    connection_.reset();  // one that is not prepared is none
    throw;
  }
}

void OdbcSession::Open() {
  const auto opened = std::make_shared<std::shared_ptr<OdbcConnection>>();
  Within(PatienceAtLogin(),
         [opened, text = options_.connection_string, seconds = options_.login_timeout] {
           *opened = std::make_shared<OdbcConnection>(text, seconds);
         });
  connection_ = *opened;
}

OdbcSession::Patience OdbcSession::PatienceAtLogin() const {
  // The driver keeps the time of the login itself but for what it asks once it is in.
  const std::chrono::seconds login(options_.login_timeout);
  return {login.count() == 0 ? milliseconds(0) : login + kGrace, true};
}

OdbcSession::Patience OdbcSession::PatienceFor(const std::string& sql) const {
  const bool reads = IsRead(sql);
  if (in_transaction_) return {milliseconds(0), reads};
  return {reads ? options_.read_limit : options_.write_limit, reads};
}

void OdbcSession::Within(Patience patience, std::function<void()> call) {
  if (patience.limit.count() == 0) return call();
  if (!calls_) calls_ = std::make_unique<CallThread>();
  if (!calls_->Run(std::move(call), patience.limit)) End(patience);
}

void OdbcSession::End(Patience patience) {
  const milliseconds grace = std::min(patience.limit, kGrace);
  // To ask takes a connection of its own, which may hang as well.
  CallThread asking;
  const auto connection = connection_;
  const bool asked = connection && asking.Run([connection] { connection->Cancel(); }, grace);
  try {
    if (asked && calls_->Wait(grace)) return;
  } catch (const OdbcError& error) {
    if (!error.Cancelled()) throw;
    const auto text = patience.reads ? odbc_texts::ReadStopped : odbc_texts::WriteStopped;
    throw DataError(text(Language(), patience.limit) + "\n" + WithoutSecrets(error.what()),
                    DataCause::TimedOut);
  }
  calls_.reset();
  connection_.reset();
  const auto text = patience.reads ? odbc_texts::ReadGivenUp : odbc_texts::WriteGivenUp;
  throw DataError(text(Language(), patience.limit), DataCause::TimedOut);
}

void OdbcSession::Prepare() {
  const Patience patience = PatienceAtLogin();
  const std::string lock_wait = std::to_string(options_.lock_timeout.count());
  if (options_.engine == ServerEngine::TransactSql) {
    RunOnce("SET DATEFORMAT mdy", patience);
    RunOnce("SET LOCK_TIMEOUT " + (lock_wait == "0" ? "-1" : lock_wait), patience);
    return;
  }
  RunOnce("SET standard_conforming_strings = on", patience);
  RunOnce("SET lock_timeout = " + lock_wait, patience);
  // The suite's own orders let case decide nothing; a database without them has its engine's.
  text_orders_[0] = "\"zh-Hans-x-icu\"";
  text_orders_[1] = "\"zh-Hant-x-icu\"";
  data::Recordset own = RunOnce(
      "select collname from pg_collation where collname in ('qv_pinyin','qv_stroke')", patience);
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
  return Run(translation.text, PatienceFor(translation.text));
}

data::Recordset OdbcSession::Native(std::string_view sql) { return Run(std::string(sql), {}); }

data::Recordset OdbcSession::Run(const std::string& sql, Patience patience) {
  if (!connection_) Connect();
  try {
    return RunOnce(sql, patience);
  } catch (const OdbcError& error) {
    if (!MayReconnectAfter(error)) Refuse(error);
    connection_.reset();
    if (!IsRead(sql)) {
      throw DataError(odbc_texts::OutcomeUnknown(Language()) + "\n" + WithoutSecrets(error.what()),
                      error.Cause());
    }
  }
  Connect();
  try {
    return RunOnce(sql, patience);
  } catch (const OdbcError& error) {
    Refuse(error);
  }
}

bool OdbcSession::MayReconnectAfter(const OdbcError& error) const {
  return !in_transaction_ && (error.ConnectionLost() || connection_->Dead());
}

data::Recordset OdbcSession::RunOnce(const std::string& sql, Patience patience) {
  const auto rows = std::make_shared<std::optional<data::Recordset>>();
  Within(patience,
         [rows, connection = connection_, sql] { rows->emplace(RowsOf(*connection, sql)); });
  return std::move(**rows);
}

OdbcSchema::Columns OdbcSession::DescribeTable(const std::string& table) {
  if (!IsPlainName(table)) return {};
  if (!connection_) Connect();
  const auto columns = std::make_shared<OdbcSchema::Columns>();
  try {
    Within(PatienceFor("select"), [columns, connection = connection_, table] {
      *columns = ColumnsOf(*connection, table);
    });
  } catch (const OdbcError& error) {
    const bool no_such_table = error.State() == "42P01" || error.State() == "42S02";
    if (no_such_table) return {};
    if (!MayReconnectAfter(error)) Refuse(error);
    connection_.reset();
    Connect();
    return DescribeTable(table);
  }
  return *columns;
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
  Run("select 1", {});
  connection_->SetAutocommit(false);
  in_transaction_ = true;
}

void OdbcSession::Commit() {
  try {
    connection_->EndTransaction(SQL_COMMIT);
    connection_->SetAutocommit(true);
  } catch (const OdbcError& error) {
    if (!error.ConnectionLost() && !connection_->Dead()) Refuse(error);
    throw DataError(odbc_texts::OutcomeUnknown(Language()) + "\n" + WithoutSecrets(error.what()),
                    error.Cause());
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
  throw DataError(said, error.Cause());
}

}  // namespace qvzj
