#pragma once

#include <string>

#include "platform/data/row_texts.h"

namespace qvzj {

struct frmZj;

/// Connects the detail frame and the contact menu.
void ConnectRegisterDetail(frmZj& form);
/// The detail of the record of that id as its row holds it; an empty row when the id is no number
/// or 0, or the record is gone.
data::RowTexts ReadRegisterDetail(const frmZj& form, const std::string& id);
/// Shows a detail that was read.
void ShowRegisterDetail(frmZj& form, data::RowTexts&& detail);
/// Shows the detail text of the record of that id; empty when it is no number or 0.
void LoadRegisterDetail(frmZj& form, const std::string& id);
/// Stores the detail text of the current record and says so; where somebody else has changed it
/// since it was shown, shows it anew instead and says that.
void SaveRegisterDetail(frmZj& form);

}  // namespace qvzj
