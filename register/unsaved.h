#pragma once

namespace qvzj {

struct frmZj;

/// Whether something stands on the record page or in the detail frame that was typed and not saved,
/// so that no way out of them loses that unasked.

/// What the record page shows now counts as nothing typed.
void RecordAtRest(frmZj& form);
/// The same for the detail text.
void DetailAtRest(frmZj& form);

/// True while a new record is being keyed: the boxes are its own, whatever record is current.
bool KeyingNewRecord(const frmZj& form);
/// True when a record is being keyed, new or to be changed, and differs from what it was at rest.
bool RecordUnsaved(const frmZj& form);
/// True when the open detail text differs from what it was at rest.
bool DetailUnsaved(const frmZj& form);

// Each asks about what is unsaved; true when nothing is, or when the user gives it up.

bool MayGiveUpRecord(const frmZj& form);
bool MayGiveUpDetail(const frmZj& form);
/// Before another record becomes current: about the present one and its detail. A new record that
/// is being keyed stays. What is given up counts as nothing typed from then on.
bool MayLeaveRecord(frmZj& form);
/// Before the form is closed or starts up anew: about everything on it.
bool MayCloseForm(const frmZj& form);

}  // namespace qvzj
