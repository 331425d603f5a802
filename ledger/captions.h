#pragma once

namespace qvzj {

struct frmZj;

/// Writes every text of the form for the current language and mode, fills the order list and sets
/// up both grids' columns and headers. A form that was never loaded bears no texts.
void SetCaptions(frmZj& form);
/// Says in the place of the current record's name that there is none.
void CaptionNoRecord(frmZj& form);

}  // namespace qvzj
