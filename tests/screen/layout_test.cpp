#include "screen/layout.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

#include "screen/frmZj.h"

namespace qvzj {
namespace {

using ui::Bounds;
using ui::WindowState;

// A form that arranges itself when it is resized, as a loaded one does.
struct Arranged : frmZj {
  explicit Arranged(int32_t width = 15000, int32_t height = 10200,
                    WindowState state = WindowState::Normal) {
    onResize = [this] { LayoutForm(*this); };
    UserResize(width, height, state);
    LayoutForm(*this);
  }
  void ShowEditor(bool visible) {
    picAcnt.SetVisible(visible);
    LayoutEditor(*this);
  }
  void ShowDetail(bool visible) {
    fraKhMemo.SetVisible(visible);
    LayoutLedgerSide(*this);
  }
};

int32_t Right(const ui::Control& control) {
  return control.GetBounds().left + control.GetBounds().width;
}
int32_t Bottom(const ui::Control& control) {
  return control.GetBounds().top + control.GetBounds().height;
}

TEST(LayoutForm, KeepsTheArrangementOfANormalWindowThatIsTooNarrow) {
  Arranged form;
  const Bounds before = form.Grid2.GetBounds();
  form.UserResize(11999, 9000, WindowState::Normal);
  EXPECT_EQ(form.Grid2.GetBounds(), before);
}

TEST(LayoutForm, KeepsTheArrangementOfANormalWindowThatIsTooLow) {
  Arranged form;
  const Bounds before = form.Grid2.GetBounds();
  form.UserResize(12000, 8564, WindowState::Normal);
  EXPECT_EQ(form.Grid2.GetBounds(), before);
}

TEST(LayoutForm, ArrangesAWindowOfTheLeastSize) {
  Arranged form;
  form.UserResize(12000, 8565, WindowState::Normal);
  EXPECT_EQ(Right(form.Grid2), 12000 - 60);
  EXPECT_EQ(Bottom(form.SSTab2), 8565);
}

TEST(LayoutForm, KeepsTheArrangementOfAMinimisedWindow) {
  Arranged form;
  const Bounds before = form.Grid2.GetBounds();
  form.UserResize(20000, 12000, WindowState::Minimised);
  EXPECT_EQ(form.Grid2.GetBounds(), before);
}

TEST(LayoutForm, ArrangesAMaximisedWindowOfAnySize) {
  Arranged form;
  form.UserResize(11999, 8000, WindowState::Maximised);
  EXPECT_EQ(Right(form.Grid2), 11999 - 60);
  EXPECT_EQ(Bottom(form.SSTab2), 8000);
}

TEST(LayoutForm, StartsTheDetailFrameWhereTheLedgerStarts) {
  for (const int32_t width : {12000, 15000, 28800}) {
    Arranged form(width, 12000);
    EXPECT_EQ(form.fraKhMemo.GetBounds().left, form.SSTab2.GetBounds().width + 5);
    EXPECT_EQ(form.fraKhMemo.GetBounds().left, form.Grid2.GetBounds().left);
  }
}

TEST(LayoutLedgerSide, StacksGridTotalsAndFilterFromTheBottom) {
  Arranged form(12000, 8565);
  EXPECT_EQ(form.SSTab2.GetBounds().height, 8565 - form.SSTab2.GetBounds().top);
  EXPECT_EQ(Bottom(form.fraFilter), 8565 - 40);
  EXPECT_EQ(Bottom(form.fraTotal), form.fraFilter.GetBounds().top + 100);
  EXPECT_EQ(Bottom(form.Grid2), form.fraTotal.GetBounds().top + 80);
}

TEST(LayoutLedgerSide, GivesTheDetailFrameItsHeightLess60) {
  Arranged form(12000, 8565);
  Bounds detail = form.fraKhMemo.GetBounds();
  detail.height = 1000;
  form.fraKhMemo.SetBounds(detail);
  const int32_t strip = form.SSTab2.GetBounds().height;
  const int32_t filter = form.fraFilter.GetBounds().top;
  const int32_t total = form.fraTotal.GetBounds().top;
  const int32_t grid = Bottom(form.Grid2);
  form.ShowDetail(true);
  EXPECT_EQ(form.SSTab2.GetBounds().height, strip - 940);
  EXPECT_EQ(form.fraFilter.GetBounds().top, filter - 940);
  EXPECT_EQ(form.fraTotal.GetBounds().top, total - 940);
  EXPECT_EQ(Bottom(form.Grid2), grid - 940);
}

TEST(LayoutLedgerSide, LeavesNoNegativeHeightInALowWindow) {
  Arranged form(12000, 2000, WindowState::Maximised);
  form.ShowDetail(true);
  EXPECT_EQ(form.Grid2.GetBounds().height, 0);
  EXPECT_GE(form.SSTab2.GetBounds().height, 0);
}

TEST(LayoutEditor, PushesTheLedgerDownWhileTheEditorIsOpen) {
  Arranged form(12000, 8565);
  const Bounds closed = form.Grid2.GetBounds();
  form.ShowEditor(true);
  EXPECT_GE(form.SSTab2.GetBounds().top, Bottom(form.picAcnt));
  EXPECT_EQ(Bottom(form.Grid2), closed.top + closed.height);
  form.ShowEditor(false);
  EXPECT_EQ(form.Grid2.GetBounds(), closed);
}

TEST(LayoutEditor, LeavesRoomForRowsInTheLeastWindowWithEverythingOpen) {
  Arranged form(12000, 8565);
  form.ShowEditor(true);
  form.ShowDetail(true);
  EXPECT_GE(form.Grid2.GetBounds().height, 900);
}

// The ledger side's panels overlap on purpose (frames' borders, the strip behind the grid).
bool MayOverlap(const frmZj& form, const ui::Control& a, const ui::Control& b) {
  const auto pair = [&](const ui::Control& x, const ui::Control& y) {
    return (&a == &x && &b == &y) || (&a == &y && &b == &x);
  };
  return pair(form.SSTab2, form.Grid2) || pair(form.SSTab2, form.fraTotal) ||
         pair(form.SSTab2, form.fraFilter) || pair(form.fraTotal, form.fraFilter) ||
         pair(form.Grid2, form.fraTotal) || pair(form.SSTab2, form.fraKhMemo) ||
         pair(form.fraFilter, form.fraKhMemo) || pair(form.fraSHR, form.lblSHR);
}

bool Overlap(const Bounds& a, const Bounds& b) {
  return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
         b.top < a.top + a.height;
}

void ExpectNothingOverlaps(frmZj& form) {
  for (const ui::Control* a : form.Controls()) {
    for (const ui::Control* b : form.Controls()) {
      if (a >= b || a->Container() != b->Container() || a->Page() != b->Page()) continue;
      if (a->GetKind() == ui::Kind::Menu || !a->Visible() || !b->Visible()) continue;
      if (MayOverlap(form, *a, *b)) continue;
      EXPECT_FALSE(Overlap(a->GetBounds(), b->GetBounds()))
          << a->FullName() << " and " << b->FullName() << " at " << form.Width() << " x "
          << form.Height();
    }
  }
}

// Except for the 20 twips by which the detail frame hangs over the lower edge.
void ExpectEverythingIsInside(frmZj& form) {
  for (const ui::Control* control : form.Controls()) {
    if (control->GetKind() == ui::Kind::Menu || !control->Visible()) continue;
    const ui::Control* container = control->Container();
    const int32_t width = container ? container->GetBounds().width : form.Width();
    const int32_t height = container ? container->GetBounds().height : form.Height() + 20;
    const Bounds& at = control->GetBounds();
    EXPECT_TRUE(at.left >= 0 && at.top >= 0 && at.left + at.width <= width &&
                at.top + at.height <= height && at.width > 0 && at.height > 0)
        << control->FullName() << " at " << form.Width() << " x " << form.Height() << ": "
        << at.left << "," << at.top << " " << at.width << " x " << at.height;
  }
}

TEST(LayoutForm, NothingOverlapsOrLeavesItsPanelAtAnySizeAndMode) {
  constexpr std::array<std::pair<int32_t, int32_t>, 4> kSizes = {
      {{12000, 8565}, {15000, 10200}, {20490, 11520}, {28800, 16200}}};
  for (const auto& [width, height] : kSizes) {
    for (const int16_t mode : {kCustomers, kAccounts}) {
      Arranged form;
      form.mode = mode;
      form.cmdKhSave.SetVisible(true);
      form.cmdKhCancel.SetVisible(true);
      form.UserResize(width, height, WindowState::Normal);
      for (const bool editor : {false, true}) {
        for (const bool detail : {false, true}) {
          form.ShowEditor(editor);
          form.ShowDetail(detail);
          ExpectNothingOverlaps(form);
          ExpectEverythingIsInside(form);
        }
      }
    }
  }
}

TEST(LayoutForm, LeavesOutTheTotalsThatMoneyAccountsDoNotHave) {
  Arranged form;
  form.mode = kAccounts;
  LayoutForm(form);
  EXPECT_FALSE(form.txtTotal(2).Visible());
  EXPECT_FALSE(form.txtTotal(3).Visible());
  EXPECT_TRUE(form.txtTotal(5).Visible());
  form.mode = kCustomers;
  LayoutForm(form);
  EXPECT_TRUE(form.txtTotal(2).Visible());
  EXPECT_TRUE(form.lblTotal(3).Visible());
}

TEST(LayoutForm, TakesASizeThatNoWindowHasForTheNearestOne) {
  constexpr std::array<int32_t, 6> kSizes = {INT32_MIN, -1, 0, 2'000'000, INT32_MAX - 1, INT32_MAX};
  for (const int32_t width : kSizes) {
    for (const int32_t height : kSizes) {
      for (const WindowState state : {WindowState::Normal, WindowState::Maximised}) {
        Arranged form(width, height, state);
        form.ShowEditor(true);
        form.ShowDetail(true);
        for (const ui::Control* control : form.Controls()) {
          const Bounds& bounds = control->GetBounds();
          EXPECT_GE(bounds.width, 0) << control->FullName() << " " << width << "x" << height;
          EXPECT_LE(bounds.width, 100'000'000) << control->FullName();
          EXPECT_LE(bounds.height, 100'000'000) << control->FullName();
        }
      }
    }
  }
}

}  // namespace
}  // namespace qvzj
