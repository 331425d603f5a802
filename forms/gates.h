#pragma once

namespace qvzj {

struct frmZj;

/// Enables what the suite's function table grants the user: the register menu, adding customers,
/// visit records and the register print. The user named in `ZgName` is asked nothing and keeps
/// everything enabled.
void ApplyGates(frmZj& form);

}  // namespace qvzj
