#include "ledger/print.h"

#include "ledger/subject.h"
#include "platform/basic/errors.h"
#include "platform/surroundings.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"
#include "services/context.h"

namespace qvzj {
namespace {

constexpr const char* kListSuffix = "清单";
constexpr int16_t kRegisterPrint = 0;
constexpr int16_t kLedgerPrint = 1;

// Captions and values of the totals panel; money accounts have no pairs 2 and 3.
std::vector<std::string> Totals(const frmZj& form) {
  std::vector<std::string> totals;
  for (int i = form.txtTotal.First(); i <= form.txtTotal.Last(); ++i) {
    if (form.mode != kCustomers && (i == TotalBox::BalanceIn || i == TotalBox::MoneyAOut)) continue;
    totals.push_back(form.lblTotal(i).Caption());
    totals.push_back(form.txtTotal(i).Text());
  }
  return totals;
}

DataAccess CurrentAccess() {
  const Context& context = Shared();
  return {context.UserPath, context.Password, context.SQLData, context.UserID, context.Default};
}

std::string ListTitle(const ui::Tabs& tabs) { return tabs.TabCaption(0) + kListSuffix; }

void PrintLedger(frmZj& form) {
  form.printKind = kLedgerPrint;
  PrintGrid(form, form.Grid2, ListTitle(form.SSTab2), form.mode == kCustomers ? "qvzj_0" : "qvzj_1",
            "");
}

void PrintRegister(frmZj& form) {
  form.printKind = kRegisterPrint;
  PrintGrid(form, form.Grid1, ListTitle(form.SSTab1), "", "");
}

}  // namespace

void ConnectPrint(frmZj& form) {
  form.cmdPrint.onClick = [&form] { PrintLedger(form); };
  form.cmdKhPrint.onClick = [&form] { PrintRegister(form); };
  const auto columns = [&form] { return form.mode == kCustomers ? "customers" : "accounts"; };
  form.Grid1.offers = {&form.cmdKhPrint, [&form] { return ListTitle(form.SSTab1); }, {}, columns};
  form.Grid2.offers = {&form.cmdPrint, [&form] { return ListTitle(form.SSTab2); },
                       [&form] { return Totals(form); }, columns};
}

void PrintGrid(frmZj& form, ui::Grid& grid, const std::string& title, const std::string& report,
               const std::string& extra) {
  if (grid.RowCount() == 0) return;
  if (!Around().print) throw Error("未安装打印组件 qvPrint_ADO.qvPrint !");
  PrintJob job;
  job.kind = form.printKind;
  job.language = Shared().Language;
  job.totals = Totals(form);
  job.grid = &grid;
  job.access = CurrentAccess();
  job.company = Shared().CompName;
  job.user = Shared().UserName;
  job.title = title;
  job.report = report;
  job.extra = extra;
  if (job.kind == kLedgerPrint) {
    job.facts = {form.ledgerShown.subject, LedgerInRenminbi(form)};
  }
  Around().print->Print(job);
}

}  // namespace qvzj
