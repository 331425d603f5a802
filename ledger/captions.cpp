#include "ledger/captions.h"

#include "platform/basic/text.h"
#include "screen/frmZj.h"
#include "services/strings.h"
#include "services/text_ids.h"

namespace qvzj {
namespace {

using namespace text_id;

/// The noun that the mode's captions are made of: customer or account.
std::string ModeWord(const frmZj& form) {
  return LoadText(form.mode == kCustomers ? kCustomer : kAccount);
}

/// "按[…]排序": order by what stands in the brackets.
std::string OrderItem(const std::string& by) {
  return LoadText(kBy) + "[" + by + "]" + LoadText(kSort);
}

void CaptionButtons(frmZj& form) {
  const std::string entry = LoadText(kEntry);
  form.cmdKhSeek.SetCaption(LoadText(kSearch) + "(&S)");
  form.cmdKhMemo.SetCaption(LoadText(kDetail) + "(&M)");
  form.cmdKhPrint.SetCaption(LoadText(kPrint) + "(&P)");
  form.cmdAction(0).SetCaption(entry + "查看(&V)");
  form.cmdAction(1).SetCaption(entry + LoadText(kAdd) + "(&N)");
  form.cmdAction(2).SetCaption(entry + LoadText(kChange) + "(&E)");
  form.cmdAction(3).SetCaption(entry + LoadText(kDelete) + "(&D)");
  form.cmdAction(4).SetCaption(entry + LoadText(kCheck) + "(&K)");
  form.cmdPrint.SetCaption(entry + LoadText(kPrint) + "(&P)");
  form.cmdAcntRefresh.SetCaption(LoadText(kRefresh) + "(&R)");
  form.cmdExit.SetCaption(LoadText(kExit) + ">>");
  form.cmdSave.SetCaption(LoadText(kSave) + "(&S)");
  form.cmdAcntSave.SetCaption(form.cmdSave.Caption());
  form.cmdCancel.SetCaption(LoadText(kCancel) + ">>");
  form.cmdKhCancel.SetCaption(form.cmdCancel.Caption());
  form.cmdAcntCancel.SetCaption(form.cmdCancel.Caption());
  form.cboKhOrder.SetItems({OrderItem(LoadText(kCode))});
}

void CaptionAccountsMode(frmZj& form) {
  form.SetCaption(LoadText(kAccountsTitle));
  form.SSTab2.SetTabCaption(0, LoadText(kAccountLedger));
  form.SSTab2.SetTabCaption(1, LoadText(kIn));
  form.SSTab2.SetTabCaption(2, LoadText(kOut));
  form.lblTotal(0).SetCaption(LoadText(kOpening) + ":");
  form.lblTotal(1).SetCaption(LoadText(kIn) + LoadText(kAmount) + ":");
  form.lblTotal(4).SetCaption(LoadText(kOut) + LoadText(kAmount) + ":");
  form.lblTotal(5).SetCaption(LoadText(kAccount) + LoadText(kBalance) + ":");
  form.lblAcnt2(3).SetCaption(LoadText(kOpening));
}

void CaptionCustomersMode(frmZj& form) {
  form.SetCaption(LoadText(kCustomersTitle));
  form.SSTab1.SetTabCaption(2, LoadText(kSearchPage));
  form.SSTab2.SetTabCaption(0, LoadText(kCustomerLedger));
  form.SSTab2.SetTabCaption(1, LoadText(kReceivable) + "/" + LoadText(kReceived));
  form.SSTab2.SetTabCaption(2, LoadText(kPayable) + "/" + LoadText(kPaid));
  form.lblTotal(0).SetCaption(LoadText(kReceivable) + LoadText(kAmount) + ":");
  form.lblTotal(1).SetCaption(LoadText(kReceived) + LoadText(kAmount) + ":");
  form.lblTotal(2).SetCaption(LoadText(kReceivable) + LoadText(kBalance) + ":");
  form.lblTotal(3).SetCaption(LoadText(kPayable) + LoadText(kAmount) + ":");
  form.lblTotal(4).SetCaption(LoadText(kPaid) + LoadText(kAmount) + ":");
  form.lblTotal(5).SetCaption(LoadText(kPayable) + LoadText(kBalance) + ":");
}

void CaptionRegister(frmZj& form) {
  const std::string word = ModeWord(form);
  form.mnuKhManage(1).SetCaption(word + LoadText(kAdd));
  form.mnuKhManage(2).SetCaption(word + LoadText(kChange));
  form.mnuKhManage(3).SetCaption(word + LoadText(kDelete));
  form.mnuKhContact.SetCaption(word + LoadText(kContact) + "(&T)");
  form.SSTab1.SetTabCaption(0, word + LoadText(kList));
  form.SSTab1.SetTabCaption(1, word + LoadText(kManage));
  form.lblKhMemo.SetCaption(word + LoadText(kDetail) + ":");
  form.cmdManage.SetCaption(word + "(&A)");
  form.lblKhOrder.SetCaption(LoadText(kSort) + ":");
  form.OptSelect(0).SetCaption(LoadText(kAll) + word);
  form.OptSelect(1).SetCaption(LoadText(kSelected) + word);
  form.OptSelect(2).SetCaption(LoadText(kSingle) + word);
}

void CaptionFilter(frmZj& form) {
  form.chkDate(0).SetCaption(LoadText(kFromDate) + ":");
  form.chkDate(1).SetCaption(LoadText(kToDate) + ":");
  form.chkVerify(0).SetCaption(LoadText(kCheckedState));
  form.chkVerify(1).SetCaption(LoadText(kUncheckedState));
  form.chkID(0).SetCaption(LoadText(kVoucher) + ":");
  form.chkID(1).SetCaption(LoadText(kDocument) + ":");
  form.chkID(2).SetCaption(LoadText(kOrder) + ":");
  form.chkBrief.SetCaption(LoadText(kSummary) + ":");
}

void CaptionEditor(frmZj& form) {
  const bool customers = form.mode == kCustomers;
  form.optType2(1).SetCaption(LoadText(kIn));
  form.optType2(2).SetCaption(LoadText(kOut));
  form.chkAcntInit.SetCaption(LoadText(kOpening));
  form.lblAcnt2(0).SetCaption(LoadText(kDate));
  form.lblAcnt2(1).SetCaption(LoadText(kVoucher));
  form.lblAcnt2(2).SetCaption(ModeWord(form) + (customers ? LoadText(kUnit) : ""));
  form.lblAcnt2(4).SetCaption(form.optType2(1).Caption() + LoadText(kAmount));
  form.lblAcnt2(6).SetCaption(LoadText(kSummary));
  form.lblAcnt2(7).SetCaption(LoadText(kDocument));
  form.lblAcnt2(8).SetCaption(LoadText(kOrder));
  form.lblAcnt2(9).SetCaption(LoadText(kUser));
  form.lblAcnt2(10).SetCaption(LoadText(kHandler));
  form.lblAcnt2(11).SetCaption(LoadText(kChecker));
}

void CaptionRecordPage(frmZj& form) {
  form.lblAcnt(0).SetCaption(LoadText(kCode));
  form.lblAcnt(1).SetCaption(form.lblAcnt2(2).Caption());
  form.lblAcnt(4).SetCaption(LoadText(kAccountNumber));
  form.lblAcnt(5).SetCaption(LoadText(kSummary));
  form.lblAcnt(6).SetCaption(LoadText(kRegion));
  form.lblAcnt(7).SetCaption(LoadText(kCity));
  form.lblAcnt(8).SetCaption(LoadText(kPostcode));
  form.lblAcnt(9).SetCaption(LoadText(kTelephone));
  form.lblAcnt(10).SetCaption(LoadText(kFax));
}

/// One column a label under the label's caption, and hidden ones behind them.
void SetUpGrid(ui::Grid& grid, const ui::Array<ui::Label>& labels, int hidden) {
  grid.SetColumnCount(labels.Count() + hidden);
  for (int i = 0; i < labels.Count(); ++i) grid.SetHeader(i + 1, labels(i).Caption());
  for (int i = 1; i <= hidden; ++i) grid.SetColumnHidden(labels.Count() + i, true);
}

}  // namespace

void SetCaptions(frmZj& form) {
  CaptionButtons(form);
  if (form.mode == kCustomers) {
    CaptionCustomersMode(form);
  } else {
    CaptionAccountsMode(form);
  }
  form.cboKhOrder.AddItem(OrderItem(ModeWord(form)));
  CaptionRegister(form);
  CaptionFilter(form);
  CaptionEditor(form);
  CaptionRecordPage(form);
  SetUpGrid(form.Grid1, form.lblAcnt, 2);
  SetUpGrid(form.Grid2, form.lblAcnt2, 6);
}

}  // namespace qvzj
