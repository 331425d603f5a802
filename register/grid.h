#pragma once

#include <cstdint>

namespace qvzj {

struct frmZj;

/// Connects the events of the register grid.
void ConnectRegisterGrid(frmZj& form);
/// Makes the record of a grid row (1-based) the current one: fills the record page, the name label
/// and, where it is open, the detail text. A detail that cannot be read changes nothing.
void ShowRegisterRow(frmZj& form, int32_t row);

}  // namespace qvzj
