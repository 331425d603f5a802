#include "frontends/view/look.h"

#include <gtest/gtest.h>

#include <set>

namespace qvzj::view {
namespace {

int Green(Color color) { return static_cast<int>(color >> 8 & 0xff); }

TEST(Look, LeavesARowColourAsItIsOnAWhitePage) { EXPECT_EQ(RowTint(0xe0e0e0, false), 0xe0e0e0U); }

TEST(Look, CarriesARowColourOverToADarkPage) {
  EXPECT_LT(Green(RowTint(0xe0e0e0, true)), 100);
  EXPECT_GT(Green(RowTint(0xe0e0e0, true)), Green(ColorsOf(true).base));
}

TEST(Look, SetsADarkerRowFurtherApartFromADarkPage) {
  EXPECT_GT(Green(RowTint(0x808080, true)), Green(RowTint(0xe0e0e0, true)));
  EXPECT_EQ(RowTint(0xffffff, true), ColorsOf(true).base);
}

TEST(Look, ShowsTextsLighterThanTheirFieldsInDarkColoursAlone) {
  EXPECT_GT(Green(ColorsOf(true).text), Green(ColorsOf(true).base));
  EXPECT_LT(Green(ColorsOf(false).text), Green(ColorsOf(false).base));
}

TEST(Look, WantsFamiliesOfTheLanguageFirstAndTheOthersToo) {
  EXPECT_EQ(FontFamilies(false).front(), "Noto Sans CJK SC");
  EXPECT_EQ(FontFamilies(true).front(), "Noto Sans CJK TC");
  const auto simplified = FontFamilies(false);
  const auto traditional = FontFamilies(true);
  EXPECT_EQ(std::set(simplified.begin(), simplified.end()),
            std::set(traditional.begin(), traditional.end()));
  EXPECT_EQ(simplified.back(), "DejaVu Sans");
}

}  // namespace
}  // namespace qvzj::view
