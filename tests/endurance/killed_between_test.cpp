#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "suite/check/check_data.h"
#include "suite/store/connections.h"
#include "tests/endurance/script_process.h"
#include "tests/support/postgres.h"

// A process that dies between the two statements of one action, on a server. The design runs them
// without a transaction, so the first one stands; the check of the data must say so precisely.
namespace qvzj::endurance {
namespace {

class KilledBetweenTwoStatements : public testing::Test {
 protected:
  void SetUp() override {
    const std::string missing = test::PrivatePostgres::Missing();
    if (!missing.empty()) GTEST_SKIP() << missing;
    server_ = std::make_unique<test::PrivatePostgres>();
    database_ = server_->MakeDatabase();
    server_->RunFile(database_, QV_SCENARIO_FIXTURE);
    // Inserting or deleting an entry waits for whoever holds the table tRsBasic.
    server_->RunAll(database_,
                    {"create function wait_for_it() returns trigger language plpgsql as $$ begin "
                     "lock table tRsBasic in exclusive mode; return coalesce(new,old); end $$",
                     "create trigger waits before insert or delete on tAccountDetail "
                     "for each row execute function wait_for_it()"});
    store_ = Open();
  }

  std::unique_ptr<data::Store> Open() {
    return store::OpenServer({server_->Address(), test::PrivatePostgres::kUser,
                              test::PrivatePostgres::kPassword, database_},
                             {});
  }

  /// Presses save on the third entry of the first customer with "check" armed, `times` times, and
  /// kills the process while the second statement of the last time waits.
  void ApproveAndDie(int times) {
    ScriptProcess process({"--server", server_->Address(), "--user", test::PrivatePostgres::kUser,
                           "--password", test::PrivatePostgres::kPassword, "--database",
                           database_});
    process.Send("refresh 0 0");
    process.Send("cell Grid2 1 3");
    process.Send("click cmdAction(4)");
    for (int i = 1; i < times; ++i) {
      ASSERT_EQ(process.Ask("click cmdAcntSave"), "");
    }
    const auto holder = Open();
    holder->Native("begin");
    holder->Native("lock table tRsBasic in exclusive mode");
    process.Send("answer ok ok");
    process.Send("click cmdAcntSave");
    ASSERT_TRUE(SomebodyWaits());
    process.Kill();
    // The statement that waits goes with the process's machine.
    holder->Native(
        "select pg_terminate_backend(pid) from pg_stat_activity where wait_event_type='Lock'");
    holder->Native("rollback");
  }

  bool SomebodyWaits() {
    for (int i = 0; i < 90; ++i) {
      const auto waiting = store_->Native(
          "select count(*) from pg_stat_activity where wait_event_type='Lock' and "
          "datname=current_database()");
      if (waiting.Text(0) != "0") return true;
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    return false;
  }

  /// What qvdb's check says of the third entry.
  std::string FaultsOfTheEntry() {
    std::string all;
    check::CheckData(*store_, [&all](const check::Fault& fault) {
      const std::string line = std::string(check::NameOf(fault.kind)) + ": " + fault.text + "\n";
      if (line.find("202402PZ00001") != std::string::npos) all += line;
    });
    return all;
  }
  std::string One(const std::string& sql) { return store_->Native(sql).Text(0); }

  std::unique_ptr<test::PrivatePostgres> server_;
  std::string database_;
  std::unique_ptr<data::Store> store_;
};

TEST_F(KilledBetweenTwoStatements, AnApprovalStandsWithoutItsCounterEntryAndTheCheckSaysSo) {
  EXPECT_EQ(FaultsOfTheEntry(), "");
  ApproveAndDie(1);
  EXPECT_EQ(One("select fChecker from tAccountDetail where fID=3"), "admin");
  EXPECT_EQ(FaultsOfTheEntry(),
            "counter-entry: entry 3 (202402PZ00001): it is checked and linked to the money account "
            "2, and has no counter-entry there\n");
}

TEST_F(KilledBetweenTwoStatements, ARetractionLeavesTheCounterEntryAndTheCheckSaysSo) {
  ApproveAndDie(2);
  EXPECT_EQ(One("select fChecker from tAccountDetail where fID=3"), "");
  const std::string counter = One("select fID from tAccountDetail where fType1=1 and fID2=3");
  EXPECT_EQ(FaultsOfTheEntry(), "counter-entry: entry " + counter +
                                    " (202402PZ00001) and its customer entry 3 differ: the "
                                    "customer entry is not checked\n");
}

}  // namespace
}  // namespace qvzj::endurance
