#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "tests/endurance/data_folder.h"

namespace qvzj::endurance {
namespace {

constexpr int kEntries = 60;

/// Keys entries one after another; answers how many were reported.
int KeyEntries(ScriptProcess& process, const std::string& prefix) {
  int reports = 0;
  for (int i = 0; i < kEntries; ++i) {
    SendEntry(process, prefix + std::to_string(i));
    reports += IsReport(process.Ask("messages"));
  }
  return reports;
}

TEST(TwoProcesses, KeyingAtOnceLoseNoEntry) {
  DataFolder data;
  ScriptProcess one(data.Arguments());
  ScriptProcess two(data.Arguments());
  ArmNewEntry(one, 1);
  ArmNewEntry(two, 2);
  int reports_one = 0;
  int reports_two = 0;
  std::thread other([&] { reports_two = KeyEntries(two, "B"); });
  reports_one = KeyEntries(one, "A");
  other.join();
  EXPECT_EQ(reports_one, kEntries);
  EXPECT_EQ(reports_two, kEntries);
  EXPECT_EQ(one.Finish(), 0);
  EXPECT_EQ(two.Finish(), 0);
  for (const char* prefix : {"A", "B"}) {
    EXPECT_EQ(data.One("select count(distinct fBrief) from tAccountDetail where fBrief like '" +
                       std::string(prefix) + "%'"),
              std::to_string(kEntries));
  }
  EXPECT_EQ(data.One("select count(*) from tAccountDetail where fID>13"),
            std::to_string(2 * kEntries));
  EXPECT_EQ(data.session->CheckIntegrity(), "");
}

TEST(TwoProcesses, TheOneThatMustWaitWaitsAndThenSucceeds) {
  DataFolder data;
  ScriptProcess process(data.Arguments());
  ArmNewEntry(process, 1);
  ASSERT_NE(process.Ask("focus"), "");
  data.session->Native("begin immediate");
  SendEntry(process, "waits");
  process.Send("messages");
  std::this_thread::sleep_for(std::chrono::milliseconds(700));
  EXPECT_EQ(data.One("select count(*) from tAccountDetail where fBrief='waits'"), "0");
  data.session->Native("commit");
  const auto report = process.Read();
  ASSERT_TRUE(report);
  EXPECT_TRUE(IsReport(*report)) << *report;
  EXPECT_EQ(data.One("select count(*) from tAccountDetail where fBrief='waits'"), "1");
}

TEST(TwoProcesses, EachSeesTheOthersEntryAfterARefresh) {
  DataFolder data;
  ScriptProcess one(data.Arguments());
  ScriptProcess two(data.Arguments());
  two.Send("refresh 0 0");
  EXPECT_EQ(two.Ask("show Grid2.rows"), "Grid2.rows=3\n");
  ArmNewEntry(one, 1);
  SendEntry(one, "new");
  ASSERT_TRUE(IsReport(one.Ask("messages")));
  two.Send("click cmdAcntRefresh");
  EXPECT_EQ(two.Ask("show Grid2.rows"), "Grid2.rows=4\n");
}

}  // namespace
}  // namespace qvzj::endurance
