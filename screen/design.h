#pragma once

#include <cstdint>

namespace qvzj {

struct frmZj;

/// Writes the captions that the string table does not carry, in a language (0 simplified, 1
/// traditional Chinese). Some of them belong to the form's fixed design and read the same in both.
void DesignCaptions(frmZj& form, int16_t language);
/// No register record is current: the name says so, its id is 0, the record page and the detail are
/// empty. An entry that is keyed for the record until now has to be given another one.
void ForgetRecord(frmZj& form);
/// Puts everything that changes while the form is worked with back to how a fresh form opens:
/// no current record, no entry shown, panels hidden, all filters off.
void ResetForm(frmZj& form);

}  // namespace qvzj
