#include "screen/panels.h"

#include <algorithm>
#include <array>

#include "screen/frmZj.h"
#include "screen/indexes.h"

namespace qvzj {
namespace {

constexpr int32_t kPad = 120;       // inside a frame, left and right
constexpr int32_t kFrameTop = 195;  // below a frame's line without a caption

void Place(ui::Control& control, int32_t left, int32_t top, int32_t width,
           int32_t height = kField) {
  control.SetBounds({left, top, std::max(width, 0), height});
}

// A field with what names it on its left, together `width` wide.
void PlacePair(ui::Control& name, ui::Control& field, int32_t left, int32_t top, int32_t width,
               int32_t name_width) {
  Place(name, left, top, name_width);
  Place(field, left + name_width, top, width - name_width);
}

constexpr int32_t kWidestColumn = 6000;

// `count` equal columns between the paddings of a panel; on a wide screen they stop growing.
struct Split {
  Split(int32_t panel_width, int32_t count)
      : width(std::min((panel_width - 2 * kPad - (count - 1) * kPad) / count, kWidestColumn)) {}
  int32_t Left(int32_t column) const { return kPad + column * (width + kPad); }
  int32_t width;
};

}  // namespace

void ArrangeOrder(frmZj& form) {
  const int32_t inner = form.fraOrder.GetBounds().width - 2 * kPad;
  constexpr int32_t kLabel = 480;
  constexpr int32_t kList = 1740;
  Place(form.lblKhOrder, kPad, kFrameTop, kLabel);
  Place(form.cboKhOrder, kPad + kLabel, kFrameTop, kList);
  Place(form.lblKhTotal, kPad + kLabel + kList + kPad, kFrameTop, inner - kLabel - kList - kPad);
  const int32_t width = (inner - 2 * kGap) / 3;
  const int32_t top = kFrameTop + kRow;
  Place(form.cmdManage, kPad, top, width, kButton);
  Place(form.cmdKhMemo, kPad + width + kGap, top, width, kButton);
  Place(form.cmdKhPrint, kPad + 2 * (width + kGap), top, width, kButton);
}

void ArrangeRecordPage(frmZj& form) {
  const int32_t inner = form.SSTab1.GetBounds().width - 2 * kPad;
  constexpr int32_t kLabel = 840;
  int32_t top = kTabStrip + kPad;
  for (int i = 0; i < form.txtAcnt.Count(); ++i, top += kRow) {
    PlacePair(form.lblAcnt(i), form.txtAcnt(i), kPad, top, inner, kLabel);
  }
  constexpr int32_t kCaption = 240;
  Place(form.fraKhType, kPad, top, inner, kCaption + 2 * kField + kGap);
  const int32_t half = (inner - 2 * kPad) / 2;
  for (int i = 0; i < form.optKhType.Count(); ++i) {
    Place(form.optKhType(i), kPad + i % 2 * half, kCaption + i / 2 * kField, half);
  }
  top += form.fraKhType.GetBounds().height + kPad;
  constexpr int32_t kWide = 1440;
  Place(form.cmdKhSave, kPad + inner - 2 * kWide - kGap, top, kWide, kButton);
  Place(form.cmdKhCancel, kPad + inner - kWide, top, kWide, kButton);
}

void ArrangeSearchPage(frmZj& form) {
  const int32_t width = form.SSTab1.GetBounds().width - 2 * kGap;
  const int32_t inner = width - 2 * kPad;
  constexpr int32_t kCheck = 1200;
  int32_t top = kFrameTop;
  for (int i = 0; i < form.chkSeek.Count(); ++i, top += kRow) {
    PlacePair(form.chkSeek(i), form.txtSeek(i), kPad, top, inner, kCheck);
  }
  for (int i = 0; i < form.optSeek.Count(); ++i) {
    Place(form.optSeek(i), kPad + i % 2 * inner / 2, top + i / 2 * kField, inner / 2);
  }
  top += 2 * kField + kGap;
  Place(form.chkSeek2, kPad, top, inner);
  top += kRow;
  constexpr int32_t kWide = 1440;
  Place(form.cmdKhSeek, kPad + inner - kWide, top, kWide, kButton);
  top += kButton + kPad;
  Place(form.fraSeekKh, kGap, kTabStrip + kGap, width, top);
  Place(form.txtSeekMsg, kGap, kTabStrip + kGap + top + kGap, width, 1080);
}

namespace {

constexpr int32_t kEntryLabel = 840;
constexpr int32_t kEntryTop = 600;  // of the first line of fields, below the head line

// The entry's three columns; the first one is never too narrow for both directions and the opening
// mark side by side.
struct EntryColumns {
  explicit EntryColumns(int32_t panel_width) {
    constexpr int32_t kDirections = 2640;
    const int32_t inner = panel_width - 4 * kPad;
    const int32_t first = std::clamp(inner / 3, kDirections, kWidestColumn);
    const int32_t other = std::min((inner - first) / 2, kWidestColumn);
    width = {first, other, other};
    left = {kPad, 2 * kPad + first, 3 * kPad + first + other};
  }
  int32_t Right() const { return left[2] + width[2]; }
  std::array<int32_t, 3> left;
  std::array<int32_t, 3> width;
};

// What is being done and to which balance, who checked the entry, save and cancel.
void ArrangeEntryHead(frmZj& form, const EntryColumns& column) {
  constexpr int32_t kTop = 150;
  constexpr int32_t kTitle = 990;
  Place(form.lblAcntTitle, column.left[0], kTop, kTitle, kButton);
  PlacePair(form.lblAcnt2(EntryBox::Balance), form.txtAcnt2(EntryBox::Balance),
            column.left[0] + kTitle, kTop + 30, column.width[0] - kTitle, 480);
  constexpr int32_t kName = 660;
  Place(form.lblAcnt2(EntryBox::Checker), column.left[1], kTop, kName, kButton);
  const int32_t checker = column.width[1] - kName - 100;
  Place(form.lblSHR, column.left[1] + kName + 50, kTop + 45, checker, 300);
  Place(form.fraSHR, column.left[1] + kName, kTop, checker + 100, kButton);
  // Who is keyed or changed has no checker yet: the place is free then.
  Place(form.lblNumberUse, column.left[1], kTop, column.width[1], kButton);
  constexpr int32_t kWide = 1125;
  Place(form.cmdAcntSave, column.Right() - 2 * kWide - kGap, kTop, kWide, kButton);
  Place(form.cmdAcntCancel, column.Right() - kWide, kTop, kWide, kButton);
}

// The two directions and the opening mark, left of the amounts.
void ArrangeDirection(frmZj& form, const EntryColumns& column, int32_t top) {
  constexpr int32_t kOption = 720;
  constexpr int32_t kFrame = 2 * kOption + kGap;
  Place(form.fraType2, column.left[0], top, kFrame);
  for (int i = 1; i <= 2; ++i) Place(form.optType2(i), kGap + (i - 1) * kOption, 0, kOption);
  Place(form.chkAcntInit, column.left[0] + kFrame + kGap, top, column.width[0] - kFrame - kGap);
}

// Currency, rate, and the money account in all the room that is left: its names are long.
void ArrangeMoney(frmZj& form, const EntryColumns& column, int32_t top) {
  constexpr int32_t kRate = kEntryLabel + 840;
  constexpr int32_t kAccount = 1110;
  PlacePair(form.lblHb, form.cboHb, column.left[0], top, column.width[0], kEntryLabel);
  PlacePair(form.lblHbRate, form.txtHbRate, column.left[1], top, kRate, kEntryLabel);
  const int32_t left = column.left[1] + kRate + kPad;
  PlacePair(form.chkAcntName, form.cboAcntName, left, top, column.Right() - left, kAccount);
}

}  // namespace

void ArrangeEntryPanel(frmZj& form) {
  const EntryColumns column(form.picAcnt.GetBounds().width);
  const auto top = [](int row) { return kEntryTop + row * kRow; };
  const auto pair = [&](ui::Control& name, ui::Control& field, int row, size_t at) {
    PlacePair(name, field, column.left[at], top(row), column.width[at], kEntryLabel);
  };
  ArrangeEntryHead(form, column);
  pair(form.lblAcnt2(EntryBox::Date), form.dtpAcntDate, 0, 0);
  pair(form.lblAcnt2(EntryBox::Number), form.txtAcnt2(EntryBox::Number), 0, 1);
  pair(form.lblAcnt2(EntryBox::Record), form.txtAcnt2(EntryBox::Record), 0, 2);
  ArrangeDirection(form, column, top(1));
  pair(form.lblAcnt2(EntryBox::MoneyA), form.txtAcnt2(EntryBox::MoneyA), 1, 1);
  pair(form.lblAcnt2(EntryBox::MoneyB), form.txtAcnt2(EntryBox::MoneyB), 1, 2);
  ArrangeMoney(form, column, top(2));
  PlacePair(form.lblAcnt2(EntryBox::Brief), form.txtAcnt2(EntryBox::Brief), column.left[0], top(3),
            column.left[1] + column.width[1] - column.left[0], kEntryLabel);
  pair(form.lblAcnt2(EntryBox::InvID), form.txtAcnt2(EntryBox::InvID), 3, 2);
  pair(form.lblAcnt2(EntryBox::OrderID), form.txtAcnt2(EntryBox::OrderID), 4, 0);
  pair(form.lblAcnt2(EntryBox::User), form.txtAcnt2(EntryBox::User), 4, 1);
  pair(form.lblAcnt2(EntryBox::Doneman), form.cboDoneMan, 4, 2);
}

void ArrangeTotals(frmZj& form) {
  constexpr int32_t kCurrency = 840;
  constexpr int32_t kLabel = 840;
  const int32_t width = form.fraTotal.GetBounds().width;
  const Split column(width - kCurrency - kPad, 3);
  const auto pair = [&](int total, int row, int32_t at) {
    PlacePair(form.lblTotal(total), form.txtTotal(total), column.Left(at), kFrameTop + row * kRow,
              column.width, kLabel);
  };
  for (int i = 0; i < form.lblTotal.Count(); ++i) {
    const bool shown = form.mode == kCustomers || (i != 2 && i != 3);
    form.lblTotal(i).SetVisible(shown);
    form.txtTotal(i).SetVisible(shown);
    if (form.mode == kCustomers) pair(i, i / 3, i % 3);
  }
  if (form.mode != kCustomers) {
    // Opening and in, out and balance below them.
    pair(0, 0, 0);
    pair(1, 0, 1);
    pair(4, 1, 0);
    pair(5, 1, 1);
  }
  const int32_t left = column.Left(2) + column.width + kPad;
  Place(form.lblHb2, left, kFrameTop, kCurrency);
  Place(form.cboHb2, left, kFrameTop + kRow, kCurrency);
}

void ArrangeFilter(frmZj& form) {
  const int32_t width = form.fraFilter.GetBounds().width;
  const Split column(width, 3);
  constexpr int32_t kCheck = 1110;
  const auto pair = [&](ui::Control& check, ui::Control& field, int row, int32_t at) {
    PlacePair(check, field, column.Left(at), kFrameTop + row * kRow, column.width, kCheck);
  };
  constexpr int32_t kOption = 1110;
  for (int i = 0; i < form.OptSelect.Count(); ++i) {
    Place(form.OptSelect(i), kPad + i * kOption, kFrameTop, kOption);
  }
  constexpr int32_t kVerify = 960;
  for (int i = 0; i < form.chkVerify.Count(); ++i) {
    Place(form.chkVerify(i), kPad + 3 * kOption + kPad + i * kVerify, kFrameTop, kVerify);
  }
  constexpr int32_t kWide = 1140;
  Place(form.cmdAcntRefresh, column.Left(2) + column.width - kWide, kFrameTop - 30, kWide, kButton);

  pair(form.chkDate(FilterBox::From), form.dtpDate(FilterBox::From), 1, 0);
  pair(form.chkDate(FilterBox::To), form.dtpDate(FilterBox::To), 1, 1);
  pair(form.chkID(FilterBox::AcntNo), form.txtID(FilterBox::AcntNo), 1, 2);
  pair(form.chkID(FilterBox::InvID), form.txtID(FilterBox::InvID), 2, 0);
  pair(form.chkID(FilterBox::OrderID), form.txtID(FilterBox::OrderID), 2, 1);
  pair(form.chkBrief, form.txtBrief, 2, 2);
  for (int i = 0; i < form.chkUser.Count(); ++i) pair(form.chkUser(i), form.txtUser(i), 3, i);
}

void ArrangeDetail(frmZj& form) {
  const ui::Bounds& frame = form.fraKhMemo.GetBounds();
  constexpr int32_t kWide = 1140;
  const int32_t right = frame.width - kPad;
  constexpr int32_t kTop = 150;
  Place(form.cmdCancel, right - kWide, kTop, kWide, kButton);
  Place(form.cmdSave, right - 2 * kWide - kGap, kTop, kWide, kButton);
  Place(form.lblKhMemo, kPad, kTop, frame.width - 2 * kPad - 2 * (kWide + kGap), kButton);
  const int32_t text_top = kTop + kButton + kGap;
  Place(form.txtKhMemo, kPad, text_top, frame.width - 2 * kPad, frame.height - text_top - kPad);
}

}  // namespace qvzj
