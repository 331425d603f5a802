#include "ledger/subject.h"

#include "platform/basic/date.h"
#include "platform/basic/errors.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"
#include "services/query.h"

namespace qvzj {
namespace {

void Add(std::string& subject, const std::string& part) {
  if (!subject.empty()) subject += "   ";
  subject += part;
}

// A caption without its access key, and with one colon behind it.
std::string Label(const ui::Control& control) {
  std::string label = basic::Trim(ui::ShownCaption(control.Caption()));
  for (const std::string colon : {":", "："}) {
    if (label.ends_with(colon)) label.resize(label.size() - colon.size());
  }
  return label + ": ";
}

void AddRecord(const frmZj& form, std::string& subject) {
  if (form.OptSelect(Selection::Single).Selected()) {
    Add(subject, Label(form.lblAcnt2(EntryBox::Record)) + form.lblKhName.Caption());
  } else if (form.OptSelect(Selection::Searched).Selected() && !form.registerCondition.empty()) {
    Add(subject, ui::ShownCaption(form.OptSelect(Selection::Searched).Caption()));
  }
}

void AddDate(const frmZj& form, int which, std::string& subject) {
  if (!form.chkDate(which).Ticked()) return;
  Add(subject, Label(form.chkDate(which)) + basic::FormatIso(form.dtpDate(which).Value()));
}

void AddChecked(const frmZj& form, std::string& subject) {
  const ui::CheckBox& checked = form.chkVerify(FilterBox::Checked);
  const ui::CheckBox& unchecked = form.chkVerify(FilterBox::Unchecked);
  if (checked.Ticked() == unchecked.Ticked()) return;
  Add(subject, ui::ShownCaption((checked.Ticked() ? checked : unchecked).Caption()));
}

void AddPattern(const ui::CheckBox& box, const ui::TextBox& pattern, std::string& subject) {
  if (box.Ticked()) Add(subject, Label(box) + basic::Trim(pattern.Text()));
}

bool NamesRenminbi(const std::string& code) {
  return basic::EqualIgnoringCase(code, "RMB") || basic::EqualIgnoringCase(code, "CNY") ||
         code == "人民币" || code == "人民幣";
}

}  // namespace

std::string LedgerSubject(const frmZj& form) {
  // Searched records without a search list the whole ledger, whatever else is ticked.
  if (form.OptSelect(Selection::Searched).Selected() && form.registerCondition.empty()) return {};
  std::string subject;
  AddRecord(form, subject);
  AddDate(form, FilterBox::From, subject);
  AddDate(form, FilterBox::To, subject);
  if (form.cboHb2.ListIndex() >= 0) Add(subject, Label(form.lblHb2) + form.cboHb2.Text());
  AddChecked(form, subject);
  for (int i = 0; i <= 2; ++i) AddPattern(form.chkID(i), form.txtID(i), subject);
  AddPattern(form.chkBrief, form.txtBrief, subject);
  for (int i = 0; i <= 2; ++i) AddPattern(form.chkUser(i), form.txtUser(i), subject);
  return subject;
}

bool LedgerInRenminbi(const frmZj& form) {
  if (form.cboHb.Items().empty() || !NamesRenminbi(form.cboHb.Items().front())) return false;
  const frmZj::LedgerShown& shown = form.ledgerShown;
  if (shown.source.empty()) return false;
  std::string statement = "Select count(*) From " + shown.source + " Where ";
  if (!shown.where.empty()) statement += "(" + shown.where + ") And ";
  statement += "b.fMoneyCode='" + form.cboHb.Items().front() + "'";
  try {
    return basic::Val(FirstValue(statement)) == form.Grid2.RowCount();
  } catch (const DataError&) {
    return false;  // a page can be printed without it
  }
}

}  // namespace qvzj
