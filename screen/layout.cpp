#include "screen/layout.h"

#include <algorithm>

#include "screen/frmZj.h"
#include "screen/panels.h"

namespace qvzj {
namespace {

constexpr int32_t kBarBottom = 540;  // below the row of action buttons
constexpr int32_t kActionWidth = 1230;
constexpr int32_t kExitWidth = 840;
constexpr int32_t kCloseWidth = kButton;
constexpr int32_t kButtonGap = 45;

// Sizes that no window has, as a host's mistake may name them: what is computed from the most stays
// far within 32 bits.
constexpr int32_t kMost = 100'000'000;

int32_t InnerWidth(const frmZj& form) { return std::clamp(form.Width(), 0, kMost); }
int32_t InnerHeight(const frmZj& form) { return std::clamp(form.Height(), 0, kMost); }

// The columns of the form: the register on the left, the ledger on the right of it. A maximised
// window on a small screen is arranged as if it had the least width and is cut off there.
struct Columns {
  explicit Columns(const frmZj& form)
      : width(std::max<int32_t>(InnerWidth(form), kLeastWidth)),
        height(InnerHeight(form)),
        register_width(std::clamp<int32_t>(width * 3 / 10, 4080, 6000)),
        ledger_left(kGap + register_width + kGap),
        ledger_width(width - ledger_left - kGap) {
    // The action buttons stand above the ledger where they fit there, else they reach out to the
    // left over the register.
    const int32_t buttons = 6 * (kActionWidth + kButtonGap) + kExitWidth + kButtonGap + kCloseWidth;
    actions_left = std::min(ledger_left, width - kGap - buttons);
  }

  int32_t width;
  int32_t height;
  int32_t register_width;
  int32_t ledger_left;
  int32_t ledger_width;
  int32_t actions_left;
};

void PlaceRegister(frmZj& form, const Columns& at) {
  const int32_t top = kBarBottom + kOrderHeight + kGap;
  form.SSTab1.SetBounds({kGap, top, at.register_width, std::max(at.height - top - kGap, 0)});
  form.fraOrder.SetBounds({kGap, kBarBottom, at.register_width, kOrderHeight});
  const int32_t list_top = kTabStrip + kGap;
  form.Grid1.SetBounds({kGap, list_top, at.register_width - 2 * kGap,
                        std::max(form.SSTab1.GetBounds().height - list_top - kGap, 0)});
  ArrangeOrder(form);
  ArrangeRecordPage(form);
  ArrangeSearchPage(form);
}

// The strip of ledger tabs is as wide as the register column, so that the detail frame, which
// starts 5 twips right of that width, starts where the ledger does.
void PlaceLedger(frmZj& form, const Columns& at) {
  form.SSTab2.SetBounds({at.ledger_left, 0, at.ledger_left - 5, 0});
  form.Grid2.SetBounds({at.ledger_left, 0, std::max(InnerWidth(form) - at.ledger_left - 60, 0), 0});
  form.fraTotal.SetBounds({at.ledger_left, 0, at.ledger_width, kTotalHeight});
  form.fraFilter.SetBounds({at.ledger_left, 0, at.ledger_width, kFilterHeight});
  ArrangeTotals(form);
  ArrangeFilter(form);
}

void PlaceDetail(frmZj& form, const Columns& at) {
  const int32_t height = std::clamp<int32_t>(at.height / 6, 1440, 2700);
  const int32_t left = form.SSTab2.GetBounds().width + 5;
  // The ledger side ends 20 twips inside the frame's height, see LayoutLedgerSide.
  form.fraKhMemo.SetBounds({left, at.height - height + 20, at.width - left - kGap, height});
  ArrangeDetail(form);
}

void PlaceActions(frmZj& form, const Columns& at) {
  const int32_t close_left = at.width - kGap - kCloseWidth;
  const int32_t exit_left = close_left - kButtonGap - kExitWidth;
  form.cmdTitleClose.SetBounds({close_left, kGap, kCloseWidth, kButton});
  form.cmdExit.SetBounds({exit_left, kGap, kExitWidth, kButton});
  constexpr int32_t kStep = kActionWidth + kButtonGap;
  form.cmdPrint.SetBounds({at.actions_left + 5 * kStep, kGap, kActionWidth, kButton});
  for (int i = 0; i < form.cmdAction.Count(); ++i) {
    form.cmdAction(i).SetBounds({at.actions_left + i * kStep, kGap, kActionWidth, kButton});
  }
  form.lblKhName.SetBounds({kGap + kGap, kGap, at.actions_left - 3 * kGap, kButton});
}

bool MayArrange(const frmZj& form) {
  switch (form.GetWindowState()) {
    case ui::WindowState::Minimised:
      return false;
    case ui::WindowState::Maximised:
      return true;
    case ui::WindowState::Normal:
      break;
  }
  return form.Width() >= kLeastWidth && form.Height() >= kLeastHeight;
}

void MoveTop(ui::Control& control, int32_t top) {
  ui::Bounds bounds = control.GetBounds();
  bounds.top = top;
  control.SetBounds(bounds);
}

// A window too low for its panels leaves nothing for the control, never a negative height.
void SetHeight(ui::Control& control, int32_t height) {
  ui::Bounds bounds = control.GetBounds();
  bounds.height = std::max(height, 0);
  control.SetBounds(bounds);
}

}  // namespace

void LayoutForm(frmZj& form) {
  if (!MayArrange(form)) return;
  const Columns at(form);
  form.picAcnt.SetBounds({at.ledger_left, kBarBottom, at.ledger_width, kEditorHeight});
  ArrangeEntryPanel(form);
  PlaceRegister(form, at);
  PlaceLedger(form, at);
  PlaceDetail(form, at);
  LayoutEditor(form);
  PlaceActions(form, at);
}

void LayoutEditor(frmZj& form) {
  const ui::Bounds& editor = form.picAcnt.GetBounds();
  const int32_t top = kBarBottom + (form.picAcnt.Visible() ? editor.height + kGap : 0);
  MoveTop(form.SSTab2, top);
  MoveTop(form.Grid2, top + kTabStrip);
  LayoutLedgerSide(form);
}

void LayoutLedgerSide(frmZj& form) {
  const int32_t inner = InnerHeight(form);
  const int32_t gap = form.fraKhMemo.Visible() ? form.fraKhMemo.GetBounds().height - 60 : 0;
  SetHeight(form.SSTab2, inner - form.SSTab2.GetBounds().top - gap);
  MoveTop(form.fraFilter, inner - form.fraFilter.GetBounds().height - gap - 40);
  MoveTop(form.fraTotal, form.fraFilter.GetBounds().top - form.fraTotal.GetBounds().height + 100);
  SetHeight(form.Grid2, form.fraTotal.GetBounds().top - form.Grid2.GetBounds().top + 80);
}

}  // namespace qvzj
