#include "ledger/unsaved.h"

#include "ledger/entry.h"
#include "screen/current.h"
#include "screen/frmZj.h"
#include "services/form_texts.h"
#include "services/messages.h"

namespace qvzj {
namespace {

void Settle(frmZj& form, EntryColumn column) {
  const auto at = static_cast<size_t>(column);
  if (form.entryAtRest.empty()) return;
  form.entryAtRest[at] = EntryInEditor(form).texts[at];
}

bool EntryIsKeyed(const frmZj& form) {
  const int action = ArmedAction(form);
  return form.picAcnt.Visible() && (action == kActionNew || action == kActionChange);
}

// A date that is still being typed has not reached the entry yet.
bool DateIsTyped(const frmZj& form) {
  return form.dtpAcntDate.Keyed().Meant() != form.dtpAcntDate.Value();
}

}  // namespace

void EntryAtRest(frmZj& form) {
  const EntryTexts entry = EntryInEditor(form);
  form.entryAtRest.assign(entry.texts.begin(), entry.texts.end());
}

void NumberAtRest(frmZj& form) { Settle(form, EntryColumn::AcntNo); }

void RecordOfEntryAtRest(frmZj& form) {
  Settle(form, EntryColumn::CompID);
  Settle(form, EntryColumn::Type2);
}

bool EntryUnsaved(const frmZj& form) {
  if (!EntryIsKeyed(form)) return false;
  if (DateIsTyped(form)) return true;
  const EntryTexts entry = EntryInEditor(form);
  return form.entryAtRest != std::vector<std::string>(entry.texts.begin(), entry.texts.end());
}

std::string EntryWork(const frmZj& form) { return form.lblAcntTitle.Caption(); }

bool MayGiveUp(const std::vector<std::string>& works) {
  if (works.empty()) return true;
  std::string question;
  for (const std::string& work : works) question += "[" + work + "]";
  return Message(question + LoadText(form_text::kNotSaved), box::kQuestionOkCancel) == Answer::Ok;
}

bool MayGiveUpEntry(const frmZj& form) {
  return !EntryUnsaved(form) || MayGiveUp({EntryWork(form)});
}

}  // namespace qvzj
