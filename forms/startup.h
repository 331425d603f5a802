#pragma once

namespace qvzj {

struct frmZj;

/// Loads the main form in its run mode if it is not loaded yet: lays it out, captions it, opens
/// the data, fills the lists, upgrades the ledger table, asks the function gates and loads the
/// register. Errors rise to the caller and leave the form unloaded.
void LoadForm(frmZj& form);

}  // namespace qvzj
