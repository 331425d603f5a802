#include <gtest/gtest.h>

#include "platform/ui/form.h"
#include "platform/ui/key.h"
#include "services/query.h"
#include "tests/services/fake_data.h"

namespace qvzj {
namespace {

using test::FakeWorld;

TEST(ByteLen, CountsBytesOfTheChineseCodePage) {
  FakeWorld world;
  EXPECT_EQ(ByteLen(""), 0);
  EXPECT_EQ(ByteLen("abc"), 3);
  EXPECT_EQ(ByteLen("中文abc"), 7);
}

TEST(FitLength, LeavesAFittingTextAlone) {
  FakeWorld world;
  EXPECT_EQ(FitLength("中文a", 5, "名称"), "中文a");
  EXPECT_TRUE(world.Messages().empty());
}

TEST(FitLength, CutsAndSaysSoUnderTheLabel) {
  FakeWorld world;
  EXPECT_EQ(FitLength("中文abc", 5, "名称"), "中文a");
  const auto shown = world.headless.boxes.TakeShown();
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(shown[0].text, "[名称] over max length (5) !");
  EXPECT_EQ(shown[0].style, box::kInformation);
}

TEST(FitLength, DropsAChineseCharacterThatStraddlesTheLimit) {
  FakeWorld world;
  EXPECT_EQ(FitLength("中文abc", 4, ""), "中文");
  EXPECT_EQ(FitLength("中文abc", 3, ""), "中");
  EXPECT_EQ(FitLength("中文abc", 0, ""), "");
}

TEST(FitLength, CutsSilentlyWithoutALabel) {
  FakeWorld world;
  FitLength("中文abc", 5, "");
  EXPECT_TRUE(world.Messages().empty());
}

struct Box : FakeWorld {
  ui::Form form{"form"};
  ui::TextBox text{form, "text"};

  // What is left of a key after the filter.
  int Press(int key, int16_t max, bool numeric = false) {
    LimitKeys(text, key, max, numeric);
    return key;
  }
};

TEST(LimitKeys, LetsACharacterThroughThatFits) {
  Box box;
  box.text.SetText("中a");
  EXPECT_EQ(box.Press('b', 4), 'b');
  EXPECT_TRUE(box.Messages().empty());
}

TEST(LimitKeys, DropsACharacterOverTheLimitAndSaysSo) {
  Box box;
  box.text.SetText("中a");
  EXPECT_EQ(box.Press(U'文', 4), 0);
  const auto shown = box.headless.boxes.TakeShown();
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(shown[0].text, "数值超出最大范围!");
  EXPECT_EQ(shown[0].style, box::kInformation);
}

TEST(LimitKeys, CountsTheReplacedSelectionAsRemoved) {
  Box box;
  box.text.SetText("中文");
  box.text.Select(1, 1);
  EXPECT_EQ(box.Press(U'字', 4), U'字');
}

TEST(LimitKeys, DropsAPasteThatDoesNotFit) {
  Box box;
  box.text.SetText("abc");
  box.headless.clipboard.SetText("中文");
  EXPECT_EQ(box.Press(ui::kKeyCtrlV, 7), ui::kKeyCtrlV);
  EXPECT_EQ(box.Press(ui::kKeyCtrlV, 6), 0);
  EXPECT_EQ(box.Messages(), std::vector<std::string>{"数值超出最大范围!"});
}

TEST(LimitKeys, DoesNothingWithoutALimitOrForControlKeys) {
  Box box;
  box.text.SetText("abcdef");
  EXPECT_EQ(box.Press('x', 0), 'x');
  EXPECT_EQ(box.Press(ui::kKeyBackspace, 3), ui::kKeyBackspace);
  EXPECT_EQ(box.Press(ui::kKeyEnter, 3), ui::kKeyEnter);
}

TEST(LimitKeys, LetsOnlyANumberIntoANumericField) {
  Box box;
  box.text.SetText("12");
  box.text.Select(2, 0);
  EXPECT_EQ(box.Press('3', 12, true), '3');
  EXPECT_EQ(box.Press('.', 12, true), '.');
  EXPECT_EQ(box.Press('x', 12, true), 0);
  EXPECT_EQ(box.Press('-', 12, true), 0);
  box.text.Select(0, 0);
  EXPECT_EQ(box.Press('-', 12, true), '-');
}

TEST(LimitKeys, LetsOnlyOnePointIntoANumericField) {
  Box box;
  box.text.SetText("1.5");
  box.text.Select(3, 0);
  EXPECT_EQ(box.Press('.', 12, true), 0);
  box.text.SelectAll();
  EXPECT_EQ(box.Press('.', 12, true), '.');
}

TEST(LimitKeys, RefusesToPasteWordsIntoANumericField) {
  Box box;
  box.headless.clipboard.SetText("12 kg");
  EXPECT_EQ(box.Press(ui::kKeyCtrlV, 12, true), 0);
  EXPECT_EQ(box.Messages(), std::vector<std::string>{"只能输入数字,请删除其它字符!"});
}

TEST(FitInsertion, CutsWhatDoesNotFitAndSaysSo) {
  FakeWorld world;
  std::string inserted = "中文";
  FitInsertion("ab", "", inserted, 5);
  EXPECT_EQ(inserted, "中");
  EXPECT_EQ(world.Messages().size(), 1u);
}

TEST(FitInsertion, CountsTheReplacedSelectionAsRemoved) {
  FakeWorld world;
  std::string inserted = "中文";
  FitInsertion("abcd", "abcd", inserted, 4);
  EXPECT_EQ(inserted, "中文");
  EXPECT_TRUE(world.Messages().empty());
}

TEST(FitInsertion, KnowsNoLimitOfZero) {
  FakeWorld world;
  std::string inserted(1000, 'x');
  FitInsertion("", "", inserted, 0);
  EXPECT_EQ(inserted.size(), 1000u);
}

TEST(FitInsertion, InsertsNothingIntoAFullField) {
  FakeWorld world;
  std::string inserted = "x";
  FitInsertion("已经超出", "", inserted, 4);
  EXPECT_EQ(inserted, "");
}

}  // namespace
}  // namespace qvzj
