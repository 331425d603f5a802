#include "suite/schema.h"

#include "platform/basic/text.h"

namespace qvzj {
namespace {

// {text} stands for a text column that compares without ASCII case.
constexpr const char* kRegister = R"(
create table if not exists {register} (
  fID integer primary key,
  CompCode {text}, compname {text}, name {text}, fBank {text}, fAcntID {text}, others {text},
  province {text}, cityname {text}, postcode {text}, telphone {text}, fax {text},
  fType0 integer default 0,
  detail {text});
create index if not exists i{register}Code on {register} (CompCode);
create index if not exists i{register}Name on {register} (compname);
)";

constexpr const char* kLedger = R"(
create table if not exists tAccountDetail (
  fID integer primary key autoincrement,
  fDate date, fCompID integer, fType1 integer, fType2 integer, fAcntNo {text}, fInit integer,
  fMoneyA real default 0, fMoneyB real default 0,
  fBrief {text}, fInvID {text}, fOrderID {text}, fUser {text}, fDoneman {text}, fChecker {text},
  fID2 integer, fMoneyCode {text}, fMoneyRate real);
-- the ledger of one customer or account, in the order in which it is shown
create index if not exists iLedgerRecord on tAccountDetail (fCompID, fType1, fDate, fAcntNo);
-- the next voucher number under a stem
create index if not exists iLedgerNumber on tAccountDetail (fAcntNo);
-- the counter-entries of a customer entry
create index if not exists iLedgerLink on tAccountDetail (fID2, fType1);
)";

constexpr const char* kSuite = R"(
create table if not exists Moneys (
  MoneyCode {text} primary key, MoneyRate real, MoneyType integer);
create table if not exists Employees (employCode {text} primary key, employee {text});
create table if not exists tRsBasic (fID integer primary key, fName {text});
create table if not exists tJXC_InvSet (
  fRowID integer primary key, fSetNo integer, fSetNoUse_ integer default 0, fSetAutoNo {text});
create table if not exists tSysFunc (
  SerialNo integer primary key, model_Name {text}, Model_Name_0 {text}, Model_Name_1 {text},
  SecondPass integer default 0, password text, NoUse_ integer default 0);
create table if not exists tTaskList (
  fID integer primary key autoincrement, taskID integer, fType integer, fDate date,
  fUser {text}, fBrief {text});
create index if not exists iTaskRecord on tTaskList (taskID, fType);
create table if not exists tJXC_CkDj01 (
  fID integer primary key, fInvNo {text}, fKhID integer, fInvSHR {text});
create index if not exists iCkDjNumber on tJXC_CkDj01 (fInvNo);
create index if not exists iCkDjCustomer on tJXC_CkDj01 (fKhID);
create table if not exists tJXC_CkDj_Bak01 (
  fID integer primary key, fInvNo {text}, fKhID integer, fInvSHR {text});
create index if not exists iCkDjBakNumber on tJXC_CkDj_Bak01 (fInvNo);
create table if not exists tJXC_CkHt01 (fID integer primary key, fKhID integer);
create index if not exists iCkHtCustomer on tJXC_CkHt01 (fKhID);
)";

}  // namespace

void CreateSchema(SqliteSession& session) {
  const auto run = [&session](std::string sql) {
    session.NativeScript(basic::Replace(sql, "{text}", "text collate nocase"));
  };
  SqliteTransaction transaction(session);
  for (const char* table : {"cards", "tAccounts"}) {
    run(basic::Replace(kRegister, "{register}", table));
  }
  run(kLedger);
  run(kSuite);
  transaction.Commit();
}

}  // namespace qvzj
