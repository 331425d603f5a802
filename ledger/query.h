#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ledger/rows.h"

namespace qvzj {

struct frmZj;

/// A ledger that was read and computed and only waits to be shown: nothing can fail any more.
struct ReadyLedger {
  std::string source;                   ///< the tables of its statement
  std::string where;                    ///< the condition of its statement, "" for none
  LedgerRows rows;                      ///< none when amounts are missing
  MissingAmounts missing;               ///< what ShowLedger then reports
  int32_t selected = 0;                 ///< row of the entry shown last, else 1; 0 without rows
  std::optional<std::string> currency;  ///< of the selected entry; empty for no value
};

/// Reads the entries under `condition` and the selection option for the register record of id
/// `record`, with signed amounts, running balances and totals. The form stays as it is.
ReadyLedger ReadLedger(const frmZj& form, const std::string& condition, const std::string& record);
/// Fills the ledger grid and the totals, and shows the selected entry in the editor unless a new
/// one is being keyed there. Where amounts are missing the ledger stays empty and a box says so.
void ShowLedger(frmZj& form, ReadyLedger&& ledger);
/// Both for the current record. A ledger that cannot be read leaves an empty one and totals of 0.
void LoadLedger(frmZj& form, const std::string& condition);

}  // namespace qvzj
