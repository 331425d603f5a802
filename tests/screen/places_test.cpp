#include <gtest/gtest.h>

#include "screen/frmZj.h"
#include "screen/layout.h"

namespace qvzj {
namespace {

using ui::Bounds;

// A form of that inner size (twips), arranged.
struct Placed : frmZj {
  Placed(int32_t width, int32_t height, ui::WindowState state = ui::WindowState::Normal) {
    UserResize(width, height, state);
    LayoutForm(*this);
  }
  void Expect(const ui::Control& control, const Bounds& places) {
    const Bounds& at = control.GetBounds();
    EXPECT_EQ(at, places) << control.FullName() << " {" << at.left << ", " << at.top << ", "
                          << at.width << ", " << at.height << "}";
  }
};

TEST(Places, OfTheActionButtonsReachOverTheRegisterInTheLeastWindow) {
  Placed form(12000, 8565);
  form.Expect(form.lblKhName, {120, 60, 2835, 390});
  form.Expect(form.cmdAction(0), {3015, 60, 1230, 390});
  form.Expect(form.cmdAction(4), {8115, 60, 1230, 390});
  form.Expect(form.cmdPrint, {9390, 60, 1230, 390});
  form.Expect(form.cmdExit, {10665, 60, 840, 390});
  form.Expect(form.cmdTitleClose, {11550, 60, 390, 390});
}

TEST(Places, OfTheActionButtonsStandAboveTheLedgerInAWideWindow) {
  Placed form(20490, 11520);
  form.Expect(form.lblKhName, {120, 60, 5940, 390});
  form.Expect(form.cmdAction(0), {6120, 60, 1230, 390});
  form.Expect(form.cmdAction(4), {11220, 60, 1230, 390});
  form.Expect(form.cmdPrint, {12495, 60, 1230, 390});
  form.Expect(form.cmdExit, {19155, 60, 840, 390});
  form.Expect(form.cmdTitleClose, {20040, 60, 390, 390});
}

TEST(Places, OfTheRegisterTakeThreeTenthsOfTheWidth) {
  Placed form(15000, 10200);
  form.Expect(form.fraOrder, {60, 540, 4500, 1035});
  form.Expect(form.SSTab1, {60, 1635, 4500, 8505});
  form.Expect(form.Grid1, {60, 480, 4380, 7965});
}

TEST(Places, OfTheRegisterHaveALeastAndAGreatestWidth) {
  EXPECT_EQ(Placed(12000, 8565).SSTab1.GetBounds().width, 4080);
  EXPECT_EQ(Placed(13600, 8565).SSTab1.GetBounds().width, 4080);
  EXPECT_EQ(Placed(13610, 8565).SSTab1.GetBounds().width, 4083);
  EXPECT_EQ(Placed(20000, 8565).SSTab1.GetBounds().width, 6000);
  EXPECT_EQ(Placed(28800, 8565).SSTab1.GetBounds().width, 6000);
}

TEST(Places, OfTheLedgerFillWhatTheRegisterLeaves) {
  Placed form(15000, 10200);
  form.Expect(form.picAcnt, {4620, 540, 10320, 2580});
  form.Expect(form.SSTab2, {4620, 540, 4615, 9660});
  form.Expect(form.Grid2, {4620, 960, 10320, 6560});
  form.Expect(form.fraTotal, {4620, 7440, 10320, 1035});
  form.Expect(form.fraFilter, {4620, 8375, 10320, 1785});
}

TEST(Places, OfTheDetailTakeASixthOfTheHeight) {
  Placed form(15000, 10200);
  form.Expect(form.fraKhMemo, {4620, 8520, 10320, 1700});
  EXPECT_EQ(Placed(15000, 8565).fraKhMemo.GetBounds().height, 1440);
  EXPECT_EQ(Placed(15000, 8700).fraKhMemo.GetBounds().height, 1450);
  EXPECT_EQ(Placed(15000, 16200).fraKhMemo.GetBounds().height, 2700);
  EXPECT_EQ(Placed(15000, 20000).fraKhMemo.GetBounds().height, 2700);
}

TEST(Places, OfAMaximisedWindowThatIsTooSmallAreThoseOfTheLeastWidth) {
  Placed form(6000, 4000, ui::WindowState::Maximised);
  form.Expect(form.cmdTitleClose, {11550, 60, 390, 390});
  form.Expect(form.SSTab1, {60, 1635, 4080, 2305});
  form.Expect(form.Grid1, {60, 480, 3960, 1765});
  form.Expect(form.Grid2, {4200, 960, 1740, 360});
}

TEST(Places, OfAWindowWithoutAnyHeightAreEmptyAndNeverNegative) {
  Placed form(0, 0, ui::WindowState::Maximised);
  form.Expect(form.SSTab1, {60, 1635, 4080, 0});
  form.Expect(form.Grid1, {60, 480, 3960, 0});
  form.Expect(form.SSTab2, {4200, 540, 4195, 0});
  form.Expect(form.Grid2, {4200, 960, 0, 0});
}

}  // namespace
}  // namespace qvzj
