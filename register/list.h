#pragma once

#include <string>

namespace qvzj {

struct frmZj;

/// Connects the refresh button and the lists that reload the register.
void ConnectRegisterList(frmZj& form);
/// Refills the register grid with the records under `condition` ("" = all), selects the current
/// record again and reloads the ledger.
void LoadRegister(frmZj& form, const std::string& condition);
/// Refills the money accounts of the entry editor (`cboAcntName`).
void LoadAccountNames(frmZj& form);

}  // namespace qvzj
