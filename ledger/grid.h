#pragma once

#include <cstdint>

#include "platform/ui/grid.h"

namespace qvzj {

struct frmZj;

/// Connects the events of the ledger grid and of its tab strip.
void ConnectLedgerGrid(frmZj& form);
/// Writes the headers of the three amount columns for the mode and the ledger tab in front.
void WriteAmountHeaders(frmZj& form);
/// Turns the amounts and balances of the ledger grid into their negations, as coming to the payable
/// tab and leaving it does.
void NegateAmounts(ui::Grid& ledger);

/// What a click on a column header does to either grid: orders the rows by the column. A second
/// click on the same header turns the order; a new column keeps an ascending order, and starts
/// descending otherwise.
void SortByHeader(ui::Grid& grid, int32_t column);

}  // namespace qvzj
