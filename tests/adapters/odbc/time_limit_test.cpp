#include <gtest/gtest.h>
#include <signal.h>

#include <chrono>

#include "adapters/odbc/odbc_session.h"
#include "platform/basic/errors.h"
#include "tests/adapters/odbc/server.h"

namespace qvzj::test {
namespace {

using std::chrono::milliseconds;

constexpr const char* kInsert = "Insert Into cards (fID,compname) Values (5,'甲公司')";
constexpr const char* kCount = "select count(*) from cards";
/// Answers nothing for a minute.
constexpr const char* kSlowRead = "select * from tSlow";

/// A database in which a table cannot be written, and another not be read, within a minute.
class TimeLimits : public testing::Test {
 protected:
  void SetUp() override {
    QV_NEEDS_SERVER();
    database_ = Server().MakeDatabase();
    Server().RunAll(database_,
                    {"create view tSlow as select 1 as fID from pg_sleep(60)",
                     "create view tBrief as select 1 as fID from pg_sleep(2)",
                     "create view tLong as select generate_series(1,2000000000) as fID",
                     "create function wait() returns trigger language plpgsql as $$ begin perform "
                     "pg_sleep(60); return new; end $$",
                     "create trigger waits before update on cards for each row execute function "
                     "wait()",
                     "insert into cards (fID) values (1)"});
    options_.read_limit = milliseconds(1500);
    options_.write_limit = milliseconds(1500);
  }

  std::unique_ptr<data::Store> Open() { return store::OpenServer(LoginTo(database_), options_); }
  static std::string ProcessOf(data::Store& session) {
    return session.Native("select pg_backend_pid()").Text(0);
  }
  static std::string Failure(data::Session& session, const std::string& statement) {
    try {
      session.Query(statement);
    } catch (const DataError& error) {
      return error.what();
    }
    return "";
  }

  std::string database_;
  store::ConnectionOptions options_;
};

/// Stops a process of the server, as a machine that hangs does, and lets it go on in the end.
class Stopped {
 public:
  explicit Stopped(const std::string& process) : process_(std::stoi(process)) {
    kill(process_, SIGSTOP);
  }
  ~Stopped() { kill(process_, SIGCONT); }
  Stopped(const Stopped&) = delete;
  Stopped& operator=(const Stopped&) = delete;

 private:
  pid_t process_;
};

TEST_F(TimeLimits, EndAWriteAndSayThatNothingWasStored) {
  const auto session = Open();
  const std::string process = ProcessOf(*session);
  const std::string said = Failure(*session, "Update cards Set compname='x' Where fID=1");
  EXPECT_EQ(said.find("数据库服务器在 2 秒内没有完成存盘，这次修改已经撤销，没有保存。"), 0U)
      << said;
  EXPECT_EQ(session->Query("select count(*) from cards where compname='x'").Text(0), "0");
  session->Execute(kInsert);
  EXPECT_EQ(session->Query(kCount).Text(0), "2");
  EXPECT_EQ(ProcessOf(*session), process);
}

TEST_F(TimeLimits, EndAReadAndGoOnWithTheSameConnection) {
  const auto session = Open();
  const std::string process = ProcessOf(*session);
  const std::string said = Failure(*session, kSlowRead);
  EXPECT_EQ(said.find("数据库服务器在 2 秒内没有给出答复，这次查询已经停止。"), 0U) << said;
  EXPECT_EQ(session->Query(kCount).Text(0), "1");
  session->Execute(kInsert);
  EXPECT_EQ(ProcessOf(*session), process);
}

TEST_F(TimeLimits, EndAnAnswerThatComesWithoutEnd) {
  const auto session = Open();
  const std::string said = Failure(*session, "select fID from tLong");
  EXPECT_EQ(said.find("数据库服务器在 2 秒内没有给出答复，这次查询已经停止。"), 0U) << said;
  EXPECT_EQ(session->Query(kCount).Text(0), "1");
}

TEST_F(TimeLimits, SayThatNobodyKnowsWhetherAWriteWasStoredByAServerThatHangs) {
  const auto session = Open();
  session->Execute("Delete from cards Where fID=9");
  {
    const Stopped stopped(ProcessOf(*session));
    const std::string said = Failure(*session, kInsert);
    EXPECT_EQ(said.find("数据库服务器在 2 秒内没有答复，连接已经放弃，不知是否已存。"), 0U) << said;
    EXPECT_EQ(session->Query(kCount).Text(0), "1");
  }
  // It was on its way, and takes effect when the server goes on.
  const auto other = store::OpenServer(LoginTo(database_), {});
  while (other->Native(kCount).Text(0) != "2") {
  }
}

TEST_F(TimeLimits, GiveUpAReadOfAServerThatHangsAndConnectAnew) {
  const auto session = Open();
  const std::string process = ProcessOf(*session);
  const Stopped stopped(process);
  const std::string said = Failure(*session, kCount);
  EXPECT_EQ(said.find("数据库服务器在 2 秒内没有答复，连接已经放弃。请稍后再试。"), 0U) << said;
  EXPECT_EQ(session->Query(kCount).Text(0), "1");
  EXPECT_NE(ProcessOf(*session), process);
}

TEST_F(TimeLimits, HoldWhereTheServerTakesConnectionsAndSaysNothing) {
  options_.login_timeout = 2;
  const auto session = Open();
  const std::string process = ProcessOf(*session);
  const Stopped server(std::to_string(Server().Process()));
  const Stopped stopped(process);
  EXPECT_NE(Failure(*session, kCount), "");
  EXPECT_NE(Failure(*session, kCount), "");
}

TEST_F(TimeLimits, LetASessionEndWhileItsServerHangs) {
  auto session = Open();
  const Stopped stopped(ProcessOf(*session));
  session.reset();
}

TEST_F(TimeLimits, LeaveAStatementAloneThatKeepsThem) {
  options_.read_limit = options_.write_limit = milliseconds(60000);
  const auto session = Open();
  session->Execute(kInsert);
  EXPECT_EQ(session->Query(kCount).Text(0), "2");
}

TEST_F(TimeLimits, DoNotHoldForBulkWork) {
  const auto session = Open();
  EXPECT_EQ(session->Native("select 7 from pg_sleep(2)").Text(0), "7");
  data::Transaction transaction(*session);
  EXPECT_EQ(session->Query("select fID from tBrief").RecordCount(), 1);
}

TEST_F(TimeLimits, CanBeTakenAway) {
  options_.read_limit = milliseconds(0);
  EXPECT_EQ(Open()->Query("select fID from tBrief").RecordCount(), 1);
}

TEST_F(TimeLimits, AreSpokenOfInTheReadersLanguage) {
  options_.language = [] { return 1; };
  const auto session = Open();
  const std::string said = Failure(*session, "Update cards Set compname='x' Where fID=1");
  EXPECT_EQ(said.find("資料庫伺服器在 2 秒內沒有完成存檔，這次修改已經撤銷，沒有儲存。"), 0U)
      << said;
}

}  // namespace
}  // namespace qvzj::test
