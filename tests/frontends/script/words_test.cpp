#include "frontends/script/words.h"

#include <gtest/gtest.h>

#include "frontends/script/script_error.h"

namespace qvzj::script {
namespace {

std::vector<std::string> Texts(std::string_view line) {
  std::vector<std::string> texts;
  for (const Word& word : SplitWords(line)) texts.push_back(word.text);
  return texts;
}

TEST(SplitWords, SeparatesWordsAtBlanksAndTabs) {
  EXPECT_EQ(Texts(" click\tcmdAction(1)  x "),
            (std::vector<std::string>{"click", "cmdAction(1)", "x"}));
}

TEST(SplitWords, ReadsAWordInQuotesAsAJsonText) {
  EXPECT_EQ(Texts(R"(type txtBrief "a \"b\"\t\u4e2d中")"),
            (std::vector<std::string>{"type", "txtBrief", "a \"b\"\t中中"}));
}

TEST(SplitWords, TellsAQuotedNumberFromAPlainOne) {
  const auto words = SplitWords(R"(1 "1")");
  EXPECT_FALSE(words[0].quoted);
  EXPECT_TRUE(words[1].quoted);
}

TEST(SplitWords, KeepsAnEmptyText) {
  EXPECT_EQ(Texts(R"(x "")"), (std::vector<std::string>{"x", ""}));
}

TEST(SplitWords, RefusesATextWithoutItsClosingQuote) {
  EXPECT_THROW(SplitWords(R"(type x "abc)"), ScriptError);
}

TEST(SplitWords, RefusesAWordGluedToAText) { EXPECT_THROW(SplitWords(R"("a"b)"), ScriptError); }

TEST(SplitWords, RefusesAnEscapeThatJsonDoesNotKnow) {
  EXPECT_THROW(SplitWords(R"("\x")"), ScriptError);
}

TEST(RestText, DecodesASingleJsonText) { EXPECT_EQ(RestText(R"("a b" )"), "a b"); }

TEST(RestText, KeepsEverythingElseAsItIsWritten) {
  EXPECT_EQ(RestText(R"(select "a" from b )"), R"(select "a" from b)");
  EXPECT_EQ(RestText(R"("a" = "b")"), R"("a" = "b")");
}

TEST(SplitExpectation, CutsAtTheFirstArrowOutsideTexts) {
  const auto expectation = SplitExpectation(R"(sql "a => b" => sql: x => y)");
  ASSERT_TRUE(expectation);
  EXPECT_EQ(expectation->command, R"(sql "a => b")");
  EXPECT_EQ(expectation->text, "sql: x => y");
}

TEST(SplitExpectation, ExpectsNothingBehindABareArrow) {
  const auto expectation = SplitExpectation("messages =>");
  ASSERT_TRUE(expectation);
  EXPECT_EQ(expectation->text, "");
}

TEST(SplitExpectation, NeedsAnArrow) { EXPECT_FALSE(SplitExpectation("show Grid2.rows = 1")); }

TEST(ToNumber, ReadsWholeNumbersOnly) {
  EXPECT_EQ(ToNumber({"-12", false}), -12);
  EXPECT_THROW(ToNumber({"1.5", false}), ScriptError);
  EXPECT_THROW(ToNumber({"", true}), ScriptError);
  EXPECT_THROW(ToNumber({"3000000000", false}), ScriptError);
}

}  // namespace
}  // namespace qvzj::script
