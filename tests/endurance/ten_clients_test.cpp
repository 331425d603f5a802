#include <gtest/gtest.h>

#include <functional>
#include <thread>

#include "suite/store/connections.h"
#include "tests/endurance/data_folder.h"
#ifdef QV_WITH_SERVER
#include "tests/support/postgres.h"
#endif

namespace qvzj::endurance {
namespace {

constexpr int kClients = 10;
constexpr int kEntriesEach = 16;

/// What becomes of a client's entry, by its number in turn.
enum class Fate { Keyed, Approved, Unapproved, Deleted };

Fate FateOf(int entry) { return static_cast<Fate>(entry % 4); }

std::string Brief(int client, int entry) {
  return "C" + std::to_string(client) + "-" + std::to_string(entry) + ".";
}

/// Arms action `action` on the one entry with that summary and presses save; what was printed.
std::string ActOn(ScriptProcess& process, const std::string& brief, int action) {
  process.Send("type txtBrief \"" + brief + "\"");
  process.Send("click cmdAcntRefresh");
  process.Send("click cmdAction(" + std::to_string(action) + ")");
  process.Send("answer ok ok");
  return process.Ask("click cmdAcntSave");
}

/// One clerk: keys entries that are linked to an account, approves most, takes some back, deletes
/// some of those. Answers all that was printed besides.
std::string WorkADay(const std::vector<std::string>& arguments, int client) {
  ScriptProcess process(arguments);
  process.Send("refresh 0 0");
  process.Send("click chkBrief");
  std::string printed;
  for (int entry = 0; entry < kEntriesEach; ++entry) {
    const std::string brief = Brief(client, entry);
    process.Send("click cmdAction(1)");
    process.Send("focus txtAcnt2(4)");
    process.Send("type txtAcnt2(4) 10");
    process.Send("choose cboAcntName " + std::to_string(client % 2));
    process.Send("type txtAcnt2(6) \"" + brief + "\"");
    printed += process.Ask("click cmdAcntSave");
    if (FateOf(entry) == Fate::Keyed) continue;
    printed += ActOn(process, brief, 4);
    if (FateOf(entry) == Fate::Approved) continue;
    printed += ActOn(process, brief, 4);
    if (FateOf(entry) == Fate::Deleted) printed += ActOn(process, brief, 3);
  }
  EXPECT_EQ(process.Finish(), 0);
  return printed;
}

/// All clerks work at once, then the tables are looked at.
void WorkAtOnce(const std::vector<std::string>& arguments, const store::NativeStatements& native) {
  std::vector<std::thread> clerks;
  std::vector<std::string> printed(kClients);
  for (int client = 0; client < kClients; ++client) {
    clerks.emplace_back(
        [&, client] { printed[static_cast<size_t>(client)] = WorkADay(arguments, client); });
  }
  for (std::thread& clerk : clerks) clerk.join();
  for (const std::string& said : printed) EXPECT_EQ(said, "");

  const auto one = [&native](const std::string& query) { return native(query).Text(0); };
  for (int client = 0; client < kClients; ++client) {
    for (int entry = 0; entry < kEntriesEach; ++entry) {
      const std::string brief = Brief(client, entry);
      const std::string where = " from tAccountDetail where fType1=0 and fBrief='" + brief + "'";
      const Fate fate = FateOf(entry);
      ASSERT_EQ(one("select count(*)" + where), fate == Fate::Deleted ? "0" : "1") << brief;
      if (fate == Fate::Deleted) continue;
      EXPECT_EQ(one("select fChecker" + where), fate == Fate::Approved ? "admin" : "") << brief;
      const std::string id = one("select fID" + where);
      EXPECT_EQ(one("select count(*) from tAccountDetail where fType1=1 and fID2=" + id),
                fate == Fate::Approved ? "1" : "0")
          << brief;
    }
  }
  // Nothing is left of what was unapproved or deleted: the rows of the start, the kept entries and
  // a counter-entry for each approved one.
  constexpr int kOfEachFate = kClients * kEntriesEach / 4;
  EXPECT_EQ(one("select count(*) from tAccountDetail"), std::to_string(13 + 4 * kOfEachFate));
}

TEST(TenClients, OnOneDataFileLoseNothing) {
  DataFolder data;
  WorkAtOnce(data.Arguments(), store::OpenNative(0, {data.folder.Path().string(), "", "", ""}, {}));
  EXPECT_EQ(data.session->CheckIntegrity(), "");
}

#ifdef QV_WITH_SERVER
TEST(TenClients, OnOneServerLoseNothing) {
  const std::string missing = test::PrivatePostgres::Missing();
  if (!missing.empty()) GTEST_SKIP() << missing;
  test::PrivatePostgres server;
  const std::string database = server.MakeDatabase();
  server.RunFile(database, QV_SCENARIO_FIXTURE);
  const store::ServerLogin login{server.Address(), test::PrivatePostgres::kUser,
                                 test::PrivatePostgres::kPassword, database};
  WorkAtOnce({"--server", login.address, "--user", login.user, "--password", login.password,
              "--database", database},
             store::OpenNative(1, login, {}));
}
#endif

}  // namespace
}  // namespace qvzj::endurance
