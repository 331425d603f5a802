#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/data/row_texts.h"

namespace qvzj {

struct frmZj;

/// Two people at one entry: whoever saves second must have seen what the first one did.

/// What the row of an entry held when the ledger grid's row was read, with the currency that was
/// read for it (empty: no value).
data::RowTexts EntryRow(const frmZj& form, int32_t row, const std::optional<std::string>& currency);
/// Reads the entry in the editor again and tells whether its row still holds what was shown. One
/// statement.
bool EntryUnchanged(const frmZj& form);
/// Tells the user that what is on the screen is shown anew, because somebody else has changed it.
void ReportChangedMeanwhile();

}  // namespace qvzj
