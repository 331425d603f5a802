#pragma once

#include <string>

namespace qvzj {

struct frmZj;

/// Connects the refresh button and the lists that reload the register.
void ConnectRegisterList(frmZj& form);
/// Refills the register grid with the records under `condition` ("" = all), selects the current
/// record again, or the one of id `record`, and reloads the ledger. Where neither is listed the
/// first record becomes the current one.
void LoadRegister(frmZj& form, const std::string& condition);
void LoadRegister(frmZj& form, const std::string& condition, const std::string& record);
/// Refills the money accounts of the entry editor (`cboAcntName`).
void LoadAccountNames(frmZj& form);

}  // namespace qvzj
