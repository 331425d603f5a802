#include "register/search.h"

#include "ledger/fields.h"
#include "ledger/filter.h"
#include "ledger/query.h"
#include "register/list.h"
#include "register/unsaved.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"
#include "screen/keys.h"
#include "services/query.h"

namespace qvzj {
namespace {

// A customer of type 0 both supplies and sells and belongs to every type asked for.
std::string CustomerTypeCondition(const frmZj& form) {
  if (form.mode == kAccounts || form.optSeek(CustomerType::All).Selected()) return "";
  if (form.optSeek(CustomerType::Supplier).Selected()) return "(a.fType0=0 or a.fType0=1)";
  if (form.optSeek(CustomerType::Dealer).Selected()) return "(a.fType0=0 Or a.fType0=2)";
  return "(a.fType0=0 Or a.fType0=3)";
}

// A ticked row without a text asks for records that have any text in the column.
std::string SearchPattern(const std::string& text) {
  const std::string pattern = LikePattern(text);
  return pattern.empty() ? "%" : pattern;
}

// A quote in a row that is asked for would break every statement that the condition goes into.
bool SearchTextsFit(const frmZj& form) {
  for (int i = 0; i < form.chkSeek.Count(); ++i) {
    if (form.chkSeek(i).Ticked() && !NoQuote(form.txtSeek(i).Text())) return false;
  }
  return true;
}

void ConnectSearchRow(frmZj& form, int i) {
  ui::CheckBox& check = form.chkSeek(i);
  ui::TextBox& text = form.txtSeek(i);
  check.onClick = [&form, &check, &text] {
    if (form.Loaded() && check.Ticked()) form.SetFocus(text);
  };
  EnterWalksOn(check);
  EnterWalksOn(text);
  RefuseQuotes(text);
}

}  // namespace

std::string BuildRegisterCondition(const frmZj& form) {
  std::string condition = "1=1";
  for (int i = 0; i < form.chkSeek.Count(); ++i) {
    if (!form.chkSeek(i).Ticked()) continue;
    condition +=
        " And a." + form.chkSeek(i).Tag() + " like '" + SearchPattern(form.txtSeek(i).Text()) + "'";
  }
  const std::string type = CustomerTypeCondition(form);
  if (!type.empty()) condition += " And " + type;
  return condition;
}

void SearchRegister(frmZj& form) {
  if (!SearchTextsFit(form)) return;
  form.registerCondition = BuildRegisterCondition(form);
  LoadRegister(form, form.registerCondition);
}

void SearchRecord(frmZj& form, const std::string& record) {
  if (SearchTextsFit(form)) form.registerCondition = BuildRegisterCondition(form);
  LoadRegister(form, form.registerCondition, record);
}

void ConnectRegisterSearch(frmZj& form) {
  for (int i = 0; i < form.chkSeek.Count(); ++i) ConnectSearchRow(form, i);
  for (int i = 0; i < form.optSeek.Count(); ++i) EnterJumpsTo(form.optSeek(i), form.cmdKhSeek);
  form.cmdKhSeek.onClick = [&form] {
    if (MayLeaveRecord(form)) SearchRegister(form);
  };
  for (int i = 0; i < form.OptSelect.Count(); ++i) {
    EnterJumpsTo(form.OptSelect(i), form.cmdKhSeek);
    form.OptSelect(i).onClick = [&form] { LoadLedger(form, LedgerCondition(form)); };
  }
}

}  // namespace qvzj
