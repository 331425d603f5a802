#pragma once

namespace qvzj {

struct frmZj;

/// The least inner size (twips) for which a normal window is arranged anew.
inline constexpr int kLeastWidth = 12000;
inline constexpr int kLeastHeight = 8565;

/// Places every control for the form's present inner size. A normal window below 12000 x 8565
/// twips, and a minimised one, keeps its previous arrangement. A size that no window has (below 0,
/// or above 100,000,000) counts as the nearest one.
void LayoutForm(frmZj& form);
/// The vertical arrangement of the ledger side around the detail frame.
void LayoutLedgerSide(frmZj& form);
/// Makes room for the entry editor above the ledger, or gives it back: call it after `picAcnt` was
/// shown or hidden. Works for a window of any size.
void LayoutEditor(frmZj& form);

}  // namespace qvzj
