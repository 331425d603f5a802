#include "ledger/voucher.h"

#include <string>

#include "ledger/unsaved.h"
#include "screen/current.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"
#include "services/form_texts.h"
#include "services/numbering.h"
#include "services/query.h"
#include "services/strings.h"

namespace qvzj {
namespace {

const std::string& Number(const frmZj& form) { return form.txtAcnt2(EntryBox::Number).Text(); }

bool Proposed(const frmZj& form) {
  return !form.proposedNumber.empty() && Number(form) == form.proposedNumber;
}

// Entries that bear the number, -1 when they cannot be counted. Customers and money accounts
// share one series.
int16_t EntriesWith(const std::string& number, const std::string& but = "") {
  const std::string others = but.empty() ? "" : " And fID<>" + but;
  return CountRows("tAccountDetail", "fAcntNo='" + number + "'" + others);
}

void ShowUse(frmZj& form, int16_t entries) {
  const bool used = entries > 0;
  form.lblNumberUse.SetCaption(used ? LoadText(form_text::kNumberUse) + std::to_string(entries) +
                                          LoadText(form_text::kNumberUseEnd)
                                    : "");
  form.lblNumberUse.SetVisible(used);
  form.lblAcnt2(EntryBox::Checker).SetVisible(!used);
}

// Typed by the user, and fit for a statement?
bool Typed(const frmZj& form) {
  const std::string& number = Number(form);
  return !number.empty() && number.find('\'') == std::string::npos && !Proposed(form);
}

}  // namespace

void ProposeNumber(frmZj& form) {
  form.proposedNumber = NextNumber(form.dtpAcntDate.Value(), form.numberTemplate, kLedgerNumber);
  form.txtAcnt2(EntryBox::Number).SetText(form.proposedNumber);
  NumberAtRest(form);
  ShowUse(form, 0);
}

void TakeFreeNumber(frmZj& form) {
  // A number that cannot be counted is taken for one in use: asking for the next one then says why.
  if (Proposed(form) && EntriesWith(Number(form)) != 0) ProposeNumber(form);
}

void ForgetNumber(frmZj& form) {
  form.proposedNumber.clear();
  ShowUse(form, 0);
}

void ShowNumberUse(frmZj& form) {
  const int action = ArmedAction(form);
  const bool change = action == kActionChange;
  if ((!change && action != kActionNew) || !Typed(form)) return ShowUse(form, 0);
  if (change && Number(form) == ShownReference(form)) return ShowUse(form, 0);
  ShowUse(form, EntriesWith(Number(form), change ? ShownEntryId(form) : ""));
}

}  // namespace qvzj
