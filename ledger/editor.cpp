#include "ledger/editor.h"

#include <algorithm>

#include "ledger/entry.h"
#include "ledger/fields.h"
#include "ledger/unsaved.h"
#include "ledger/voucher.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "platform/surroundings.h"
#include "screen/current.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"
#include "screen/keys.h"
#include "screen/layout.h"
#include "services/context.h"
#include "services/form_texts.h"
#include "services/query.h"

namespace qvzj {
namespace {

// Items of `cboAcntName` carry the account's id from this character on.
constexpr int32_t kIdStart = 41;

double ItemId(const std::string& item) { return basic::Val(basic::Mid(item, kIdStart)); }

// A currency whose code would break the statement is refused, and the rate stays.
void ShowRate(frmZj& form) {
  if (!NoQuote(form.cboHb.Text())) return;
  const std::string rate =
      FirstValue("Select MoneyRate from Moneys where MoneyCode='" + form.cboHb.Text() + "'");
  form.txtHbRate.SetText(basic::FormatFixed(basic::Val(rate), 4));
}

// The opening amount of a money account shows only with an opening balance.
void ShowOpeningAmount(frmZj& form, bool shown) {
  form.lblAcnt2(EntryBox::MoneyA).SetVisible(shown);
  form.txtAcnt2(EntryBox::MoneyA).SetVisible(shown);
  if (!shown) form.txtAcnt2(EntryBox::MoneyA).SetText("0.00");
}

void OpeningClicked(frmZj& form) {
  if (form.mode == kCustomers) return;
  const bool opening = form.chkAcntInit.Ticked();
  if (opening) form.optType2(Direction::In).Select();
  ShowOpeningAmount(form, opening);
  if (opening) form.SetFocus(form.txtAcnt2(EntryBox::MoneyA));
}

void AccountChosen(frmZj& form) {
  ui::ComboBox& accounts = form.cboAcntName;
  const bool chosen = accounts.ListIndex() >= 0;
  accounts.SetTag(chosen ? basic::NumberText(ItemId(accounts.Text())) : "0");
  form.chkAcntName.SetValue(chosen ? 1 : 0);
}

void ClearLink(frmZj& form) {
  form.chkAcntName.SetValue(0);
  SelectAccountById(form, 0);
  form.cboAcntName.SetTag("0");
}

void LinkClicked(frmZj& form) {
  if (!form.chkAcntName.Ticked()) return ClearLink(form);
  SelectAccountById(form, basic::ToInt32(basic::Val(LinkedAccountId(form))));
  form.SetFocus(form.cboAcntName);
  // Choosing an account there ticks the box: until then nothing is linked.
  if (form.cboAcntName.ListIndex() < 0) ClearLink(form);
}

void CheckAmount(ui::TextBox& box, bool& cancel) {
  cancel = !MayLeaveText(box);
  if (cancel) return;
  const std::string number = PlainNumber(box.Text());
  box.SetText(basic::IsNumeric(number) ? basic::FormatFixed(basic::Val(number), 2) : "0.00");
}

// A field that is left with the rate gone gets the currency's present rate back.
void CheckRate(frmZj& form) {
  if (!basic::IsNumeric(form.txtHbRate.Text())) ShowRate(form);
}

void ConnectTexts(frmZj& form) {
  for (int i = form.txtAcnt2.First(); i <= form.txtAcnt2.Last(); ++i) {
    ui::TextBox& box = form.txtAcnt2(i);
    ConnectKeys(box);
    RefuseQuotes(box);
    box.onGotFocus = [&box] { box.SelectAll(); };
  }
  for (int i : {EntryBox::MoneyA, EntryBox::MoneyB}) {
    ui::TextBox& amount = form.txtAcnt2(i);
    amount.onValidate = [&amount](bool& cancel) { CheckAmount(amount, cancel); };
  }
  // Not while it is left, as with the date.
  form.txtAcnt2(EntryBox::Number).onLostFocus = [&form] { ShowNumberUse(form); };
  ConnectKeys(form.txtHbRate, true);
  form.txtHbRate.onValidate = [&form](bool&) { CheckRate(form); };
  ConnectKeys(form.cboDoneMan);
  RefuseQuotes(form.cboDoneMan);
}

void ConnectDate(frmZj& form) {
  EnterWalksOn(form.dtpAcntDate);
  form.dtpAcntDate.onChange = [&form] {
    if (ArmedAction(form) == kActionNew) ProposeNumber(form);
  };
  // Not while it is left: a database that is gone must not hold the user in the field.
  form.dtpAcntDate.onLostFocus = [&form] {
    if (KeyingNewEntry(form) && form.txtAcnt2(EntryBox::Number).Text().empty()) ProposeNumber(form);
  };
}

// The first currency whose code may stand in a statement; without one the entry has none.
void ChooseFirstCurrency(frmZj& form) {
  const std::vector<std::string>& codes = form.cboHb.Items();
  if (codes.empty()) return;
  const auto usable = std::find_if(codes.begin(), codes.end(), [](const std::string& code) {
    return code.find('\'') == std::string::npos;
  });
  if (usable == codes.end()) return form.cboHb.SetListIndex(-1);
  form.cboHb.SetListIndex(static_cast<int32_t>(usable - codes.begin()));
  ShowRate(form);
}

void ClearTexts(frmZj& form) {
  form.txtAcnt2(EntryBox::Number).SetText("");
  form.txtAcnt2(EntryBox::MoneyA).SetText("0.00");
  form.txtAcnt2(EntryBox::MoneyB).SetText("0.00");
  for (int i = EntryBox::Balance; i <= EntryBox::OrderID; ++i) form.txtAcnt2(i).SetText("");
  form.txtAcnt2(EntryBox::User).SetText(Shared().UserName);
  form.cboDoneMan.SetText("");
}

// The register's current record becomes the new entry's.
void TakeCurrentRecord(frmZj& form) {
  if (basic::Val(CurrentRecordId(form)) == 0) return;
  form.txtAcnt2(EntryBox::Record).SetTag(CurrentRecordId(form));
  form.txtAcnt2(EntryBox::Record).SetText(form.lblKhName.Caption());
}

// With no entry in the ledger there is nothing to show, change, delete or check.
void ShowNoEntry(frmZj& form) {
  ResetEntry(form);
  form.chkAcntInit.SetTag("0");
  form.cmdAcntCancel.SetTag("");
}

void FocusForAction(frmZj& form, int action) {
  switch (action) {
    case kActionView:
      form.SetFocus(form.cmdAcntCancel);
      break;
    case kActionNew:
    case kActionChange:
      form.SetFocus(form.dtpAcntDate);
      break;
    default:
      form.SetFocus(form.cmdAcntSave);
      break;
  }
}

}  // namespace

void ConnectEditor(frmZj& form) {
  for (int i = form.cmdAction.First(); i <= form.cmdAction.Last(); ++i) {
    form.cmdAction(i).onClick = [&form, i] { PressAction(form, i); };
  }
  ConnectTexts(form);
  ConnectDate(form);
  form.cboHb.onClick = [&form] { ShowRate(form); };
  EnterWalksOn(form.cboHb);
  form.chkAcntInit.onClick = [&form] { OpeningClicked(form); };
  EnterWalksOn(form.chkAcntInit);
  form.cboAcntName.onClick = [&form] { AccountChosen(form); };
  form.chkAcntName.onClick = [&form] { LinkClicked(form); };
  // Nothing on the way from the date to the save button may stop a clerk who walks by Enter.
  EnterWalksOn(form.optType2(Direction::In));
  EnterWalksOn(form.optType2(Direction::Out));
  EnterWalksOn(form.chkAcntName);
  EnterWalksOn(form.cboAcntName);
}

void ArrangeEditor(frmZj& form) {
  const bool customers = form.mode == kCustomers;
  form.chkAcntName.SetVisible(customers);
  form.cboAcntName.SetVisible(customers);
  form.lblAcnt2(EntryBox::MoneyA).SetVisible(customers);
  form.txtAcnt2(EntryBox::MoneyA).SetVisible(customers);
}

void PressAction(frmZj& form, int action) {
  if (!MayGiveUpEntry(form)) return;
  if (action != kActionNew) {
    if (form.Grid2.RowCount() > 0) {
      ShowLedgerRow(form, form.Grid2.ActiveRow());
    } else {
      ShowNoEntry(form);
    }
  }
  form.cmdAcntSave.SetTag(std::to_string(action));
  form.lblAcntTitle.SetCaption(basic::Left(form.cmdAction(action).Caption(), 4));
  form.cmdAcntCancel.SetEnabled(true);
  if (action == kActionNew) ResetEntry(form);
  form.currentAction = action;
  // Before the locks, which look at it: an entry that cannot be saved stays locked.
  form.cmdAcntSave.SetEnabled(action > kActionView, LoadText(form_text::kNothingToSave));
  LockEntry(form, action);
  if (!form.picAcnt.Visible()) {
    form.picAcnt.SetVisible(true);
    LayoutEditor(form);
    form.Grid2.ShowActive();  // the editor has taken the room of some rows
    form.SetFocus(form.txtAcnt2(EntryBox::Number));
  }
  FocusForAction(form, action);
}

bool KeyingNewEntry(const frmZj& form) {
  return form.picAcnt.Visible() && ArmedAction(form) == kActionNew;
}

void ResetEntry(frmZj& form) {
  ForgetEntry(form);
  ForgetNumber(form);
  form.dtpAcntDate.SetValue(Around().clock->Today());
  ClearTexts(form);
  ChooseFirstCurrency(form);
  ShowChecker(form, "");
  form.chkAcntInit.SetValue(0);
  if (form.mode != kCustomers) ShowOpeningAmount(form, false);
  TakeCurrentRecord(form);
  ClearLink(form);
  EntryAtRest(form);
}

void OfferSave(frmZj& form) {
  const int armed = ArmedAction(form);
  const ui::Button& button = form.cmdAction(armed);
  form.cmdAcntSave.SetEnabled(button.Enabled(), button.DisabledReason());
  LockEntry(form, form.currentAction);
}

void LockEntry(frmZj& form, int action) {
  const bool locked = action == kActionView || action == kActionDelete || action == kActionCheck ||
                      (action == kActionChange && !form.cmdAcntSave.Enabled());
  for (int i = form.txtAcnt2.First(); i <= form.txtAcnt2.Last(); ++i) {
    // The name follows the register and the balance the ledger: nobody types them.
    form.txtAcnt2(i).SetLocked(locked || i == EntryBox::Record || i == EntryBox::Balance);
  }
  form.cboDoneMan.SetLocked(locked);
  form.cboHb.SetLocked(locked);
  form.txtHbRate.SetLocked(locked);
  form.chkAcntInit.SetEnabled(!locked);
  form.optType2(Direction::In).SetEnabled(!locked);
  form.optType2(Direction::Out).SetEnabled(!locked);
  form.dtpAcntDate.SetEnabled(!locked);
  const bool linkable = action == kActionNew || action == kActionChange ||
                        (action == kActionCheck && form.lblSHR.Caption().empty());
  form.chkAcntName.SetEnabled(linkable);
  form.cboAcntName.SetLocked(!linkable);
}

void ShowChecker(frmZj& form, const std::string& name) {
  form.lblSHR.SetCaption(name);
  if (!name.empty()) {
    ui::Bounds frame = form.fraSHR.GetBounds();
    frame.left = form.lblSHR.GetBounds().left - 50;
    frame.width = form.lblSHR.GetBounds().width + 100;
    form.fraSHR.SetBounds(frame);
  }
  form.lblSHR.SetVisible(!name.empty());
  form.fraSHR.SetVisible(!name.empty());
}

void SelectAccountById(frmZj& form, int32_t id) {
  ui::ComboBox& accounts = form.cboAcntName;
  int32_t found = -1;
  const std::vector<std::string>& items = accounts.Items();
  for (size_t i = 0; i < items.size() && id >= 1 && found < 0; ++i) {
    if (ItemId(items[i]) == id) found = static_cast<int32_t>(i);
  }
  accounts.SetListIndex(found);
}

}  // namespace qvzj
