#include "ledger/captions.h"

#include "platform/basic/text.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"
#include "services/form_texts.h"
#include "services/strings.h"
#include "services/text_ids.h"

namespace qvzj {
namespace {

using namespace text_id;

// The noun that the mode's captions are made of: customer or account.
std::string ModeWord(const frmZj& form) {
  return LoadText(form.mode == kCustomers ? kCustomer : kAccount);
}

// "按[…]排序": order by what stands in the brackets.
std::string OrderItem(const std::string& by) {
  return LoadText(kBy) + "[" + by + "]" + LoadText(kSort);
}

void CaptionButtons(frmZj& form) {
  const std::string entry = LoadText(kEntry);
  form.cmdKhSeek.SetCaption(LoadText(kSearch) + "(&S)");
  form.cmdKhMemo.SetCaption(LoadText(kDetail) + "(&M)");
  form.cmdKhPrint.SetCaption(LoadText(kPrint) + "(&P)");
  form.cmdAction(kActionView).SetCaption(entry + "查看(&V)");
  form.cmdAction(kActionNew).SetCaption(entry + LoadText(kAdd) + "(&N)");
  form.cmdAction(kActionChange).SetCaption(entry + LoadText(kChange) + "(&E)");
  form.cmdAction(kActionDelete).SetCaption(entry + LoadText(kDelete) + "(&D)");
  form.cmdAction(kActionCheck).SetCaption(entry + LoadText(kCheck) + "(&K)");
  form.cmdPrint.SetCaption(entry + LoadText(kPrint) + "(&P)");
  form.cmdAcntRefresh.SetCaption(LoadText(kRefresh) + "(&R)");
  form.cmdTitleClose.SetCaption("×");
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
  form.SSTab2.SetTabCaption(LedgerTab::Both, LoadText(kAccountLedger));
  form.SSTab2.SetTabCaption(LedgerTab::In, LoadText(kIn));
  form.SSTab2.SetTabCaption(LedgerTab::Out, LoadText(kOut));
  form.lblTotal(TotalBox::MoneyAIn).SetCaption(LoadText(kOpening) + ":");
  form.lblTotal(TotalBox::MoneyBIn).SetCaption(LoadText(kIn) + LoadText(kAmount) + ":");
  form.lblTotal(TotalBox::MoneyBOut).SetCaption(LoadText(kOut) + LoadText(kAmount) + ":");
  form.lblTotal(TotalBox::Balance).SetCaption(LoadText(kAccount) + LoadText(kBalance) + ":");
}

void CaptionCustomersMode(frmZj& form) {
  form.SetCaption(LoadText(kCustomersTitle));
  form.SSTab2.SetTabCaption(LedgerTab::Both, LoadText(kCustomerLedger));
  form.SSTab2.SetTabCaption(LedgerTab::In, LoadText(kReceivable) + "/" + LoadText(kReceived));
  form.SSTab2.SetTabCaption(LedgerTab::Out, LoadText(kPayable) + "/" + LoadText(kPaid));
  form.lblTotal(TotalBox::MoneyAIn).SetCaption(LoadText(kReceivable) + LoadText(kAmount) + ":");
  form.lblTotal(TotalBox::MoneyBIn).SetCaption(LoadText(kReceived) + LoadText(kAmount) + ":");
  form.lblTotal(TotalBox::BalanceIn).SetCaption(LoadText(kReceivable) + LoadText(kBalance) + ":");
  form.lblTotal(TotalBox::MoneyAOut).SetCaption(LoadText(kPayable) + LoadText(kAmount) + ":");
  form.lblTotal(TotalBox::MoneyBOut).SetCaption(LoadText(kPaid) + LoadText(kAmount) + ":");
  form.lblTotal(TotalBox::Balance).SetCaption(LoadText(kPayable) + LoadText(kBalance) + ":");
}

void CaptionRegister(frmZj& form) {
  const std::string word = ModeWord(form);
  CaptionNoRecord(form);
  form.mnuKh.SetCaption(LoadText(kCustomer));
  form.mnuKhManage(RecordAction::Add).SetCaption(word + LoadText(kAdd));
  form.mnuKhManage(RecordAction::Change).SetCaption(word + LoadText(kChange));
  form.mnuKhManage(RecordAction::Delete).SetCaption(word + LoadText(kDelete));
  form.mnuKhContact.SetCaption(word + LoadText(kContact) + "(&T)");
  form.SSTab1.SetTabCaption(RegisterTab::List, word + LoadText(kList));
  form.SSTab1.SetTabCaption(RegisterTab::Record, word + LoadText(kManage));
  form.SSTab1.SetTabCaption(RegisterTab::Search, LoadText(kSearchPage));
  form.lblKhMemo.SetCaption(word + LoadText(kDetail) + ":");
  form.cmdManage.SetCaption(word + "(&A)");
  form.lblKhOrder.SetCaption(LoadText(kSort) + ":");
  form.OptSelect(Selection::All).SetCaption(LoadText(kAll) + word);
  form.OptSelect(Selection::Searched).SetCaption(LoadText(kSelected) + word);
  form.OptSelect(Selection::Single).SetCaption(LoadText(kSingle) + word);
}

// Customer types and the search page, which shows the rule that goes with them.
void CaptionSearch(frmZj& form) {
  form.fraKhType.SetCaption(LoadText(form_text::kCustomerType));
  for (int i = 0; i < form.optKhType.Count(); ++i) {
    const std::string type = LoadText(form_text::kCustomerTypes[static_cast<size_t>(i)]);
    form.optKhType(i).SetCaption(type);
    form.optSeek(i).SetCaption(i == CustomerType::All ? LoadText(kAll) : type);
  }
  for (int i = 0; i < form.chkSeek.Count(); ++i) {
    form.chkSeek(i).SetCaption(LoadText(form_text::kSearchFields[static_cast<size_t>(i)]));
  }
  form.chkSeek2.SetCaption(LoadText(form_text::kOnlyWithEntries));
  form.txtSeekMsg.SetText(LoadText(form_text::kTypeRule));
}

void CaptionFilter(frmZj& form) {
  form.chkDate(FilterBox::From).SetCaption(LoadText(kFromDate) + ":");
  form.chkDate(FilterBox::To).SetCaption(LoadText(kToDate) + ":");
  form.chkVerify(FilterBox::Checked).SetCaption(LoadText(kCheckedState));
  form.chkVerify(FilterBox::Unchecked).SetCaption(LoadText(kUncheckedState));
  form.chkID(FilterBox::AcntNo).SetCaption(LoadText(kVoucher) + ":");
  form.chkID(FilterBox::InvID).SetCaption(LoadText(kDocument) + ":");
  form.chkID(FilterBox::OrderID).SetCaption(LoadText(kOrder) + ":");
  form.chkBrief.SetCaption(LoadText(kSummary) + ":");
  form.chkUser(FilterBox::User).SetCaption(LoadText(kUser) + ":");
  form.chkUser(FilterBox::Doneman).SetCaption(LoadText(kHandler) + ":");
  form.chkUser(FilterBox::Checker).SetCaption(LoadText(kChecker) + ":");
  form.lblHb2.SetCaption(LoadText(form_text::kCurrency));
}

void CaptionEditor(frmZj& form) {
  const bool customers = form.mode == kCustomers;
  form.optType2(Direction::In).SetCaption(LoadText(kIn));
  form.optType2(Direction::Out).SetCaption(LoadText(kOut));
  form.chkAcntInit.SetCaption(LoadText(kOpening));
  form.lblAcnt2(EntryBox::Date).SetCaption(LoadText(kDate));
  form.lblAcnt2(EntryBox::Number).SetCaption(LoadText(kVoucher));
  form.lblAcnt2(EntryBox::Record).SetCaption(ModeWord(form) + (customers ? LoadText(kUnit) : ""));
  form.lblAcnt2(EntryBox::MoneyA)
      .SetCaption(customers ? LoadText(kReceivable) + "/" + LoadText(kPayable)
                            : LoadText(kOpening));
  form.lblAcnt2(EntryBox::MoneyB)
      .SetCaption(form.optType2(Direction::In).Caption() + LoadText(kAmount));
  form.lblAcnt2(EntryBox::Balance).SetCaption(LoadText(kBalance));
  form.lblAcnt2(EntryBox::Brief).SetCaption(LoadText(kSummary));
  form.lblAcnt2(EntryBox::InvID).SetCaption(LoadText(kDocument));
  form.lblAcnt2(EntryBox::OrderID).SetCaption(LoadText(kOrder));
  form.lblAcnt2(EntryBox::User).SetCaption(LoadText(kUser));
  form.lblAcnt2(EntryBox::Doneman).SetCaption(LoadText(kHandler));
  form.lblAcnt2(EntryBox::Checker).SetCaption(LoadText(kChecker));
  form.chkAcntName.SetCaption(LoadText(kFunds) + LoadText(kAccount));
  form.lblHb.SetCaption(LoadText(form_text::kCurrency));
  form.lblHbRate.SetCaption(LoadText(form_text::kRate));
}

void CaptionRecordPage(frmZj& form) {
  form.lblAcnt(RecordBox::Code).SetCaption(LoadText(kCode));
  form.lblAcnt(RecordBox::Name).SetCaption(form.lblAcnt2(EntryBox::Record).Caption());
  form.lblAcnt(RecordBox::Contact).SetCaption(LoadText(form_text::kContactPerson));
  form.lblAcnt(RecordBox::Bank).SetCaption(LoadText(form_text::kBank));
  form.lblAcnt(RecordBox::BankAccount).SetCaption(LoadText(kAccountNumber));
  form.lblAcnt(RecordBox::Summary).SetCaption(LoadText(kSummary));
  form.lblAcnt(RecordBox::Region).SetCaption(LoadText(kRegion));
  form.lblAcnt(RecordBox::City).SetCaption(LoadText(kCity));
  form.lblAcnt(RecordBox::Postcode).SetCaption(LoadText(kPostcode));
  form.lblAcnt(RecordBox::Telephone).SetCaption(LoadText(kTelephone));
  form.lblAcnt(RecordBox::Fax).SetCaption(LoadText(kFax));
}

// One column a label under the label's caption, and hidden ones behind them.
void SetUpGrid(ui::Grid& grid, const ui::Array<ui::Label>& labels, int hidden) {
  grid.SetColumnCount(labels.Count() + hidden);
  for (int i = 0; i < labels.Count(); ++i) grid.SetHeader(i + 1, labels(i).Caption());
  for (int i = 1; i <= hidden; ++i) grid.SetColumnHidden(labels.Count() + i, true);
}

}  // namespace

void CaptionNoRecord(frmZj& form) { form.lblKhName.SetCaption(LoadText(form_text::kNoRecord)); }

void SetCaptions(frmZj& form) {
  CaptionButtons(form);
  if (form.mode == kCustomers) {
    CaptionCustomersMode(form);
  } else {
    CaptionAccountsMode(form);
  }
  form.cboKhOrder.AddItem(OrderItem(ModeWord(form)));
  CaptionRegister(form);
  CaptionSearch(form);
  CaptionFilter(form);
  CaptionEditor(form);
  CaptionRecordPage(form);
  SetUpGrid(form.Grid1, form.lblAcnt, 2);
  SetUpGrid(form.Grid2, form.lblAcnt2, 6);
}

}  // namespace qvzj
