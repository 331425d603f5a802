#include "tests/support/postgres.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <functional>
#include <thread>

namespace qvzj::test {
namespace {

namespace fs = std::filesystem;

/// True as soon as it holds, within a minute.
bool Soon(const std::function<bool()>& holds) {
  for (int i = 0; i < 600; ++i) {
    if (holds()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
  }
  return false;
}

/// What a test that has a server tells of it.
struct Told {
  pid_t server = 0;
  char folder[256] = {};
};

/// A process with a server of its own, which waits to be ended.
pid_t ProcessWithServer(int tell) {
  const pid_t child = fork();
  if (child != 0) return child;
  const PrivatePostgres server;
  Told told;
  told.server = server.Process();
  server.Folder().string().copy(told.folder, sizeof told.folder - 1);
  if (write(tell, &told, sizeof told) != sizeof told) _exit(1);
  while (true) pause();
}

class PrivatePostgresEnds : public testing::TestWithParam<int> {};

TEST_P(PrivatePostgresEnds, WithTheTestHoweverThatIsEnded) {
  if (const std::string missing = PrivatePostgres::Missing(); !missing.empty()) {
    GTEST_SKIP() << missing;
  }
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  const pid_t child = ProcessWithServer(ends[1]);
  Told told;
  const ssize_t size = read(ends[0], &told, sizeof told);
  EXPECT_EQ(size, static_cast<ssize_t>(sizeof told));
  EXPECT_TRUE(Lives(told.server));
  EXPECT_TRUE(fs::exists(told.folder));
  kill(child, GetParam());
  waitpid(child, nullptr, 0);
  close(ends[0]);
  close(ends[1]);
  EXPECT_TRUE(Soon([&] { return !Lives(told.server); })) << "the server lives on";
  EXPECT_TRUE(Soon([&] { return !fs::exists(told.folder); })) << told.folder << " is left behind";
}

INSTANTIATE_TEST_SUITE_P(Signals, PrivatePostgresEnds, testing::Values(SIGKILL, SIGTERM),
                         [](const auto& test) { return test.param == SIGKILL ? "Kill" : "Term"; });

}  // namespace
}  // namespace qvzj::test
