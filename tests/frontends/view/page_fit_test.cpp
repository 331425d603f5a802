#include "frontends/view/page_fit.h"

#include <gtest/gtest.h>

#include "frontends/view/composition.h"

namespace qvzj::view {
namespace {

constexpr Extent kPage{500, 800};

TEST(PageFit, ShowsTheWholePageInRoomThatIsTooLow) {
  EXPECT_DOUBLE_EQ(FittedScale(PageFit::WholePage, kPage, {1000, 400}, 10, 72), 0.5);
}

TEST(PageFit, LeavesTheScrollBarItsRoomWhenThePageIsHigherThanTheDesk) {
  EXPECT_DOUBLE_EQ(FittedScale(PageFit::Width, kPage, {1010, 400}, 10, 72), 2);
  EXPECT_DOUBLE_EQ(FittedScale(PageFit::Width, kPage, {500, 900}, 10, 72), 1);
}

TEST(PageFit, KeepsTheZoomWithinItsLimits) {
  EXPECT_DOUBLE_EQ(LimitedZoom(100), 4);
  EXPECT_DOUBLE_EQ(LimitedZoom(0.001), 0.25);
  EXPECT_DOUBLE_EQ(FittedScale(PageFit::Width, kPage, {5, 5}, 1, 144), 0.5);
}

TEST(Leafing, TurnsThePageWithAWholeNotchAtItsEnd) {
  Leafing leafing;
  EXPECT_EQ(leafing.Turn(-120, false), WheelTurn::Scrolls);
  EXPECT_EQ(leafing.Turn(-120, true), WheelTurn::TurnsOn);
  EXPECT_EQ(leafing.Turn(120, true), WheelTurn::TurnsBack);
}

TEST(Leafing, AddsUpTheSmallStepsOfATouchPad) {
  Leafing leafing;
  EXPECT_EQ(leafing.Turn(-70, true), WheelTurn::Waits);
  EXPECT_EQ(leafing.Turn(-70, true), WheelTurn::TurnsOn);
  EXPECT_EQ(leafing.Turn(-70, true), WheelTurn::Waits);
  EXPECT_EQ(leafing.Turn(70, true), WheelTurn::Waits) << "the other way begins anew";
}

TEST(Composition, LastsUntilTheTextIsHandedOverOrTheFocusGoes) {
  Composition composition;
  EXPECT_FALSE(composition.UnderWay());
  composition.Preedit(3);
  EXPECT_TRUE(composition.UnderWay());
  composition.Preedit(0);
  EXPECT_FALSE(composition.UnderWay());
  composition.Preedit(1);
  composition.FocusLost();
  EXPECT_FALSE(composition.UnderWay());
}

}  // namespace
}  // namespace qvzj::view
