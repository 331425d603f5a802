#include "forms/gates.h"

#include "platform/basic/number.h"
#include "screen/frmZj.h"
#include "services/context.h"
#include "services/gate.h"
#include "services/query.h"

namespace qvzj {
namespace {

// Suites without a function of their own for adding cards gate it like the card register.
std::string CardAddingFunction() {
  const std::string count =
      FirstValue("Select count(*) from tSysFunc Where model_name='mnuCardAdd'");
  return basic::Val(count) > 0 ? "mnuCardAdd" : "mnuCard";
}

/// Asks one function after another. A user who breaks the login off has said no once and is not
/// asked again by the next function: nothing is granted to nobody.
class Gates {
 public:
  void Ask(ui::Control& control, const std::string& function) {
    const bool granted = !refused_ && ModuleGate(function, 0, false) > 0;
    control.SetEnabled(granted);
    refused_ = Shared().UserName.empty();
  }

 private:
  bool refused_ = false;
};

void EnableAll(frmZj& form) {
  form.cmdManage.SetEnabled(true);
  form.mnuKhManage(1).SetEnabled(true);
  form.mnuKhContact.SetEnabled(true);
  form.cmdKhPrint.SetEnabled(true);
}

}  // namespace

void ApplyGates(frmZj& form) {
  EnableAll(form);
  if (Shared().UserName == Shared().ZgName) return;
  Gates gates;
  gates.Ask(form.cmdManage, form.mode == kCustomers ? "mnuZjComp" : "mnuZjAcnt");
  if (form.mode == kCustomers) gates.Ask(form.mnuKhManage(1), CardAddingFunction());
  gates.Ask(form.mnuKhContact, "mnuCardPlan");
  gates.Ask(form.cmdKhPrint, "mnuCardPrint");
}

}  // namespace qvzj
