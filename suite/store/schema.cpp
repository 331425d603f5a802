#include "suite/store/schema.h"

#include "platform/basic/text.h"
#include "suite/store/counter_index.h"

namespace qvzj::store {
namespace {

// {text} stands for a text column that compares without ASCII case, {memo} for one without a limit.
constexpr const char* kRegister = R"(
create table if not exists {register} (
  fID integer primary key,
  CompCode {text}, compname {text}, name {text}, fBank {text}, fAcntID {text}, others {text},
  province {text}, cityname {text}, postcode {text}, telphone {text}, fax {text},
  fType0 integer default 0,
  detail {memo});
create index if not exists i{register}Code on {register} ({key CompCode});
create index if not exists i{register}Name on {register} ({key compname});
)";

constexpr const char* kLedger = R"(
create table if not exists tAccountDetail (
  {counter fID},
  fDate date, fCompID integer, fType1 integer, fType2 integer, fAcntNo {text}, fInit integer,
  fMoneyA {real} default 0, fMoneyB {real} default 0,
  fBrief {text}, fInvID {text}, fOrderID {text}, fUser {text}, fDoneman {text}, fChecker {text},
  fID2 integer, fMoneyCode {text}, fMoneyRate {real});
-- the ledger of one customer or account, in the order in which it is shown
create index if not exists iLedgerRecord on tAccountDetail (fCompID, fType1, fDate, fAcntNo);
-- the ledger of everyone between two dates
create index if not exists iLedgerDate on tAccountDetail (fDate);
-- the next voucher number under a stem
create index if not exists iLedgerNumber on tAccountDetail ({key fAcntNo});
-- the counter-entries of a customer entry
create index if not exists iLedgerLink on tAccountDetail (fID2, fType1);
)";

constexpr const char* kSuite = R"(
create table if not exists Moneys (
  MoneyCode {text} primary key, MoneyRate {real}, MoneyType integer);
create table if not exists Employees (employCode {text} primary key, employee {text});
create table if not exists tRsBasic ({counter fID}, fName {text});
create table if not exists tJXC_InvSet (
  fRowID integer primary key, fSetNo integer, fSetNoUse_ integer default 0, fSetAutoNo {text});
create table if not exists tSysFunc (
  SerialNo integer primary key, model_Name {text}, Model_Name_0 {text}, Model_Name_1 {text},
  SecondPass integer default 0, password {password}, NoUse_ integer default 0);
create table if not exists tTaskList (
  {counter fID}, taskID integer, fType integer, fDate date,
  fUser {text}, fBrief {text});
create index if not exists iTaskRecord on tTaskList (taskID, fType);
create table if not exists tJXC_CkDj01 (
  {counter fID}, fInvNo {text}, fKhID integer, fInvSHR {text});
create index if not exists iCkDjNumber on tJXC_CkDj01 ({key fInvNo});
create index if not exists iCkDjCustomer on tJXC_CkDj01 (fKhID);
create table if not exists tJXC_CkDj_Bak01 (
  {counter fID}, fInvNo {text}, fKhID integer, fInvSHR {text});
create index if not exists iCkDjBakNumber on tJXC_CkDj_Bak01 ({key fInvNo});
create table if not exists tJXC_CkHt01 ({counter fID}, fKhID integer);
create index if not exists iCkHtCustomer on tJXC_CkHt01 (fKhID);
)";

/// What the statements above leave to the engine.
struct Words {
  std::string text;
  std::string memo;
  std::string password;  ///< a text that compares with case
  std::string real;
  std::string counter;     ///< the key fID that the engine gives and never gives again
  std::string key_before;  ///< around a column whose index serves comparisons without ASCII case
  std::string key_after;
};

std::string Worded(std::string sql, const Words& words) {
  sql = basic::Replace(sql, "{text}", words.text);
  sql = basic::Replace(sql, "{memo}", words.memo);
  sql = basic::Replace(sql, "{password}", words.password);
  sql = basic::Replace(sql, "{real}", words.real);
  sql = basic::Replace(sql, "{counter fID}", words.counter);
  for (size_t at; (at = sql.find("{key ")) != std::string::npos;) {
    const size_t end = sql.find('}', at);
    const std::string column = sql.substr(at + 5, end - at - 5);
    sql.replace(at, end - at + 1, words.key_before + column + words.key_after);
  }
  return sql;
}

std::string Script(const Words& words) {
  std::string script;
  for (const char* table : {"cards", "tAccounts"}) {
    script += basic::Replace(kRegister, "{register}", table);
  }
  return Worded(script + kLedger + kSuite, words);
}

/// The statements of a script, each ended by ";".
std::vector<std::string> Parted(const std::string& script) {
  std::vector<std::string> statements;
  for (size_t at = 0, end; (end = script.find(';', at)) != std::string::npos; at = end + 1) {
    statements.push_back(script.substr(at, end - at));
  }
  return statements;
}

/// The tables, without the index that the rows in them may stand against.
std::vector<std::string> SqliteTables() {
  return Parted(Script({"text collate nocase", "text collate nocase", "text", "real",
                        "fID integer primary key autoincrement", "", ""}));
}

std::vector<std::string> PostgresTables() {
  std::vector<std::string> statements = Parted(Script(
      {"text", "text", "text", "double precision",
       "fID integer generated by default as identity primary key", "lower(", " collate \"C\")"}));
  statements.insert(
      statements.begin(),
      {"create collation if not exists qv_pinyin "
       "(provider = icu, locale = 'zh-u-co-pinyin-ks-level2', deterministic = false)",
       "create collation if not exists qv_stroke "
       "(provider = icu, locale = 'zh-Hant-u-co-stroke-ks-level2', deterministic = false)"});
  return statements;
}

/// A statement of the script as T-SQL guards it: there is no "if not exists" for tables and
/// indexes.
std::string Guarded(std::string statement) {
  for (const auto& [kind, found] : {std::pair{"table", "object_id('{}') is null"},
                                    {"unique index",
                                     "not exists (select 1 from sys.indexes where "
                                     "name='{}')"},
                                    {"index",
                                     "not exists (select 1 from sys.indexes where "
                                     "name='{}')"}}) {
    const std::string wanted = std::string("create ") + kind + " ";
    const std::string written = wanted + "if not exists ";
    const size_t at = statement.find(written);
    if (at == std::string::npos) continue;
    const size_t name = at + written.size();
    const std::string named = statement.substr(name, statement.find(' ', name) - name);
    statement.replace(at, written.size(),
                      "if " + basic::Replace(found, "{}", named) + "\n" + wanted);
  }
  return statement;
}

}  // namespace

void CreateSchema(data::Store& store) {
  if (store.Speaks() == data::Engine::TransactSql) {
    throw DataError("The tables are made on SQLite and on PostgreSQL only");
  }
  const bool postgres = store.Speaks() == data::Engine::PostgreSql;
  data::Transaction transaction(store);
  for (const std::string& statement : postgres ? PostgresTables() : SqliteTables()) {
    store.Native(statement);
  }
  GuardCounterEntries(store);
  transaction.Commit();
}

std::vector<std::string> PostgresSchema() {
  std::vector<std::string> statements = PostgresTables();
  statements.emplace_back(kCounterIndex);
  return statements;
}

std::vector<std::string> TransactSqlSchema() {
  std::vector<std::string> statements =
      Parted(Script({"nvarchar(255)", "nvarchar(max)", "nvarchar(255)", "float",
                     "fID integer identity(1,1) primary key", "", ""}));
  statements.emplace_back(kCounterIndex);
  for (std::string& statement : statements) statement = Guarded(statement);
  return statements;
}

}  // namespace qvzj::store
