#pragma once

#include <string>

namespace qvzj {

struct frmZj;

/// Connects the detail frame and the contact menu.
void ConnectRegisterDetail(frmZj& form);
/// Shows the detail text of the record of that id; empty when it is no number or 0.
void LoadRegisterDetail(frmZj& form, const std::string& id);
/// Stores the detail text of the current record and says so.
void SaveRegisterDetail(frmZj& form);

}  // namespace qvzj
