#include "ledger/filter.h"

#include "ledger/fields.h"
#include "platform/basic/date.h"
#include "screen/frmZj.h"
#include "screen/keys.h"
#include "services/context.h"
#include "services/query.h"

namespace qvzj {
namespace {

std::string DateLiteral(const ui::DatePicker& picker) {
  const std::string& quote = Shared().DateQuote;
  return quote + basic::FormatMonthDayYear(picker.Value()) + quote;
}

/// The condition that `box` switches on over the pattern typed beside it; "" while it is off.
std::string PatternCondition(const ui::CheckBox& box, const char* column,
                             const ui::TextBox& pattern) {
  if (!box.Ticked()) return {};
  return std::string(" And b.") + column + " like '" + LikePattern(pattern.Text()) + "'";
}

std::string CheckedCondition(const frmZj& form) {
  const bool checked = form.chkVerify(0).Ticked();
  const bool unchecked = form.chkVerify(1).Ticked();
  if (checked && !unchecked) return " And b.fChecker<>''";
  if (unchecked && !checked) return " And b.fChecker=''";
  return {};
}

/// Ticking the box takes the user to the field that it needs.
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

/// At least one of the two boxes stays ticked; both mean checked and unchecked entries together.
void ConnectVerify(frmZj& form, int index) {
  ui::CheckBox& box = form.chkVerify(index);
  box.onClick = [&form, &box] {
    if (!form.chkVerify(0).Ticked() && !form.chkVerify(1).Ticked()) box.SetValue(1);
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
  if (form.chkDate(0).Ticked()) condition += " and b.fDate>=" + DateLiteral(form.dtpDate(0));
  if (form.chkDate(1).Ticked()) condition += " And b.fDate<=" + DateLiteral(form.dtpDate(1));
  condition += CheckedCondition(form);
  condition += PatternCondition(form.chkID(0), "fAcntNo", form.txtID(0));
  condition += PatternCondition(form.chkID(1), "fInvID", form.txtID(1));
  condition += PatternCondition(form.chkID(2), "fOrderID", form.txtID(2));
  condition += PatternCondition(form.chkBrief, "fBrief", form.txtBrief);
  condition += PatternCondition(form.chkUser(0), "fUser", form.txtUser(0));
  condition += PatternCondition(form.chkUser(1), "fDoneman", form.txtUser(1));
  condition += PatternCondition(form.chkUser(2), "fChecker", form.txtUser(2));
  return condition;
}

}  // namespace qvzj
