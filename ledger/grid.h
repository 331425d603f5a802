#pragma once

namespace qvzj {

struct frmZj;

/// Connects the events of the ledger grid and of its tab strip.
void ConnectLedgerGrid(frmZj& form);
/// Writes the headers of the three amount columns for the mode and the ledger tab in front.
void WriteAmountHeaders(frmZj& form);

}  // namespace qvzj
