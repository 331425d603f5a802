#include "services/query.h"

#include <gtest/gtest.h>

#include "services/connect.h"
#include "tests/services/fake_data.h"

namespace qvzj {
namespace {

using test::FakeWorld;

struct OpenWorld : FakeWorld {
  OpenWorld() { OpenData(); }
  std::string Statement() const {
    return engine.statements.empty() ? "" : engine.statements.back();
  }
};

TEST(CountRows, LeavesTheConditionOutWhenThereIsNone) {
  OpenWorld world;
  world.engine.AnswerValue("12");
  EXPECT_EQ(CountRows("tAccountDetail", ""), 12);
  EXPECT_EQ(world.Statement(), "select count(*) from tAccountDetail");
}

TEST(CountRows, AppendsTheCondition) {
  OpenWorld world;
  world.engine.AnswerValue("0");
  EXPECT_EQ(CountRows("tAccountDetail", "1=2"), 0);
  EXPECT_EQ(world.Statement(), "select count(*) from tAccountDetail Where 1=2");
}

TEST(CountRows, AnswersMinusOneSilentlyForAMissingTable) {
  OpenWorld world;
  world.engine.Fail();
  EXPECT_EQ(CountRows("nowhere", ""), -1);
  EXPECT_TRUE(world.Messages().empty());
}

TEST(CountRows, AnswersMinusOneOnAClosedConnection) {
  FakeWorld world;
  EXPECT_EQ(CountRows("tAccountDetail", ""), -1);
}

TEST(CountRows, CountsUpToTheLargest16BitNumber) {
  OpenWorld world;
  world.engine.AnswerValue("32767");
  EXPECT_EQ(CountRows("t", ""), 32767);
  world.engine.AnswerValue("32768");
  EXPECT_EQ(CountRows("t", ""), -1);
}

TEST(MaxOf, AnswersTheLargestValue) {
  OpenWorld world;
  world.engine.AnswerValue("70000");
  EXPECT_EQ(MaxOf("fID", "cards Where fID>3"), 70000);
  EXPECT_EQ(world.Statement(), "select max(fID) from cards Where fID>3");
}

TEST(MaxOf, AnswersZeroForAnEmptyTable) {
  OpenWorld world;
  world.engine.AnswerValue(std::nullopt);
  EXPECT_EQ(MaxOf("fID", "cards"), 0);
}

TEST(MaxOf, LetsTheEnginesErrorRise) {
  OpenWorld world;
  world.engine.Fail();
  EXPECT_THROW(MaxOf("fID", "nowhere"), DataError);
}

TEST(MaxOf, OverflowsLoudlyBeyond32Bits) {
  OpenWorld world;
  world.engine.AnswerValue("2147483648");
  EXPECT_THROW(MaxOf("fID", "cards"), OverflowError);
}

TEST(FirstValue, AnswersTheFirstFieldOfTheFirstRow) {
  OpenWorld world;
  world.engine.answer = [](const std::string&) {
    return test::FakeAnswer{{"a", "b"}, {{"x", "y"}, {"z", "w"}}};
  };
  EXPECT_EQ(FirstValue("select a,b from t"), "x");
}

TEST(FirstValue, AnswersEmptyForNullAndForNoRow) {
  OpenWorld world;
  world.engine.AnswerValue(std::nullopt);
  EXPECT_EQ(FirstValue("select a from t"), "");
  world.engine.answer = nullptr;
  EXPECT_EQ(FirstValue("select a from t"), "");
}

TEST(LikePattern, MatchesAPlainWordAnywhere) { EXPECT_EQ(LikePattern("  abc "), "%abc%"); }

TEST(LikePattern, TranslatesTheWildcardsAtBothEndsOnly) {
  EXPECT_EQ(LikePattern("ab*"), "ab%");
  EXPECT_EQ(LikePattern("*ab"), "%ab");
  EXPECT_EQ(LikePattern("#12"), "_12");
  EXPECT_EQ(LikePattern("12#"), "12_");
  EXPECT_EQ(LikePattern("*ab#"), "%ab_");
  EXPECT_EQ(LikePattern("a*b"), "%a*b%");
  EXPECT_EQ(LikePattern("*"), "%");
  EXPECT_EQ(LikePattern("#"), "_");
}

TEST(LikePattern, TakesTheUsersOwnPercentAndUnderlineAsWildcards) {
  EXPECT_EQ(LikePattern("a%b"), "a%b");
  EXPECT_EQ(LikePattern("a_b"), "a_b");
}

TEST(LikePattern, StaysEmptyForAnEmptyText) {
  EXPECT_EQ(LikePattern(""), "");
  EXPECT_EQ(LikePattern("   "), "");
}

TEST(LikePattern, KeepsChineseTextWhole) { EXPECT_EQ(LikePattern("公司*"), "公司%"); }

TEST(NoQuote, RefusesOnlyTheSingleQuote) {
  FakeWorld world;
  EXPECT_TRUE(NoQuote("他说\"好\""));
  EXPECT_TRUE(world.Messages().empty());
  EXPECT_FALSE(NoQuote("O'Neil"));
  const auto shown = world.headless.boxes.TakeShown();
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(shown[0].text, "文本错误: 文本中不可含有<引号>或<单引号> !");
  EXPECT_EQ(shown[0].style, box::kExclamation);
}

}  // namespace
}  // namespace qvzj
