#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "adapters/icu/ansi_codec.h"
#include "adapters/icu/text_order.h"

namespace qvzj {
namespace {

using Texts = std::vector<std::string>;

Texts Ordered(const IcuTextOrder& order, Texts texts) {
  std::stable_sort(texts.begin(), texts.end(), [&](const auto& a, const auto& b) {
    return order.SortKey(a) < order.SortKey(b);
  });
  return texts;
}

TEST(AnsiCodec, EncodesChineseAsTheTwoBytesOfTheCodePage) {
  const IcuAnsiCodec codec;
  EXPECT_EQ(codec.Encode("中a"),
            "\xD6\xD0"
            "a");
  EXPECT_EQ(codec.Encode("帳"), "\x8E\xA4");
  EXPECT_EQ(codec.Encode(""), "");
}

TEST(AnsiCodec, PutsOneQuestionMarkForWhatTheCodePageLacks) {
  const IcuAnsiCodec codec;
  EXPECT_EQ(codec.Encode("ก"), "?");
  EXPECT_EQ(codec.Encode("a😀b"), "a?b");
}

TEST(AnsiCodec, CountsTheBytesOfACharacterAsItEncodesIt) {
  const IcuAnsiCodec codec;
  EXPECT_EQ(codec.BytesOf(U'a'), 1);
  EXPECT_EQ(codec.BytesOf(U'中'), 2);
  EXPECT_EQ(codec.BytesOf(U'，'), 2);
  EXPECT_EQ(codec.BytesOf(U'ก'), 1);
  EXPECT_EQ(codec.BytesOf(U'😀'), 1);
}

TEST(TextOrder, OrdersSimplifiedChineseByPinyin) {
  EXPECT_EQ(Ordered(IcuTextOrder::Pinyin(), {"张三", "李四", "阿明", "王五", "北京"}),
            (Texts{"阿明", "北京", "李四", "王五", "张三"}));
}

TEST(TextOrder, OrdersTraditionalChineseByStrokes) {
  EXPECT_EQ(Ordered(IcuTextOrder::Stroke(), {"張", "王", "丁", "一", "陳"}),
            (Texts{"一", "丁", "王", "張", "陳"}));
}

TEST(TextOrder, IgnoresTheCaseOfLatinLetters) {
  const IcuTextOrder order = IcuTextOrder::Pinyin();
  EXPECT_EQ(order.SortKey("Abc"), order.SortKey("aBC"));
  EXPECT_LT(order.SortKey("abc"), order.SortKey("ABD"));
}

TEST(TextOrder, PutsDigitsFirstAndLatinLettersAfterChinese) {
  EXPECT_EQ(Ordered(IcuTextOrder::Pinyin(), {"阿", "b", "1"}), (Texts{"1", "阿", "b"}));
}

TEST(TextOrder, ComparesAsItsKeysDo) {
  const IcuTextOrder order = IcuTextOrder::Pinyin();
  const Texts texts = {"", "a", "A", "b", "10", "9", "张三", "张三丰", "李四", "中 文", "中文"};
  for (const auto& a : texts) {
    for (const auto& b : texts) {
      const int by_key = order.SortKey(a).compare(order.SortKey(b));
      const int direct = order.Compare(a, b);
      EXPECT_EQ(by_key < 0, direct < 0) << a << " / " << b;
      EXPECT_EQ(by_key > 0, direct > 0) << a << " / " << b;
    }
  }
}

TEST(TextOrder, ComparesMixturesOfCodesAndMarksAsItsKeysDo) {
  const Texts pieces = {"a", "B", "Z", "9", "-", " ", "@", "_", "\xCC\x81", "é", "中", "\t", "."};
  for (const IcuTextOrder& order : {IcuTextOrder::Pinyin(), IcuTextOrder::Stroke()}) {
    std::mt19937 random(20240315);
    std::uniform_int_distribution<size_t> piece(0, pieces.size() - 1);
    std::uniform_int_distribution<int> length(0, 4);
    const auto text = [&] {
      std::string made;
      for (int i = length(random); i > 0; --i) made += pieces[piece(random)];
      return made;
    };
    for (int round = 0; round < 20000; ++round) {
      const std::string a = text();
      const std::string b = text();
      const int by_key = order.SortKey(a).compare(order.SortKey(b));
      const int direct = order.Compare(a, b);
      ASSERT_EQ(by_key < 0, direct < 0) << a << " / " << b;
      ASSERT_EQ(by_key > 0, direct > 0) << a << " / " << b;
    }
  }
}

TEST(TextOrder, GivesTheEmptyTextTheSmallestKey) {
  const IcuTextOrder order = IcuTextOrder::Pinyin();
  EXPECT_LT(order.SortKey(""), order.SortKey(" "));
  EXPECT_LT(order.SortKey(""), order.SortKey("0"));
}

}  // namespace
}  // namespace qvzj
