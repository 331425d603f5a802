#include <gtest/gtest.h>

#include "frontends/view/box_plan.h"
#include "frontends/view/export_report.h"

namespace qvzj::view {
namespace {

TEST(BoxPlan, GivesEveryStyleItsButtonsAndAnswers) {
  const Texts& texts = TextsOf(false);
  EXPECT_EQ(PlanBox(box::kExclamation, texts).reject, "");
  const BoxPlan question = PlanBox(box::kQuestionOkCancel, texts);
  EXPECT_EQ(question.accept, "确定");
  EXPECT_EQ(question.reject, "取消");
  EXPECT_EQ(question.rejected, Answer::Cancel);
  const BoxPlan yes_no = PlanBox(kQuestionYesNo, texts);
  EXPECT_EQ(yes_no.accept, "是");
  EXPECT_EQ(yes_no.accepted, Answer::Yes);
  EXPECT_EQ(yes_no.rejected, Answer::No);
}

TEST(BoxPlan, ShowsNoSignInAPlainBox) {
  EXPECT_EQ(PlanBox(box::kPlain, TextsOf(false)).sign.mark, "");
  EXPECT_EQ(PlanBox(box::kCritical, TextsOf(false)).sign.mark, "×");
}

const FileQuestion kQuestion{"t", "n", {{"Book", "xlsx"}, {"List", "csv"}}};

TEST(FileAnswer, GivesWhateverIsTypedTheEndingOfItsType) {
  for (const char* typed : {"/a.b/list", "/a.b/list.csv", "/a.b/list.xlsx"}) {
    EXPECT_EQ(WithEnding(typed, kQuestion, 0), "/a.b/list.xlsx") << typed;
  }
  EXPECT_EQ(WithEnding("No. 1.5", kQuestion, 1), "No. 1.5.csv");
  EXPECT_EQ(WithEnding("LIST.XLSX", kQuestion, 0), "LIST.XLSX");
}

TEST(FileAnswer, SeesWhenANameSaysAnotherTypeThanTheChoice) {
  EXPECT_EQ(OtherTypeTyped("/a/out3.CSV", kQuestion, 0), 1U);
  EXPECT_EQ(OtherTypeTyped("/a/out3.csv", kQuestion, 1), std::nullopt);
  EXPECT_EQ(OtherTypeTyped("/a.csv/out", kQuestion, 0), std::nullopt);
  EXPECT_EQ(OtherTypeTyped("No. 1.5", kQuestion, 0), std::nullopt);
}

TEST(FileAnswer, ListsATypeWithItsEnding) {
  EXPECT_EQ(FilterText(kQuestion.types[0]), "Book (*.xlsx)");
}

TEST(FileAnswer, AsksAgainOnlyForAFileThatNobodyAskedAbout) {
  const auto there = [](const std::string&) { return true; };
  const auto missing = [](const std::string&) { return false; };
  EXPECT_TRUE(MustAskAgain("a.csv", "a.xlsx", there));
  EXPECT_FALSE(MustAskAgain("a.csv", "a.xlsx", missing));
  EXPECT_FALSE(MustAskAgain("a.xlsx", "a.xlsx", there));
}

TEST(ExportReport, SaysWhatBecameOfTheRows) {
  ExportResult result;
  result.rows = 3;
  EXPECT_EQ(ExportReport(result, "/x.csv", TextsOf(false)), "已导出 3 行：\n/x.csv");
  result.sheets = 2;
  result.lost_characters = 5;
  const std::string said = ExportReport(result, "/x.csv", TextsOf(true));
  EXPECT_NE(said.find("2 個工作表"), std::string::npos) << said;
  EXPECT_NE(said.find("5 個字元"), std::string::npos) << said;
}

TEST(Texts, AreThereInBothLanguages) {
  EXPECT_EQ(TextsOf(false).erase, "删除");
  EXPECT_EQ(TextsOf(true).erase, "刪除");
  EXPECT_NE(PreviewTextsOf(false).close, PreviewTextsOf(true).close);
}

TEST(Texts, FillTheirPlacesAndLeaveOtherSignsAlone) {
  EXPECT_EQ(Fill("%2 of %1, 100%", {"a", "b"}), "b of a, 100%");
  EXPECT_EQ(Fill("%3", {"a"}), "%3");
  EXPECT_EQ(Fill("%1", {"%2", "x"}), "%2") << "what was filled in is no place";
}

}  // namespace
}  // namespace qvzj::view
