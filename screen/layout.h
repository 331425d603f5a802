#pragma once

namespace qvzj {

struct frmZj;

/// Places every control for the form's present inner size. A normal window below 12000 x 8565
/// twips, and a minimised one, keeps its previous arrangement.
void LayoutForm(frmZj& form);
/// The vertical arrangement of the ledger side around the detail frame.
void LayoutLedgerSide(frmZj& form);

}  // namespace qvzj
