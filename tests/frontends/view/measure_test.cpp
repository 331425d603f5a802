#include "frontends/view/measure.h"

#include <gtest/gtest.h>

#include "frontends/view/utf16.h"

namespace qvzj::view {
namespace {

TEST(Measure, TakesFifteenTwipsForAPixelOfAnOrdinaryScreen) {
  EXPECT_EQ(ToPixels(1500, 96), 100);
  EXPECT_EQ(ToTwips(100, 96), 1500);
  EXPECT_EQ(ToPixels(1440, 144), 144);
}

TEST(Measure, RoundsToTheNearerPixelOnBothSidesOfZero) {
  EXPECT_EQ(ToPixels(22, 96), 1);
  EXPECT_EQ(ToPixels(23, 96), 2);
  EXPECT_EQ(ToPixels(-23, 96), -2);
}

TEST(Measure, LeavesNoGapBetweenNeighbours) {
  const PixelRect left = ToPixels(ui::Bounds{7, 0, 100, 300}, 96, 96);
  const PixelRect right = ToPixels(ui::Bounds{107, 0, 100, 300}, 96, 96);
  EXPECT_EQ(left.left + left.width, right.left);
}

TEST(Utf16, CountsARareCharacterAsOne) {
  const std::u16string text = u"a\U00020BB7b";
  ASSERT_EQ(text.size(), 4U);
  EXPECT_EQ(CharactersBefore(text, 3), 2);
  EXPECT_EQ(CharactersBefore(text, 99), 3);
  EXPECT_EQ(Utf16Position(text, 2), 3);
  EXPECT_EQ(Utf16Position(text, 99), 4);
}

}  // namespace
}  // namespace qvzj::view
