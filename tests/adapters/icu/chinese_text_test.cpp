#include "adapters/icu/chinese_text.h"

#include <gtest/gtest.h>

#include "platform/basic/errors.h"

namespace qvzj {
namespace {

TEST(ChineseText, KnowsUtf8WithAndWithoutAByteOrderMark) {
  EXPECT_EQ(ReadChineseText("编号,名称").utf8, "编号,名称");
  EXPECT_EQ(ReadChineseText("\xEF\xBB\xBF编号").utf8, "编号");
  EXPECT_EQ(ReadChineseText("\xEF\xBB\xBF编号").encoding, "UTF-8");
}

TEST(ChineseText, ReadsTheChineseCodePage) {
  const ChineseText text = ReadChineseText("\xB1\xE0\xBA\xC5,\xC3\xFB\xB3\xC6");
  EXPECT_EQ(text.utf8, "编号,名称");
  EXPECT_EQ(text.encoding, "GB18030");
}

TEST(ChineseText, ReadsCharactersOfFourBytes) {
  // U+20000, a character of a personal name that only the four-byte form holds.
  EXPECT_EQ(ReadChineseText("\x95\x32\x82\x36\xB1\xE0").utf8, "\xF0\xA0\x80\x80编");
}

TEST(ChineseText, ReadsALongTextAcrossItsBlocks) {
  std::string bytes;
  std::string expected;
  for (int i = 0; i < 70001; ++i) {
    bytes += "\x95\x32\x82\x36\xB1\xE0";
    expected += "\xF0\xA0\x80\x80编";
  }
  EXPECT_EQ(ReadChineseText(bytes).utf8, expected);
  EXPECT_EQ(ReadChineseText(bytes + "a" + bytes).utf8, expected + "a" + expected);
}

TEST(ChineseText, RefusesBytesOfNeitherEncoding) {
  EXPECT_THROW(ReadChineseText("ab\xFF\xFF"), Error);
  EXPECT_THROW(ReadChineseText("ab\xB1"), Error);
}

TEST(ChineseText, AnEmptyTextIsUtf8) { EXPECT_EQ(ReadChineseText("").encoding, "UTF-8"); }

}  // namespace
}  // namespace qvzj
