#include "services/connect.h"

#include <gtest/gtest.h>

#include "tests/services/fake_data.h"

namespace qvzj {
namespace {

using test::FakeWorld;

TEST(OpenData, AnswersTrueOnlyToTheCallThatOpened) {
  FakeWorld world;
  EXPECT_TRUE(OpenData());
  EXPECT_FALSE(OpenData());
  EXPECT_EQ(Data().State(), 1);
  EXPECT_EQ(world.connections.requests.size(), 1u);
}

TEST(OpenData, HandsTheSharedValuesToTheConnectionComponent) {
  FakeWorld world;
  Shared().SQLData = 1;
  Shared().UserPath = "host:5432";
  Shared().Password = "secret";
  Shared().UserID = "clerk";
  Shared().Default = "books";
  OpenData();
  ASSERT_EQ(world.connections.requests.size(), 1u);
  const test::OpenRequest& request = world.connections.requests[0];
  EXPECT_EQ(request.kind, 1);
  EXPECT_EQ(request.path, "host:5432");
  EXPECT_EQ(request.password, "secret");
  EXPECT_EQ(request.user_id, "clerk");
  EXPECT_EQ(request.default_database, "books");
}

TEST(OpenData, OverflowsOnADatabaseKindBeyondAByteBeforeAskingTheComponent) {
  FakeWorld world;
  Shared().SQLData = 300;
  EXPECT_THROW(OpenData(), OverflowError);
  Shared().SQLData = -1;
  EXPECT_THROW(OpenData(), OverflowError);
  EXPECT_TRUE(world.connections.requests.empty());
}

TEST(OpenData, AnswersFalseWhenTheComponentRefuses) {
  FakeWorld world;
  world.connections.answer = false;
  world.connections.attach = false;
  EXPECT_FALSE(OpenData());
  EXPECT_EQ(Data().State(), 0);
  EXPECT_TRUE(world.Messages().empty());
}

TEST(OpenData, AnswersFalseWhenTheComponentClaimsSuccessButLeftItClosed) {
  FakeWorld world;
  world.connections.attach = false;
  EXPECT_FALSE(OpenData());
}

TEST(OpenData, TakesAChangedPathOnlyAfterAClose) {
  FakeWorld world;
  Shared().UserPath = "first";
  OpenData();
  Shared().UserPath = "second";
  OpenData();
  EXPECT_EQ(world.connections.requests.back().path, "first");
  CloseData();
  EXPECT_TRUE(OpenData());
  EXPECT_EQ(world.connections.requests.back().path, "second");
}

TEST(CloseData, ReleasesTheConnectionObject) {
  FakeWorld world;
  OpenData();
  CloseData();
  EXPECT_EQ(Shared().cnData, nullptr);
  EXPECT_EQ(Data().State(), 0);
}

TEST(Data, RefusesStatementsWhileItIsClosed) {
  FakeWorld world;
  EXPECT_THROW(Data().Open("select 1"), DataError);
}

TEST(StripSlash, TakesOneTrailingBackslashAway) {
  EXPECT_EQ(StripSlash("C:\\data\\"), "C:\\data");
  EXPECT_EQ(StripSlash("C:\\data\\\\"), "C:\\data\\");
  EXPECT_EQ(StripSlash("C:\\data"), "C:\\data");
  EXPECT_EQ(StripSlash("\\"), "");
  EXPECT_EQ(StripSlash(""), "");
}

}  // namespace
}  // namespace qvzj
