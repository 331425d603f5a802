#pragma once

#include <string>

namespace qvzj {

struct frmZj;

/// Refills the ledger grid with the entries under `condition` and the selection option, with
/// signed amounts, running balances, colours and totals, and shows the entry last shown again.
void LoadLedger(frmZj& form, const std::string& condition);

}  // namespace qvzj
