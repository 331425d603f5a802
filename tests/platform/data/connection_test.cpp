#include "platform/data/connection.h"

#include <gtest/gtest.h>

#include "platform/basic/errors.h"

namespace qvzj::data {
namespace {

struct Recorder : Session {
  explicit Recorder(std::string& log) : log(log) {}
  void Execute(std::string_view statement) override { log += "exec " + std::string(statement); }
  Recordset Query(std::string_view statement) override {
    log += "open " + std::string(statement);
    return Recordset({}, {});
  }
  std::string& log;
};

TEST(Connection, RefusesStatementsWhileClosed) {
  Connection connection;
  EXPECT_EQ(connection.State(), 0);
  EXPECT_THROW(connection.Execute("delete from cards"), DataError);
  EXPECT_THROW(connection.Open("select 1"), DataError);
}

TEST(Connection, HandsStatementsToItsSessionToTheLetter) {
  std::string log;
  Connection connection;
  connection.Attach(std::make_unique<Recorder>(log));
  EXPECT_EQ(connection.State(), 1);
  connection.Execute("Delete from cards ");
  connection.Open("select 1");
  EXPECT_EQ(log, "exec Delete from cards open select 1");
  connection.Close();
  EXPECT_EQ(connection.State(), 0);
}

TEST(Connection, TellsItsWatcherOfEveryStatementBeforeItRuns) {
  std::vector<std::pair<StatementKind, std::string>> seen;
  Connection connection([&](StatementKind kind, std::string_view text) {
    seen.emplace_back(kind, std::string(text));
  });
  EXPECT_THROW(connection.Open("select 1"), DataError);
  ASSERT_EQ(seen.size(), 1u);
  EXPECT_EQ(seen[0].first, StatementKind::Open);
  EXPECT_EQ(seen[0].second, "select 1");
}

}  // namespace
}  // namespace qvzj::data
