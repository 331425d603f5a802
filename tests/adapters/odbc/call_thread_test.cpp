#include "adapters/odbc/call_thread.h"

#include <gtest/gtest.h>

#include <future>
#include <stdexcept>

namespace qvzj {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kLong{60000};
constexpr milliseconds kShort{1};

TEST(CallThread, RunsOneCallAfterTheOther) {
  CallThread calls;
  std::string done;
  for (const char* what : {"a", "b"}) {
    EXPECT_TRUE(calls.Run([&done, what] { done += what; }, kLong));
  }
  EXPECT_TRUE(calls.Run([&done] { done += "c"; }, milliseconds(0)));
  EXPECT_EQ(done, "abc");
}

TEST(CallThread, ThrowsWhatACallThrewAndGoesOnWorking) {
  CallThread calls;
  EXPECT_THROW(calls.Run([] { throw std::out_of_range(""); }, kLong), std::out_of_range);
  EXPECT_TRUE(calls.Run([] {}, kLong));
}

TEST(CallThread, GivesBackAfterTheLimitAndCanWaitOn) {
  CallThread calls;
  std::promise<void> go;
  EXPECT_FALSE(calls.Run([may_go = go.get_future().share()] { may_go.wait(); }, kShort));
  EXPECT_FALSE(calls.Wait(kShort));
  go.set_value();
  EXPECT_TRUE(calls.Wait(kLong));
}

TEST(CallThread, LetsACallThatWasGivenUpEndByItselfWithAllThatItHeld) {
  std::promise<void> go;
  const auto held = std::make_shared<int>(7);
  {
    CallThread calls;
    calls.Run([held, may_go = go.get_future().share()] { may_go.wait(); }, kShort);
  }
  EXPECT_EQ(held.use_count(), 2);
  go.set_value();
  while (held.use_count() > 1) std::this_thread::yield();
}

}  // namespace
}  // namespace qvzj
