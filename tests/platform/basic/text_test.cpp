#include "platform/basic/text.h"

#include <gtest/gtest.h>

namespace qvzj::basic {
namespace {

TEST(Text, IsCountedInCharacters) {
  EXPECT_EQ(Len("客户A"), 3);
  EXPECT_EQ(Len("𠮷"), 1);
  EXPECT_EQ(Len(""), 0);
}

TEST(Text, IsTakenApartByCharacters) {
  EXPECT_EQ(Left("帐目新增(&N)", 4), "帐目新增");
  EXPECT_EQ(Left("客户", 5), "客户");
  EXPECT_EQ(Left("客户", 0), "");
  EXPECT_EQ(Left("客户", -1), "");
  EXPECT_EQ(Right("帐目审核(&K)", 4), "(&K)");
  EXPECT_EQ(Right("客户", 5), "客户");
  EXPECT_EQ(Right("客户", 0), "");
  EXPECT_EQ(Mid("客户往来帐", 3, 2), "往来");
  EXPECT_EQ(Mid("客户", 2), "户");
  EXPECT_EQ(Mid("客户", 3), "");
  EXPECT_EQ(Mid("客户", 0, 1), "客");
  EXPECT_EQ(Mid("客户", 2, 9), "户");
}

TEST(Text, OfMalformedBytesCountsEachByte) {
  EXPECT_EQ(Len("\xFF\xFE"), 2);
  EXPECT_EQ(Len("a\xE5\xAE"), 3);  // a character that is cut off
  EXPECT_EQ(Len("\xC0\x80"), 2);   // too long a spelling
  EXPECT_EQ(Len("\xE0\x80\x80"), 3);
  EXPECT_EQ(Len("\xED\xA0\x80"), 3);      // a surrogate
  EXPECT_EQ(Len("\xF4\x90\x80\x80"), 4);  // past the last code point
  EXPECT_EQ(Left("\xFF客户", 2), "\xFF客");
  EXPECT_EQ(CodePoints("\xFF客"), U"\uFFFD客");
}

TEST(Text, IsCheckedForBeingUtf8) {
  EXPECT_TRUE(IsUtf8("客户 A 𠮷"));
  EXPECT_TRUE(IsUtf8(""));
  EXPECT_FALSE(IsUtf8("\xBF\xCD\xBB\xA7"));  // the same word in the Chinese code page
  EXPECT_FALSE(IsUtf8("\xE0\x80\x80"));
  EXPECT_FALSE(IsUtf8("\xED\xA0\x80"));
  EXPECT_FALSE(IsUtf8("\xF4\x90\x80\x80"));
}

TEST(Text, IsTrimmedOfBlanksOnly) {
  EXPECT_EQ(Trim("  客 户 "), "客 户");
  EXPECT_EQ(Trim("\ta "), "\ta");
  EXPECT_EQ(Trim("　a"), "　a");  // the wide blank stays
  EXPECT_EQ(Trim("   "), "");
}

TEST(Text, ChangesTheCaseOfAsciiLettersOnly) {
  EXPECT_EQ(Upper("pz-é客"), "PZ-é客");
  EXPECT_EQ(Lower("PZ-É客"), "pz-É客");
  EXPECT_TRUE(EqualIgnoringCase("fID", "FID"));
  EXPECT_FALSE(EqualIgnoringCase("fID", "fID2"));
}

TEST(Text, IsPaddedToAWidth) {
  EXPECT_EQ(Pad("客户", 4), "客户  ");
  EXPECT_EQ(Pad("客户往来", 2), "客户");
}

TEST(Text, IsReplacedEverywhere) {
  EXPECT_EQ(Replace("a'b'c", "'", "’"), "a’b’c");
  EXPECT_EQ(Replace("aaa", "aa", "b"), "ba");
  EXPECT_EQ(Replace("abc", "", "x"), "abc");
}

TEST(CodePoint, BecomesUtf8AndBack) {
  for (char32_t code : {U'A', U'é', U'客', U'𠮷', char32_t{0x10FFFF}}) {
    EXPECT_EQ(CodePoints(FromCodePoint(code)), std::u32string(1, code));
  }
  EXPECT_EQ(FromCodePoint(0xD800), "\uFFFD");
  EXPECT_EQ(FromCodePoint(0x110000), "\uFFFD");
}

}  // namespace
}  // namespace qvzj::basic
