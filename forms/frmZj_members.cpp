#include <string>
#include <utility>
#include <vector>

#include "forms/startup.h"
#include "ledger/print.h"
#include "register/list.h"
#include "register/search.h"
#include "register/unsaved.h"
#include "screen/frmZj.h"
#include "services/connect.h"
#include "services/context.h"

namespace qvzj {
namespace {

constexpr int16_t kRunNamedCustomer = 9;  // customers, opened on the one that the host named
constexpr int16_t kRunCustomers = 10;
constexpr int16_t kRunAccounts = 11;

int16_t StateOf(int16_t run_mode) {
  switch (run_mode) {
    case kRunNamedCustomer:
    case kRunCustomers:
      return kCustomers;
    case kRunAccounts:
      return kAccounts;
    default:
      return run_mode;
  }
}

// The host waits for no field: a text that may not be left as it is, and must not be searched for,
// goes back to its last valid one.
void SettleField(frmZj& form) {
  const ui::Control* field = form.Focused();
  if (!field || field->GetKind() != ui::Kind::TextBox) return;
  if (!form.SendTab()) form.UserKey(ui::Key::Named(ui::Key::Name::Escape));
}

// The screen opens on the customer that the host named, found again by its id.
void OpenNamedCustomer(frmZj& form) {
  LoadForm(form);
  SettleField(form);
  form.txtSeek(1).SetText(Shared().myName);
  form.chkSeek2.SetValue(0);
  form.Guard([&form] { SearchRecord(form, std::to_string(Shared().myTaskID)); });
}

// The host turns an open form to the other register: it starts up anew for that one, and closes
// when that fails.
void StartAnew(frmZj& form) {
  form.SetLoaded(false);
  try {
    LoadForm(form);
  } catch (...) {
    form.Unload();
    throw;
  }
}

// What the user is keying in an open form goes before the host's wish: the form is asked under its
// own title, and keeps it where it stays as it is.
bool MayTurn(frmZj& form, bool to_other_register, bool to_named_customer) {
  std::string wanted = std::exchange(Shared().Title, form.title);
  if (to_other_register && !MayCloseForm(form)) return false;
  if (!to_other_register && to_named_customer && !MayLeaveRecord(form)) return false;
  Shared().Title = std::move(wanted);
  return true;
}

}  // namespace

int16_t frmZj::State() const { return runMode; }

void frmZj::State(int16_t run_mode) {
  const int16_t previous = mode;
  const int16_t next = StateOf(run_mode) == kCustomers ? kCustomers : kAccounts;
  const bool turns = Loaded() && next != previous;
  if (Loaded() && !MayTurn(*this, turns, run_mode == kRunNamedCustomer)) return;
  runMode = StateOf(run_mode);
  mode = next;
  if (turns) StartAnew(*this);
  if (run_mode == kRunNamedCustomer) OpenNamedCustomer(*this);
}

void frmZj::getListJBR(int16_t source) {
  data::Recordset rows =
      Data().Open(source == 0 ? "select employee from Employees Order By employee"
                              : "select fName from tRsBasic Order By fName");
  std::vector<std::string> names;
  for (; !rows.Eof(); rows.MoveNext()) names.push_back(rows.Text(0));
  // Filling a list empties its text, which the user may be typing.
  const std::string typed = cboDoneMan.Text();
  cboDoneMan.SetItems(std::move(names));
  cboDoneMan.SetText(typed);
}

void frmZj::getListAcnt() { LoadAccountNames(*this); }

std::string frmZj::_getInvSet(int16_t series) {
  data::Recordset rows =
      Data().Open("select * from tJXC_InvSet where fSetNo=" + std::to_string(series) +
                  " And fSetNoUse_<>1 Order by fRowID");
  return rows.Eof() ? "" : rows.Text("fSetAutoNo");
}

void frmZj::gotoPrint(ui::Grid& grid, const std::string& title, const std::string& report,
                      const std::string& extra) {
  PrintGrid(*this, grid, title, report, extra);
}

}  // namespace qvzj
