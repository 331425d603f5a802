#pragma once

#include <string>

namespace qvzj {

struct frmZj;

/// What the form keeps in the tags of its controls, by name. Ids are the texts that go into
/// statements; "0" stands for none.

/// Id of the entry in the editor, in the tag of `chkAcntInit`.
const std::string& ShownEntryId(const frmZj& form);
/// Voucher number of the entry in the editor as it was loaded, in the tag of `cmdAcntCancel`; ""
/// for none.
const std::string& ShownReference(const frmZj& form);
/// Id of the customer or account that the entry in the editor belongs to, in the tag of
/// `txtAcnt2(2)`.
const std::string& EntryRecordId(const frmZj& form);
/// Id of the money account that the entry in the editor is linked to, in the tag of `cboAcntName`.
const std::string& LinkedAccountId(const frmZj& form);
/// Id of the current register record, in the tag of `lblKhName`.
const std::string& CurrentRecordId(const frmZj& form);
/// The armed action of the entry editor (kAction… of frmZj.h), in the tag of `cmdAcntSave`.
int ArmedAction(const frmZj& form);
/// The armed action of the record page (RecordAction), in the tag of `cmdKhSave`.
int ArmedRecordAction(const frmZj& form);

}  // namespace qvzj
