#pragma once

#include <string>

namespace qvzj {

struct frmZj;

/// Connects the events of the filter panel.
void ConnectFilter(frmZj& form);
/// The filter panel as a condition on the ledger table (alias `b`), without the word "Where";
/// never empty.
std::string LedgerCondition(const frmZj& form);

}  // namespace qvzj
