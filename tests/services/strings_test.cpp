#include "services/strings.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/basic/errors.h"
#include "services/context.h"

namespace qvzj {
namespace {

class LoadTextTest : public testing::Test {
 protected:
  LoadTextTest() { ResetShared(); }
  ~LoadTextTest() override { ResetShared(); }
  static void Language(int16_t language) { Shared().Language = language; }
};

bool Exists(int16_t id) {
  try {
    LoadText(id);
    return true;
  } catch (const ResourceNotFoundError&) {
    return false;
  }
}

// FNV-1a over "id=text\n" of every text there is, in order of the ids.
uint64_t Digest() {
  uint64_t digest = 0xcbf29ce484222325u;
  for (int16_t id = 0; id < 10000; ++id) {
    if (!Exists(id)) continue;
    for (char c : std::to_string(id) + "=" + LoadText(id) + "\n") {
      digest = (digest ^ static_cast<unsigned char>(c)) * 0x100000001b3u;
    }
  }
  return digest;
}

TEST_F(LoadTextTest, LoadsTheTitleInTheCurrentLanguage) {
  EXPECT_EQ(LoadText(101), "客户往来帐管理系统");
  Language(1);
  EXPECT_EQ(LoadText(101), "客戶往来帳管理系統");
}

TEST_F(LoadTextTest, TellsUnderZeroWhichTableIsInForce) {
  EXPECT_EQ(LoadText(0), "0");
  Language(1);
  EXPECT_EQ(LoadText(0), "1");
}

TEST_F(LoadTextTest, ReachesTheTraditionalTableByItsOwnIdsToo) {
  EXPECT_EQ(LoadText(10016), "保存");
  EXPECT_EQ(LoadText(10000), "1");
}

TEST_F(LoadTextTest, KeepsUnusualPunctuationAndBlanks) {
  EXPECT_EQ(LoadText(139), "(目前第     次)");
  EXPECT_EQ(LoadText(127), "注意：[执行人]若为空,则任何人均可“执行完成”该任务?");
  Language(1);
  EXPECT_EQ(LoadText(103), "終止日期不能小于起始日期 , 請更改!");
  EXPECT_EQ(LoadText(140), "超出最大范圍!");
}

TEST_F(LoadTextTest, HoldsExactlyTheTextsOfTheTable) {
  EXPECT_EQ(Digest(), 0x89e230c228dc1b23u);
  Language(1);
  EXPECT_EQ(Digest(), 0xeeea9b11fbe36401u);
}

TEST_F(LoadTextTest, ThrowsForAnIdThatIsNotThere) {
  for (int16_t id : std::vector<int16_t>{-1, 1, 4, 67, 100, 104, 106, 120, 123, 124, 128, 141, 182,
                                         184, 10122, 20000}) {
    EXPECT_THROW(LoadText(id), ResourceNotFoundError) << id;
  }
  EXPECT_EQ(LoadText(122), "开始生成任务...");
  Language(1);
  EXPECT_THROW(LoadText(122), ResourceNotFoundError);
}

TEST_F(LoadTextTest, FindsNothingInALanguageWithoutTexts) {
  for (int16_t language : std::vector<int16_t>{-1, 2, 3}) {
    Language(language);
    EXPECT_THROW(LoadText(5), ResourceNotFoundError) << language;
  }
}

TEST_F(LoadTextTest, OverflowsLoudlyWhenTheIdLeaves16Bits) {
  Language(4);
  EXPECT_THROW(LoadText(0), OverflowError);
  Language(3);
  EXPECT_THROW(LoadText(2768), OverflowError);
}

}  // namespace
}  // namespace qvzj
