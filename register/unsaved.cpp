#include "register/unsaved.h"

#include <string>
#include <vector>

#include "ledger/unsaved.h"
#include "screen/current.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"

namespace qvzj {
namespace {

using Works = std::vector<std::string>;

std::vector<std::string> RecordTexts(const frmZj& form) {
  std::vector<std::string> texts;
  for (int i = 0; i < form.txtAcnt.Count(); ++i) texts.push_back(form.txtAcnt(i).Text());
  for (int i = 0; i < form.optKhType.Count(); ++i) {
    texts.push_back(form.optKhType(i).Selected() ? "1" : "0");
  }
  return texts;
}

bool RecordIsKeyed(const frmZj& form) {
  const int action = ArmedRecordAction(form);
  return form.cmdKhSave.Visible() &&
         (action == RecordAction::Add || action == RecordAction::Change);
}

std::string RecordWork(const frmZj& form) { return form.cmdKhSave.Caption(); }

// The caption of the detail text without its colon.
std::string DetailWork(const frmZj& form) {
  std::string caption = form.lblKhMemo.Caption();
  if (caption.ends_with(':')) caption.pop_back();
  return caption;
}

}  // namespace

void RecordAtRest(frmZj& form) { form.recordAtRest = RecordTexts(form); }

void DetailAtRest(frmZj& form) { form.detailAtRest = form.txtKhMemo.Text(); }

bool KeyingNewRecord(const frmZj& form) {
  return form.cmdKhSave.Visible() && ArmedRecordAction(form) == RecordAction::Add;
}

bool RecordUnsaved(const frmZj& form) {
  return RecordIsKeyed(form) && RecordTexts(form) != form.recordAtRest;
}

bool DetailUnsaved(const frmZj& form) {
  return form.fraKhMemo.Visible() && form.txtKhMemo.Text() != form.detailAtRest;
}

bool MayGiveUpRecord(const frmZj& form) {
  return !RecordUnsaved(form) || MayGiveUp({RecordWork(form)});
}

bool MayGiveUpDetail(const frmZj& form) {
  return !DetailUnsaved(form) || MayGiveUp({DetailWork(form)});
}

bool MayLeaveRecord(frmZj& form) {
  Works works;
  if (RecordUnsaved(form) && !KeyingNewRecord(form)) works.push_back(RecordWork(form));
  if (DetailUnsaved(form)) works.push_back(DetailWork(form));
  if (!MayGiveUp(works)) return false;
  if (!KeyingNewRecord(form)) RecordAtRest(form);
  DetailAtRest(form);
  return true;
}

bool MayCloseForm(const frmZj& form) {
  Works works;
  if (EntryUnsaved(form)) works.push_back(EntryWork(form));
  if (RecordUnsaved(form)) works.push_back(RecordWork(form));
  if (DetailUnsaved(form)) works.push_back(DetailWork(form));
  return MayGiveUp(works);
}

}  // namespace qvzj
