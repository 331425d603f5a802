#pragma once

namespace qvzj {

struct frmZj;

/// Connects `cmdAcntSave` and `cmdAcntCancel`.
void ConnectSave(frmZj& form);
/// Carries out the armed action: stores a new or changed entry, deletes, checks or unchecks one,
/// reports it and refreshes the ledger.
void SaveEntry(frmZj& form);

}  // namespace qvzj
