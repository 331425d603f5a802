#include "adapters/odbc/odbc_session.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "platform/basic/errors.h"
#include "tests/adapters/odbc/server.h"

namespace qvzj::test {
namespace {

class OdbcSessions : public testing::Test {
 protected:
  void SetUp() override {
    QV_NEEDS_SERVER();
    database_ = Server().MakeDatabase();
  }

  std::unique_ptr<data::Session> Open(const store::ConnectionOptions& options = {}) {
    return store::OpenServer(LoginTo(database_), options);
  }
  /// What opening says when it fails.
  static std::string Refusal(const store::ServerLogin& login,
                             const store::ConnectionOptions& options = {}) {
    try {
      store::OpenServer(login, options);
    } catch (const DataError& error) {
      return error.what();
    }
    return "";
  }
  static std::string Failure(data::Session& session, const std::string& statement) {
    try {
      session.Execute(statement);
    } catch (const DataError& error) {
      return error.what();
    }
    return "";
  }
  /// Steps of the plan of a statement of the module, on a server that shuns reading whole tables.
  static std::string Plan(data::Session& session, const std::string& statement) {
    auto& server = static_cast<OdbcSession&>(session);
    server.Native("set enable_seqscan = off");
    std::string steps;
    auto set = server.Native("explain " + server.Translate(statement).text);
    for (; !set.Eof(); set.MoveNext()) steps += set.Text(0) + "\n";
    return steps;
  }

  std::string database_;
};

/// Holds the table of customers alone through a session of its own.
class TableHeld {
 public:
  explicit TableHeld(std::unique_ptr<data::Session> session) : session_(std::move(session)) {
    auto& holding = static_cast<OdbcSession&>(*session_);
    holding.Native("begin");
    holding.Native("lock table cards in access exclusive mode");
  }
  ~TableHeld() { static_cast<OdbcSession&>(*session_).Native("rollback"); }
  TableHeld(const TableHeld&) = delete;
  TableHeld& operator=(const TableHeld&) = delete;

