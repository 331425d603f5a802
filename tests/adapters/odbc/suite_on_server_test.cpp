#include <gtest/gtest.h>

#include "platform/surroundings.h"
#include "suite/store/connections.h"
#include "suite/visits/visits.h"
#include "tests/adapters/odbc/server.h"

namespace qvzj {
namespace {

using basic::Date;

bool Open(store::SuiteConnections& connections, const std::string& path,
          const store::ServerLogin& login) {
  data::Connection connection;
  return connections.OpenConnection(1, connection, path, login.password, login.user,
                                    login.database);
}

TEST(SuiteConnectionsOnAServer, FindTheServerAgainUnderTheTextThatALoginLeaves) {
  QV_NEEDS_SERVER();
  const store::ServerLogin login = test::LoginTo(test::Server().MakeDatabase());
  store::SuiteConnections connections;
  EXPECT_FALSE(Open(connections, "SQL Server", login)) << "no server is known yet";
  EXPECT_TRUE(Open(connections, login.address, login));
  EXPECT_TRUE(Open(connections, "SQL Server", login)) << connections.LastError();
}

TEST(VisitRecordsOnAServer, AreListedAddedChangedAndRemoved) {
  QV_NEEDS_SERVER();
  const store::ServerLogin login = test::LoginTo(test::Server().MakeDatabase());
  store::SuiteConnections connections;
  Around().connections = &connections;
  TaskCall call;
  call.access = {login.address, login.password, 1, login.user, login.database};
  call.user_name = "wang";
  call.customer_id = 7;
  visits::VisitRecords records(call);
  const int32_t first = records.Add(Date::FromYmd(2024, 3, 1), "电话'回访'");
  const int32_t second = records.Add(Date::FromYmd(2024, 2, 1), "送样品");
  records.Change(second, Date::FromYmd(2024, 4, 1), "送样品两件");

  std::vector<visits::Visit> visits = records.List();
  ASSERT_EQ(visits.size(), 2u);
  EXPECT_EQ(visits[0].text, "送样品两件");
  EXPECT_EQ(visits[0].date, Date::FromYmd(2024, 4, 1));
  EXPECT_EQ(visits[1].id, first);
  EXPECT_EQ(visits[1].text, "电话'回访'");

  records.Remove(first);
  EXPECT_EQ(records.List().size(), 1u);
  Around() = {};
}

}  // namespace
}  // namespace qvzj
