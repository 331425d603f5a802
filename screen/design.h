#pragma once

namespace qvzj {

struct frmZj;

/// No register record is current: its name is empty and its id is 0, the record page and the detail
/// are empty. An entry that is keyed for the record until now has to be given another one.
void ForgetRecord(frmZj& form);
/// Puts everything that changes while the form is worked with back to how a fresh form opens:
/// no current record, no entry shown, panels hidden, all filters off.
void ResetForm(frmZj& form);

}  // namespace qvzj
