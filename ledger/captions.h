#pragma once

namespace qvzj {

struct frmZj;

/// Writes every text of the form from the string table for the current language and mode, fills
/// the order list and sets up both grids' columns and headers.
void SetCaptions(frmZj& form);

}  // namespace qvzj
