#include "forms/gates.h"

#include "platform/basic/number.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"
#include "services/context.h"
#include "services/form_texts.h"
#include "services/gate.h"
#include "services/query.h"
#include "services/strings.h"

namespace qvzj {
namespace {

// Suites without a function of their own for adding cards gate it like the card register.
std::string CardAddingFunction() {
  const std::string count =
      FirstValue("Select count(*) from tSysFunc Where model_name='mnuCardAdd'");
  return basic::Val(count) > 0 ? "mnuCardAdd" : "mnuCard";
}

// Where nobody is logged in yet, the gate lets the user log in first; each function asks for
// itself.
void Ask(ui::Control& control, const std::string& function) {
  control.SetEnabled(ModuleGate(function, 0, false) > 0, LoadText(form_text::kNoPermission));
}

void EnableAll(frmZj& form) {
  form.cmdManage.SetEnabled(true);
  form.mnuKh.SetEnabled(true);
  form.mnuKhManage(RecordAction::Add).SetEnabled(true);
  form.mnuKhContact.SetEnabled(true);
  form.cmdKhPrint.SetEnabled(true);
}

}  // namespace

void ApplyGates(frmZj& form) {
  EnableAll(form);
  if (Shared().UserName == Shared().ZgName) return;
  Ask(form.cmdManage, form.mode == kCustomers ? "mnuZjComp" : "mnuZjAcnt");
  form.mnuKh.SetEnabled(form.cmdManage.Enabled(),
                        form.cmdManage.DisabledReason());  // the button's menu has no other way in
  if (form.mode == kCustomers) Ask(form.mnuKhManage(RecordAction::Add), CardAddingFunction());
  Ask(form.mnuKhContact, "mnuCardPlan");
  Ask(form.cmdKhPrint, "mnuCardPrint");
}

}  // namespace qvzj
