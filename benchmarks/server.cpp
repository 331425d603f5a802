// What each statement of the module costs on a private PostgreSQL server, by the size of the
// ledger, and what the session adds to fetching the same rows through ODBC alone.
//
//   bench_server [--tiny | --entries N ...]

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include "adapters/icu/utf16.h"
#include "adapters/odbc/odbc_handle.h"
#include "adapters/odbc/odbc_session.h"
#include "suite/connections.h"
#include "tests/support/postgres.h"

namespace qvzj::bench {
namespace {

using Clock = std::chrono::steady_clock;
using Sizes = std::vector<int64_t>;

constexpr int64_t kEntriesACustomer = 1000;

/// Seconds on the clock: the work is the server's as well as this process's.
double Seconds(const std::function<void()>& work) {
  const auto start = Clock::now();
  work();
  return std::chrono::duration<double>(Clock::now() - start).count();
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

/// Median of as many turns as fit into about a second, at least three.
double MedianSeconds(const std::function<void()>& work) {
  std::vector<double> turns;
  double spent = 0;
  while (turns.size() < 3 || (spent < 1 && turns.size() < 100)) {
    turns.push_back(Seconds(work));
    spent += turns.back();
  }
  return Median(std::move(turns));
}

void Fill(const NativeStatements& run, int64_t entries) {
  const std::string n = std::to_string(entries);
  const std::string customers = std::to_string(std::max<int64_t>(entries / kEntriesACustomer, 2));
  const std::string day = "(date '2022-01-01' + (i * 730 / " + n + ")::int)";
  run("insert into cards (fID,CompCode,compname,fType0) select i, lpad(i::text,6,'0'), "
      "'深圳市华强贸易有限公司' || i, 0 from generate_series(1," +
      customers + ") i");
  run("insert into tAccountDetail (fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,"
      "fBrief,fInvID,fOrderID,fUser,fDoneman,fChecker,fID2,fMoneyCode,fMoneyRate) select " +
      day + ", 1 + i * 7919 % " + customers + ", 0, 1 + i % 2, to_char(" + day +
      ",'YYYYMM') || 'PZ' || lpad((i % 100000)::text,5,'0'), 0, i % 10000 / 100.0, "
      "i % 7777 / 100.0, '货款', '', 'DD' || i, 'admin', '张三', "
      "case when i % 3 = 0 then '李四' else '' end, 0, 'RMB', 1 "
      "from generate_series(1," +
      n + "::bigint) i");
  run("insert into Moneys (MoneyCode,MoneyRate,MoneyType) values ('RMB',1,1)");
  run("analyze");
}

constexpr const char* kLedger =
    "Select b.fDate,b.fAcntNo,a.CompName,b.fMoneyA,b.fMoneyB,0 as hh,b.fBrief,b.fInvID,b.fOrderID,"
    "b.fUser,b.fDoneman,b.fChecker,b.fMoneyRate,b.fType2,b.fInit,b.fCompID,b.fID,b.fID2 "
    "From cards a Right Join tAccountDetail b On b.fCompID=a.fID Where b.fType1=0";
constexpr const char* kOrder = " Order By a.CompCode,a.CompName,b.fDate,b.fAcntNo";
constexpr const char* kRegister =
    "select distinct a.CompCode,a.compname,a.name,a.fBank,a.fAcntID,a.others,a.province,"
    "a.cityname,a.postcode,a.telphone,a.fax,a.fType0,a.fID from cards a";

struct Statement {
  const char* name;
  std::string text;
  bool writes = false;
};

std::vector<Statement> Statements() {
  const std::string ledger = kLedger;
  const std::string columns =
      "(fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,fBrief,fInvID,fOrderID,fUser,"
      "fDoneman,fChecker,fID2,fMoneyCode,fMoneyRate)";
  return {
      {"ledger of all customers", ledger + kOrder},
      {"ledger of a month",
       ledger + " and b.fDate>='03/01/2023' And b.fDate<='03/31/2023'" + kOrder},
      {"ledger of one customer", ledger + " And a.fID=2" + kOrder},
      {"register", std::string(kRegister) + " Order By a.CompCode"},
      {"register of customers with entries",
       std::string(kRegister) + " Right Join tAccountDetail b On a.fID=b.fCompID Where b.fType1=0"
                                " Order By a.CompCode"},
      {"next voucher number",
       "select max(SUBSTRING(fAcntNo,9,5)) as invID from tAccountDetail where "
       "left(fAcntNo,8)='202303PZ' and IsNumeric(SUBSTRING(fAcntNo,9,5))=1"},
      {"entry still there", "select count(*) from tAccountDetail Where fID=7 And fType1=0"},
      {"checked counter-entries",
       "select count(*) from tAccountDetail Where fType1=1 and fID2=7 And fChecker<>''"},
      {"entries of a customer", "select count(*) from tAccountDetail Where fCompID=2 And fType1=0"},
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

/// Fetches a statement's rows in blocks and looks at none.
void FetchBare(const OdbcConnection& connection, const std::string& sql) {
  constexpr size_t kRows = 512;
  constexpr size_t kWidth = 258;
  const OdbcStatement statement(connection.Get());
  std::u16string wide = ToUtf16(sql);
  statement.Check(SQLExecDirectW(statement.Get(), reinterpret_cast<SQLWCHAR*>(wide.data()),
                                 static_cast<SQLINTEGER>(wide.size())));
  SQLSMALLINT count = 0;
  statement.Check(SQLNumResultCols(statement.Get(), &count));
  SQLSetStmtAttr(statement.Get(), SQL_ATTR_ROW_ARRAY_SIZE, reinterpret_cast<SQLPOINTER>(kRows), 0);
  std::vector<std::vector<char>> blocks(static_cast<size_t>(count));
  std::vector<std::vector<SQLLEN>> lengths(static_cast<size_t>(count));
  for (SQLSMALLINT i = 0; i < count; ++i) {
    SQLLEN type = 0;
    SQLColAttributeW(statement.Get(), static_cast<SQLUSMALLINT>(i + 1), SQL_DESC_CONCISE_TYPE,
                     nullptr, 0, nullptr, &type);
    SQLSMALLINT wanted = SQL_C_WCHAR;
    if (type == SQL_INTEGER || type == SQL_BIGINT) wanted = SQL_C_SBIGINT;
    if (type == SQL_DOUBLE || type == SQL_FLOAT) wanted = SQL_C_DOUBLE;
    if (type == SQL_TYPE_DATE) wanted = SQL_C_TYPE_DATE;
    const auto place = static_cast<size_t>(i);
    blocks[place].resize(kRows * kWidth);
    lengths[place].resize(kRows);
    const size_t width = wanted == SQL_C_WCHAR ? kWidth : sizeof(double);
    SQLBindCol(statement.Get(), static_cast<SQLUSMALLINT>(i + 1), wanted, blocks[place].data(),
               static_cast<SQLLEN>(width), lengths[place].data());
  }
  while (true) {
    const SQLRETURN result = SQLFetchScroll(statement.Get(), SQL_FETCH_NEXT, 0);
    if (result == SQL_NO_DATA) return;
    statement.Check(result);
  }
}

class Bench {
 public:
  void Run(const Sizes& sizes) {
    for (const int64_t size : sizes) RunSize(size);
    std::printf("| milliseconds, median |");
    for (const int64_t size : sizes) std::printf(" %s entries |", std::to_string(size).c_str());
    std::printf("\n|---|");
    for (size_t i = 0; i < sizes.size(); ++i) std::printf("---:|");
    std::printf("\n");
    for (const auto& [name, row] : rows_) {
      std::printf("| %s |", name.c_str());
      for (const double value : row) std::printf(" %.*f |", value < 10 ? 2 : 0, value);
      std::printf("\n");
    }
  }

 private:
  void RunSize(int64_t size) {
    std::cerr << "Filling a ledger of " << size << " entries" << std::endl;
    const std::string database = server_.MakeDatabase();
    const ServerLogin login{server_.Address(), test::PrivatePostgres::kUser,
                            test::PrivatePostgres::kPassword, database};
    Fill(OpenNative(1, login, {}), size);
    const auto session = OpenServer(login, {});
    for (const Statement& statement : Statements()) {
      const auto work = [&] {
        if (statement.writes) return session->Execute(statement.text);
        session->Query(statement.text);
      };
      Add(statement.name, 1000 * MedianSeconds(work));
    }
    const OdbcConnection bare(ConnectionString(login, {}), 10);
    const std::string all = std::string(kLedger) + kOrder;
    const std::string sql = static_cast<OdbcSession&>(*session).Translate(all).text;
    // Turn by turn, so that what else the machine does weighs on both alike.
    std::vector<double> ratios;
    for (int turn = 0; turn < 5; ++turn) {
      const double alone = Seconds([&] { FetchBare(bare, sql); });
      ratios.push_back(Seconds([&] { session->Query(all); }) / alone);
    }
    Add("session against bare ODBC, same ledger (ratio, bound 1.5)", Median(std::move(ratios)));
  }

  void Add(const std::string& name, double milliseconds) {
    const auto found = std::find_if(rows_.begin(), rows_.end(),
                                    [&](const auto& row) { return row.first == name; });
    if (found == rows_.end()) {
      rows_.push_back({name, {milliseconds}});
    } else {
      found->second.push_back(milliseconds);
    }
  }

  test::PrivatePostgres server_;
  std::vector<std::pair<std::string, std::vector<double>>> rows_;
};

int Main(const std::vector<std::string>& arguments) {
  Sizes sizes{10'000, 100'000, 1'000'000};
  if (!arguments.empty() && arguments[0] == "--tiny") sizes = {300};
  if (!arguments.empty() && arguments[0] == "--entries") {
    sizes.clear();
    for (size_t i = 1; i < arguments.size(); ++i) sizes.push_back(std::stoll(arguments[i]));
  }
  if (const std::string missing = test::PrivatePostgres::Missing(); !missing.empty()) {
    std::printf("skipped: %s\n", missing.c_str());
    return 77;
  }
  Bench().Run(sizes);
  return 0;
}

}  // namespace
}  // namespace qvzj::bench

int main(int argc, char** argv) {
  return qvzj::bench::Main(std::vector<std::string>(argv + 1, argv + argc));
}
