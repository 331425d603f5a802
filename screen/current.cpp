#include "screen/current.h"

#include "platform/basic/number.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"

namespace qvzj {
namespace {

int Action(const ui::Button& save) { return basic::ToInt32(basic::Val(save.Tag())); }

}  // namespace

const std::string& ShownEntryId(const frmZj& form) { return form.chkAcntInit.Tag(); }

const std::string& ShownReference(const frmZj& form) { return form.cmdAcntCancel.Tag(); }

const std::string& EntryRecordId(const frmZj& form) {
  return form.txtAcnt2(EntryBox::Record).Tag();
}

const std::string& LinkedAccountId(const frmZj& form) { return form.cboAcntName.Tag(); }

const std::string& CurrentRecordId(const frmZj& form) { return form.lblKhName.Tag(); }

int ArmedAction(const frmZj& form) { return Action(form.cmdAcntSave); }

int ArmedRecordAction(const frmZj& form) { return Action(form.cmdKhSave); }

}  // namespace qvzj
