#include "benchmarks/server_ledger.h"

#include <algorithm>
#include <stdexcept>

#include "adapters/icu/utf16.h"
#include "benchmarks/world.h"
#include "services/context.h"
#include "suite/store/settle.h"

namespace qvzj::bench {
namespace {

/// Entries of the customer that is measured.
constexpr int64_t kEntriesOfOne = 1000;

void Fill(data::Store& store, int64_t customers, int64_t entries) {
  const std::string n = std::to_string(entries);
  const std::string step = std::to_string(std::max<int64_t>(entries / kEntriesOfOne, 1));
  const std::string day = "(date '2022-01-01' + (i * 730 / " + n + ")::int)";
  store.Native(
      "insert into cards (fID,CompCode,compname,fType0) select i, lpad(i::text,6,'0'), "
      "'深圳市华强贸易有限公司' || i, 0 from generate_series(1," +
      std::to_string(customers) + ") i");
  store.Native(
      "insert into tAccountDetail (fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,"
      "fBrief,fInvID,fOrderID,fUser,fDoneman,fChecker,fID2,fMoneyCode,fMoneyRate) select " +
      day + ", case when i % " + step + " = 0 then " + std::to_string(kBenchCustomerId) +
      " else 2 + i * 7919 % " + std::to_string(customers - 1) + " end, 0, 1 + i % 2, to_char(" +
      day +
      ",'YYYYMM') || 'PZ' || lpad((i % 100000)::text,5,'0'), 0, i % 10000 / 100.0, "
      "i % 7777 / 100.0, '货款', '', 'DD' || i, 'admin', '张三', "
      "case when i % 3 = 0 then '李四' else '' end, 0, 'RMB', 1 "
      "from generate_series(1," +
      n + "::bigint) i");
  store.Native("insert into Moneys (MoneyCode,MoneyRate,MoneyType) values ('RMB',1,1)");
  store::SettleTables(store);
}

constexpr const char* kLedger =
    "Select b.fDate,b.fAcntNo,a.CompName,b.fMoneyA,b.fMoneyB,0 as hh,b.fBrief,b.fInvID,b.fOrderID,"
    "b.fUser,b.fDoneman,b.fChecker,b.fMoneyRate,b.fType2,b.fInit,b.fCompID,b.fID,b.fID2 "
    "From cards a Right Join tAccountDetail b On b.fCompID=a.fID Where b.fType1=0";
constexpr const char* kOrder = " Order By a.CompCode,a.CompName,b.fDate,b.fAcntNo";
constexpr const char* kRegister =
    "select distinct a.CompCode,a.compname,a.name,a.fBank,a.fAcntID,a.others,a.province,"
    "a.cityname,a.postcode,a.telphone,a.fax,a.fType0,a.fID from cards a";

}  // namespace

ServerLedger::ServerLedger(test::PrivatePostgres& server, int64_t customers, int64_t entries)
    : entries_(entries),
      login_{server.Address(), test::PrivatePostgres::kUser, test::PrivatePostgres::kPassword,
             server.MakeDatabase()},
      session_(store::OpenServer(login_, {})) {
  Fill(*session_, customers, entries);
}

void ServerLedger::FetchBare(const std::string& statement) {
  constexpr size_t kRows = 512;
  constexpr size_t kWidth = 258;
  if (!bare_) bare_ = std::make_unique<OdbcConnection>(store::ConnectionString(login_, {}), 10);
  std::u16string sql = ToUtf16(Session().Translate(statement).text);
  const OdbcStatement run(bare_->Get());
  run.Check(SQLExecDirectW(run.Get(), reinterpret_cast<SQLWCHAR*>(sql.data()),
                           static_cast<SQLINTEGER>(sql.size())));
  SQLSMALLINT count = 0;
  run.Check(SQLNumResultCols(run.Get(), &count));
  SQLSetStmtAttr(run.Get(), SQL_ATTR_ROW_ARRAY_SIZE, reinterpret_cast<SQLPOINTER>(kRows), 0);
  std::vector<std::vector<char>> blocks(static_cast<size_t>(count));
  std::vector<std::vector<SQLLEN>> lengths(static_cast<size_t>(count));
  for (SQLSMALLINT i = 0; i < count; ++i) {
    SQLLEN type = 0;
    SQLColAttributeW(run.Get(), static_cast<SQLUSMALLINT>(i + 1), SQL_DESC_CONCISE_TYPE, nullptr, 0,
                     nullptr, &type);
    SQLSMALLINT wanted = SQL_C_WCHAR;
    if (type == SQL_INTEGER || type == SQL_BIGINT) wanted = SQL_C_SBIGINT;
    if (type == SQL_DOUBLE || type == SQL_FLOAT) wanted = SQL_C_DOUBLE;
    if (type == SQL_TYPE_DATE) wanted = SQL_C_TYPE_DATE;
    const auto place = static_cast<size_t>(i);
    blocks[place].resize(kRows * kWidth);
    lengths[place].resize(kRows);
    const size_t width = wanted == SQL_C_WCHAR ? kWidth : sizeof(double);
    SQLBindCol(run.Get(), static_cast<SQLUSMALLINT>(i + 1), wanted, blocks[place].data(),
               static_cast<SQLLEN>(width), lengths[place].data());
  }
  while (true) {
    const SQLRETURN result = SQLFetchScroll(run.Get(), SQL_FETCH_NEXT, 0);
    if (result == SQL_NO_DATA) return;
    run.Check(result);
  }
}

ServerForm::ServerForm(const store::ServerLogin& login) {
  ResetShared();
  headless_.Install(connections_);
  Around().statement_watcher = {};  // nobody looks at a million statements
  headless_.clock.Set(basic::Date::FromYmd(2023, 3, 15));
  AllowEverything(control_, login.address);
  control_.setSQLData(1);
  control_.setUserID(login.user);
  control_.setPassword(login.password);
  control_.setDefault(login.database);
  control_.refresh(0, 0);
  if (!control_.Form()) {
    throw std::runtime_error("the main form did not open: " + connections_.LastError());
  }
}

ServerForm::~ServerForm() {
  Form().UserClose();
  ResetShared();
  Around() = {};
}

std::string WholeLedger() { return std::string(kLedger) + kOrder; }

std::string LedgerOfOne() {
  return std::string(kLedger) + " And a.fID=" + std::to_string(kBenchCustomerId) + kOrder;
}

std::string WholeRegister() { return std::string(kRegister) + " Order By a.CompCode"; }

std::vector<ServerStatement> ServerStatements() {
  const std::string columns =
      "(fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,fBrief,fInvID,fOrderID,fUser,"
      "fDoneman,fChecker,fID2,fMoneyCode,fMoneyRate)";
  return {
      {"ledger of all customers", WholeLedger()},
      {"ledger of a month",
       std::string(kLedger) + " and b.fDate>='03/01/2023' And b.fDate<='03/31/2023'" + kOrder},
      {"ledger of one customer, 1,000 entries", LedgerOfOne()},
      {"register of 1,000 customers", WholeRegister()},
      {"the same, of customers with entries",
       std::string(kRegister) + " Right Join tAccountDetail b On a.fID=b.fCompID Where b.fType1=0"
                                " Order By a.CompCode"},
      {"next voucher number",
       "select max(SUBSTRING(fAcntNo,9,5)) as invID from tAccountDetail where "
       "left(fAcntNo,8)='202303PZ' and IsNumeric(SUBSTRING(fAcntNo,9,5))=1"},
      {"entry still there", "select count(*) from tAccountDetail Where fID=7 And fType1=0"},
      {"checked counter-entries",
       "select count(*) from tAccountDetail Where fType1=1 and fID2=7 And fChecker<>''"},
      {"count of a customer's 1,000 entries",
       "select count(*) from tAccountDetail Where fCompID=" + std::to_string(kBenchCustomerId) +
           " And fType1=0"},
      {"link column there", "select count(*) from tAccountDetail Where fID2>0"},
      {"rate of a currency", "Select MoneyRate from Moneys where MoneyCode='RMB'"},
      {"new entry",
       "Insert Into tAccountDetail " + columns +
           " Values ('03/15/2023',2,0,1,'202303PZ99999',0,1,0,'','','','admin','','',0,'RMB',1)",
       true},
      {"change of an entry", "Update tAccountDetail Set fDate='03/15/2023',fMoneyA=2 Where fID=7",
       true},
      {"approval", "Update tAccountDetail Set fChecker='admin' Where fID=7", true},
      {"removal of counter-entries", "Delete from tAccountDetail Where fType1=1 and fID2=7", true},
  };
}

}  // namespace qvzj::bench
