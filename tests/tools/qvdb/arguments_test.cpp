#include "tools/qvdb/arguments.h"

#include <gtest/gtest.h>

namespace qvzj::qvdb {
namespace {

TEST(Arguments, TakeValuesAfterABlankOrAnEqualsSign) {
  const Arguments arguments({"--data", "d", "--seed=7", "word"}, {"--data", "--seed"});
  EXPECT_EQ(arguments.Text("--data"), "d");
  EXPECT_EQ(arguments.Number("--seed", 1), 7);
  EXPECT_EQ(arguments.Words(), std::vector<std::string>{"word"});
}

TEST(Arguments, TakePresetsForWhatIsNotGiven) {
  const Arguments arguments({}, {"--data", "--seed"}, {"--once"});
  EXPECT_EQ(arguments.Text("--data", "here"), "here");
  EXPECT_EQ(arguments.Number("--seed", 3), 3);
  EXPECT_FALSE(arguments.Has("--once"));
}

TEST(Arguments, PartPairsAtTheFirstEqualsSign) {
  const Arguments arguments({"--map", "a=b=c", "--map=d="}, {"--map"});
  using Pair = std::pair<std::string, std::string>;
  EXPECT_EQ(arguments.Pairs("--map"), (std::vector<Pair>{{"a", "b=c"}, {"d", ""}}));
}

TEST(Arguments, TakeEverythingAfterTwoDashesForWords) {
  const Arguments arguments({"--", "--data", "x"}, {"--data"});
  EXPECT_EQ(arguments.Words(), (std::vector<std::string>{"--data", "x"}));
}

TEST(Arguments, RefuseWhatTheyDoNotKnow) {
  EXPECT_THROW(Arguments({"--dta", "d"}, {"--data"}), UsageError);
  EXPECT_THROW(Arguments({"--once=1"}, {"--data"}, {"--once"}), UsageError);
}

TEST(Arguments, RefuseAMissingOrMalformedValue) {
  EXPECT_THROW(Arguments({"--data"}, {"--data"}), UsageError);
  EXPECT_THROW(Arguments({"--seed", "x"}, {"--seed"}).Number("--seed", 1), UsageError);
  EXPECT_THROW(Arguments({"--map", "x"}, {"--map"}).Pairs("--map"), UsageError);
}

}  // namespace
}  // namespace qvzj::qvdb