 private:
  std::unique_ptr<data::Session> session_;
};

constexpr const char* kInsert = "Insert Into cards (fID,compname) Values (5,'甲公司')";
constexpr const char* kCount = "select count(*) from cards";

TEST_F(OdbcSessions, SayWhatTheServerSaidWithItsState) {
  auto session = Open();
  session->Execute(kInsert);
  const std::string text = Failure(*session, kInsert);
  EXPECT_NE(text.find("duplicate key"), std::string::npos) << text;
  EXPECT_NE(text.find("(SQLSTATE 23505)"), std::string::npos) << text;
}

TEST_F(OdbcSessions, NeverShowThePasswordThatWasRefused) {
  store::ServerLogin login = LoginTo(database_);
  login.password = "wrong;secret";
  const std::string text = Refusal(login);
  EXPECT_NE(text.find("authentication failed"), std::string::npos) << text;
  EXPECT_EQ(text.find("wrong;secret"), std::string::npos) << text;
}

TEST_F(OdbcSessions, SayWhichDatabaseIsMissing) {
  const std::string text = Refusal(LoginTo("no_such_database"));
  EXPECT_NE(text.find("no_such_database"), std::string::npos) << text;
}

TEST_F(OdbcSessions, SayThatNoServerAnswers) {
  store::ServerLogin login = LoginTo(database_);
  login.address = "127.0.0.1:1";
  EXPECT_NE(Refusal(login), "");
}

TEST_F(OdbcSessions, ReadOnAfterTheServerCameBack) {
  auto session = Open();
  session->Execute(kInsert);
  Server().Kill();
  Server().Start();
  EXPECT_EQ(session->Query(kCount).Text(0), "1");
  session->Execute("Update cards Set compname='乙' Where fID=5");
  EXPECT_EQ(session->Query("select compname from cards").Text(0), "乙");
}

TEST_F(OdbcSessions, ReadOnAfterTheServerDroppedTheirConnectionAlone) {
  auto session = Open();
  session->Execute(kInsert);
  Server().Run(database_,
               "select pg_terminate_backend(pid) from pg_stat_activity where "
               "datname=current_database() and pid<>pg_backend_pid()");
  EXPECT_EQ(session->Query(kCount).Text(0), "1");
}

TEST_F(OdbcSessions, NeverRepeatAWriteWhoseOutcomeIsUnknown) {
  auto session = Open();
  session->Execute("Update cards Set compname='' Where fID=0");
  Server().Kill();
  Server().Start();
  const std::string text = Failure(*session, kInsert);
  EXPECT_EQ(text.find("与数据库服务器的连接在存盘时中断"), 0U) << text;
  EXPECT_EQ(session->Query(kCount).Text(0), "0");
}

TEST_F(OdbcSessions, SpeakOfAnUnknownOutcomeInTheReadersLanguage) {
  store::ConnectionOptions options;
  options.language = [] { return 1; };
  auto session = Open(options);
  session->Execute("Update cards Set compname='' Where fID=0");
  Server().Kill();
  Server().Start();
  const std::string text = Failure(*session, kInsert);
  EXPECT_EQ(text.find("與資料庫伺服器的連線在存檔時中斷"), 0U) << text;
}

TEST_F(OdbcSessions, ReportAServerThatStaysAwayAndWorkOnceItIsBack) {
  auto session = Open();
  Server().Kill();
  EXPECT_THROW(session->Query(kCount), DataError);
  EXPECT_THROW(session->Query(kCount), DataError);
  Server().Start();
  EXPECT_EQ(session->Query(kCount).Text(0), "0");
}

TEST_F(OdbcSessions, WaitForAnotherSessionAndThenSaySoAndGoOn) {
  store::ConnectionOptions options;
  options.busy_timeout = std::chrono::milliseconds(100);
  auto session = Open(options);
  session->Execute(kInsert);
  {
    const TableHeld held(Open());
    const std::string text = Failure(*session, "Delete from cards Where fID=5");
    EXPECT_NE(text.find("lock timeout"), std::string::npos) << text;
    EXPECT_NE(Failure(*session, "Update cards Set fType0=1 Where fID=5"), "");
  }
  EXPECT_EQ(session->Query(kCount).Text(0), "1");
}

TEST_F(OdbcSessions, AnswerNothingWhenTheServerDiesInTheMiddleOfAnAnswer) {
  auto session = store::OpenServer(LoginTo(database_), {});
  std::thread killer([] {
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    Server().Kill();
  });
  // Ten million rows take far longer than that.
  EXPECT_THROW(session->Native("select g, g::text from generate_series(1,10000000) g"), DataError);
  killer.join();
  Server().Start();
  EXPECT_EQ(session->Query(kCount).Text(0), "0");
}

TEST_F(OdbcSessions, SayThatARightIsMissing) {
  Server().Run(database_,
               "do $$begin create role reader login password 'r'; exception when "
               "duplicate_object then null; end$$");
  Server().Run(database_, "grant select on cards to reader");
  auto session = store::OpenServer({Server().Address(), "reader", "r", database_}, {});
  EXPECT_EQ(session->Query(kCount).Text(0), "0");
  const std::string text = Failure(*session, kInsert);
  EXPECT_NE(text.find("permission denied"), std::string::npos) << text;
}

TEST_F(OdbcSessions, OrderByStrokesForReadersOfTraditionalChinese) {
  int language = 0;
  store::ConnectionOptions options;
  options.language = [&language] { return language; };
  auto session = Open(options);
  int id = 0;
  for (const char* name : {"王", "一", "陳", "丁"}) {
    session->Execute("Insert Into tRsBasic (fID,fName) Values (" + std::to_string(++id) + ",'" +
                     name + "')");
  }
  const auto names = [&session] {
    std::string joined;
    auto set = session->Query("select fName from tRsBasic Order By fName");
    for (; !set.Eof(); set.MoveNext()) joined += set.Text(0);
    return joined;
  };
  EXPECT_EQ(names(), "陳丁王一");
  language = 1;
  EXPECT_EQ(names(), "一丁王陳");
}

TEST_F(OdbcSessions, OrderByTheEnginesOwnChineseWithoutTheSuitesOrders) {
  Server().Run(database_, "drop collation qv_pinyin");
  auto session = Open();
  int id = 0;
  for (const char* name : {"张三", "阿明", "李四"}) {
    session->Execute("Insert Into tRsBasic (fID,fName) Values (" + std::to_string(++id) + ",'" +
                     name + "')");
  }
  EXPECT_EQ(session->Query("select fName from tRsBasic Order By fName").Text(0), "阿明");
}

TEST_F(OdbcSessions, ReadNullsOfEveryKind) {
  auto session = Open();
  session->Execute("Insert Into tAccountDetail (fMoneyA) Values (null)");
  auto set = session->Query("select fDate,fCompID,fMoneyA,fBrief from tAccountDetail");
  for (int field = 0; field < set.FieldCount(); ++field) EXPECT_TRUE(set.IsNull(field)) << field;
}

TEST_F(OdbcSessions, FindTheLedgerOfOneRecordThroughTheIndex) {
  auto session = Open();
  const std::string plan =
      Plan(*session,
           "Select b.fDate,a.CompName From cards a Right Join tAccountDetail b On b.fCompID=a.fID "
           "Where b.fType1=0 And a.fID=5 Order By a.CompCode,a.CompName,b.fDate,b.fAcntNo");
  EXPECT_NE(plan.find("iledgerrecord"), std::string::npos) << plan;
  EXPECT_NE(plan.find("Index Cond: ((fcompid = 5) AND (ftype1 = 0))"), std::string::npos) << plan;
}

TEST_F(OdbcSessions, FindTheNextNumberFromTheEndOfItsStem) {
  auto session = Open();
  const std::string plan =
      Plan(*session,
           "select max(SUBSTRING(fAcntNo,9,5)) as invID from tAccountDetail where "
           "left(fAcntNo,8)='200303PZ' and IsNumeric(SUBSTRING(fAcntNo,9,5))=1");
  EXPECT_NE(plan.find("Index Scan Backward using iledgernumber"), std::string::npos) << plan;
  EXPECT_EQ(plan.find("Sort"), std::string::npos) << plan;
}

TEST(ServerConnections, OpenThroughTheConnectionComponent) {
  QV_NEEDS_SERVER();
  const std::string database = Server().MakeDatabase();
  store::SuiteConnections connections;
  data::Connection connection;
  EXPECT_TRUE(connections.OpenConnection(1, connection, Server().Address(),
                                         PrivatePostgres::kPassword, PrivatePostgres::kUser,
                                         database));
  EXPECT_EQ(connection.Open("select count(*) from tAccountDetail Where 1=2").Text(0), "0");
}

TEST(ServerConnections, AnswerFalseWithAReasonThatHoldsNoPassword) {
  QV_NEEDS_SERVER();
  store::SuiteConnections connections;
  data::Connection connection;
  EXPECT_FALSE(connections.OpenConnection(1, connection, Server().Address(), "pass word",
                                          PrivatePostgres::kUser, "postgres"));
  EXPECT_EQ(connection.State(), 0);
  EXPECT_NE(connections.LastError(), "");
  EXPECT_EQ(connections.LastError().find("pass word"), std::string::npos);
}

}  // namespace
}  // namespace qvzj::test
