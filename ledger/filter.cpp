#include "ledger/filter.h"

#include "ledger/fields.h"
#include "platform/basic/date.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"
#include "screen/keys.h"
#include "services/context.h"
#include "services/query.h"

namespace qvzj {
namespace {

std::string DateLiteral(const ui::DatePicker& picker) {
  const std::string& quote = Shared().DateQuote;
  return quote + basic::FormatMonthDayYear(picker.Value()) + quote;
}

// The condition that `box` switches on over the pattern typed beside it; "" while it is off.
std::string PatternCondition(const ui::CheckBox& box, const char* column,
                             const ui::TextBox& pattern) {
  if (!box.Ticked()) return {};
  return std::string(" And b.") + column + " like '" + LikePattern(pattern.Text()) + "'";
}

std::string CheckedCondition(const frmZj& form) {
  const bool checked = form.chkVerify(FilterBox::Checked).Ticked();
  const bool unchecked = form.chkVerify(FilterBox::Unchecked).Ticked();
  if (checked && !unchecked) return " And b.fChecker<>''";
  if (unchecked && !checked) return " And b.fChecker=''";
  return {};
}

// Ticking the box takes the user to the field that it needs.
void LeadToField(frmZj& form, ui::CheckBox& box, ui::Control& field) {
  box.onClick = [&form, &box, &field] {
    if (box.Ticked()) form.SetFocus(field);
  };
  EnterWalksOn(box);
}

void ConnectPattern(frmZj& form, ui::CheckBox& box, ui::TextBox& pattern) {
  LeadToField(form, box, pattern);
  EnterWalksOn(pattern);
  RefuseQuotes(pattern);
}

// At least one of the two boxes stays ticked; both mean checked and unchecked entries together.
void ConnectVerify(frmZj& form, int index) {
  ui::CheckBox& box = form.chkVerify(index);
  box.onClick = [&form, &box] {
    if (!form.chkVerify(FilterBox::Checked).Ticked() &&
        !form.chkVerify(FilterBox::Unchecked).Ticked())
      box.SetValue(1);
  };
  EnterJumpsTo(box, form.cmdAcntRefresh);
}

}  // namespace

void ConnectFilter(frmZj& form) {
  for (int i = 0; i <= 1; ++i) {
    LeadToField(form, form.chkDate(i), form.dtpDate(i));
    EnterWalksOn(form.dtpDate(i));
    ConnectVerify(form, i);
  }
  for (int i = 0; i <= 2; ++i) {
    ConnectPattern(form, form.chkID(i), form.txtID(i));
    ConnectPattern(form, form.chkUser(i), form.txtUser(i));
  }
  ConnectPattern(form, form.chkBrief, form.txtBrief);
}

std::string LedgerCondition(const frmZj& form) {
  std::string condition = "b.fType1=" + std::to_string(form.mode);
  // The currency column carries no alias and the first "and" is lower case: the text is compared
  // to the letter by who traces statements.
  if (form.cboHb2.ListIndex() >= 0) condition += " And fMoneyCode='" + form.cboHb2.Text() + "'";
  if (form.chkDate(FilterBox::From).Ticked())
    condition += " and b.fDate>=" + DateLiteral(form.dtpDate(FilterBox::From));
  if (form.chkDate(FilterBox::To).Ticked())
    condition += " And b.fDate<=" + DateLiteral(form.dtpDate(FilterBox::To));
  condition += CheckedCondition(form);
  condition +=
      PatternCondition(form.chkID(FilterBox::AcntNo), "fAcntNo", form.txtID(FilterBox::AcntNo));
  condition +=
      PatternCondition(form.chkID(FilterBox::InvID), "fInvID", form.txtID(FilterBox::InvID));
  condition +=
      PatternCondition(form.chkID(FilterBox::OrderID), "fOrderID", form.txtID(FilterBox::OrderID));
  condition += PatternCondition(form.chkBrief, "fBrief", form.txtBrief);
  condition +=
      PatternCondition(form.chkUser(FilterBox::User), "fUser", form.txtUser(FilterBox::User));
  condition += PatternCondition(form.chkUser(FilterBox::Doneman), "fDoneman",
                                form.txtUser(FilterBox::Doneman));
  condition += PatternCondition(form.chkUser(FilterBox::Checker), "fChecker",
                                form.txtUser(FilterBox::Checker));
  return condition;
}

}  // namespace qvzj
