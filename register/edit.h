#pragma once

namespace qvzj {

struct frmZj;

/// Connects the register menu and the buttons that add, change and delete records.
void ConnectRegisterEdit(frmZj& form);

}  // namespace qvzj
