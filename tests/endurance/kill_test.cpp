#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <thread>

#include "tests/endurance/data_folder.h"

namespace qvzj::endurance {
namespace {

constexpr int kRounds = 20;
constexpr int kEntriesARound = 400;

/// Reads what the killed process had printed: how many of its reports were seen.
int Reports(ScriptProcess& process) {
  int reports = 0;
  while (const auto line = process.Read()) reports += IsReport(*line);
  return reports;
}

/// Feeds entries until the process is gone; a thread of its own, so that the kill comes whenever
/// it comes.
void FeedEntries(ScriptProcess& process, const std::string& prefix) {
  for (int i = 0; i < kEntriesARound; ++i) {
    SendEntry(process, prefix + std::to_string(i));
    process.Send("messages");
  }
}

TEST(KilledWhileSaving, EveryReportedEntryIsThereAndTheFileIsSound) {
  DataFolder data;
  std::mt19937 dice(7);
  int all_reports = 0;
  for (int round = 0; round < kRounds; ++round) {
    const std::string prefix = "R" + std::to_string(round) + "-";
    ScriptProcess process(data.Arguments());
    ArmNewEntry(process, 1);
    ASSERT_NE(process.Ask("focus"), "");
    std::thread feeder([&] { FeedEntries(process, prefix); });
    std::this_thread::sleep_for(std::chrono::milliseconds(dice() % 120));
    process.Kill();
    feeder.join();
    const int reports = Reports(process);
    all_reports += reports;

    ASSERT_EQ(data.session->CheckIntegrity(), "");
    for (int i = 0; i < reports; ++i) {
      const std::string brief = prefix + std::to_string(i);
      ASSERT_EQ(data.One("select count(*) from tAccountDetail where fBrief='" + brief + "'"), "1")
          << brief << " of " << reports;
    }
    // At most the one that was being saved is there beyond those.
    const std::string kept =
        data.One("select count(*) from tAccountDetail where fBrief like '" + prefix + "%'");
    EXPECT_LE(std::stoi(kept), reports + 2) << "round " << round;
  }
  EXPECT_GT(all_reports, kRounds) << "the kills came too early to prove anything";

  ScriptProcess after(data.Arguments());
  after.Send("refresh 0 0");
  EXPECT_EQ(after.Ask("messages"), "");
  EXPECT_EQ(after.Finish(), 0);
}

TEST(KilledWhileApproving, TheFileIsSoundAndNoCounterEntryIsThereTwice) {
  DataFolder data;
  std::mt19937 dice(11);
  for (int round = 0; round < kRounds; ++round) {
    ScriptProcess process(data.Arguments());
    process.Send("refresh 0 0");
    process.Send("cell Grid2 1 3");
    process.Send("click cmdAction(4)");
    ASSERT_NE(process.Ask("focus"), "");
    std::thread feeder([&] {
      for (int i = 0; i < kEntriesARound; ++i) {
        process.Send("answer ok ok");
        process.Send("click cmdAcntSave");
      }
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(dice() % 60));
    process.Kill();
    feeder.join();

    ASSERT_EQ(data.session->CheckIntegrity(), "");
    const std::string counter_entries =
        data.One("select count(*) from tAccountDetail where fType1=1 and fID2=3");
    ASSERT_LE(std::stoi(counter_entries), 1);
    // Unchecking writes the mark first and deletes next, so between the two a counter-entry may
    // outlive its check; the next uncheck removes it.
    if (data.One("select fChecker from tAccountDetail where fID=3").empty()) {
      data.session->Native("delete from tAccountDetail where fType1=1 and fID2=3");
    }
  }
}

}  // namespace
}  // namespace qvzj::endurance
