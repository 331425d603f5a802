#include "ledger/columns.h"
#include "ledger/editor.h"
#include "ledger/entry.h"
#include "ledger/unsaved.h"
#include "ledger/voucher.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "platform/surroundings.h"
#include "screen/current.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"
#include "services/connect.h"
#include "services/form_texts.h"
#include "services/strings.h"
#include "services/text_ids.h"

// Copies a row of the ledger grid into the entry editor.
namespace qvzj {
namespace {

namespace col = ledger_column;

std::string CellText(const frmZj& form, int32_t column, int32_t row) {
  return form.Grid2.Stored(column).Text(form.Grid2.StoredRow(row));
}

double CellNumber(const frmZj& form, int32_t column, int32_t row) {
  return form.Grid2.Stored(column).Number(form.Grid2.StoredRow(row));
}

void ShowDate(frmZj& form, int32_t row) {
  const basic::Column& dates = form.Grid2.Stored(col::kDate);
  const size_t stored = form.Grid2.StoredRow(row);
  if (dates.GetKind() == basic::Column::Kind::Date && !dates.IsNull(stored)) {
    form.dtpAcntDate.SetValue({dates.Integer(stored)});
  } else {
    form.dtpAcntDate.SetValue(
        basic::ParseIso(dates.Text(stored)).value_or(Around().clock->Today()));
  }
}

void ShowAmounts(frmZj& form, int32_t row) {
  using basic::FormatFixed;
  form.txtAcnt2(EntryBox::MoneyA).SetText(FormatFixed(UnsignedAmount(form, col::kMoneyA, row), 2));
  form.txtAcnt2(EntryBox::MoneyB).SetText(FormatFixed(UnsignedAmount(form, col::kMoneyB, row), 2));
  form.txtAcnt2(EntryBox::Balance).SetText(FormatFixed(CellNumber(form, col::kBalance, row), 2));
}

// The opening amount of a money account has its place only with opening balances.
void ShowOpening(frmZj& form, int32_t row) {
  form.chkAcntInit.SetValue(CellNumber(form, col::kInit, row) != 0 ? 1 : 0);
  if (form.mode == kCustomers) return;
  form.lblAcnt2(EntryBox::MoneyA).SetVisible(form.chkAcntInit.Ticked());
  form.txtAcnt2(EntryBox::MoneyA).SetVisible(form.chkAcntInit.Ticked());
}

// The linked money account; an id that the list does not hold stays in the tag.
void ShowLink(frmZj& form, int32_t row) {
  const double id = form.mode == kCustomers ? CellNumber(form, col::kID2, row) : 0;
  form.cboAcntName.SetTag(id != 0 ? CellText(form, col::kID2, row) : "0");
  form.chkAcntName.SetValue(id > 0 ? 1 : 0);
  SelectAccountById(form, basic::ToInt32(id));
}

// The entry's own currency and rate, not the currency's present rate.
void ShowCurrency(frmZj& form, int32_t row, const std::optional<std::string>& currency) {
  form.cboHb.SetText(currency.value_or(""));
  form.txtHbRate.SetText(basic::FormatFixed(CellNumber(form, col::kRate, row), 4));
}

void ShowTitle(frmZj& form) {
  form.lblAcntTitle.SetCaption(basic::Left(form.cmdAction(form.currentAction).Caption(), 4));
}

}  // namespace

std::optional<std::string> ReadCurrency(const std::string& id) {
  const data::Recordset entry =
      Data().Open("Select fMoneyCode from tAccountDetail where fID=" + id);
  if (entry.Eof() || entry.IsNull(0)) return std::nullopt;
  return entry.Text(0);
}

void ShowLedgerRow(frmZj& form, int32_t row) {
  if (row < 1 || row > form.Grid2.RowCount()) return;
  ShowLedgerRow(form, row, ReadCurrency(CellText(form, col::kID, row)));
}

void ShowLedgerRow(frmZj& form, int32_t row, const std::optional<std::string>& currency) {
  ForgetNumber(form);
  form.Grid2.SetActive(form.Grid2.ActiveColumn(), row);
  ShowDate(form, row);
  const bool in = CellNumber(form, col::kType2, row) == 1;
  form.optType2(in ? Direction::In : Direction::Out).Select();
  form.txtAcnt2(EntryBox::Number).SetText(CellText(form, col::kNumber, row));
  form.txtAcnt2(EntryBox::Record).SetText(CellText(form, col::kName, row));
  form.txtAcnt2(EntryBox::Record).SetTag(CellText(form, col::kCompID, row));
  ShowAmounts(form, row);
  form.txtAcnt2(EntryBox::Brief).SetText(CellText(form, col::kBrief, row));
  form.txtAcnt2(EntryBox::InvID).SetText(CellText(form, col::kInvID, row));
  form.txtAcnt2(EntryBox::OrderID).SetText(CellText(form, col::kOrderID, row));
  form.txtAcnt2(EntryBox::User).SetText(CellText(form, col::kUser, row));
  form.cboDoneMan.SetText(CellText(form, col::kDoneman, row));
  ShowOpening(form, row);
  ShowLink(form, row);
  ShowChecker(form, CellText(form, col::kChecker, row));
  form.chkAcntInit.SetTag(CellText(form, col::kID, row));
  form.cmdAcntCancel.SetTag(CellText(form, col::kNumber, row));
  ShowCurrency(form, row, currency);
  RememberEntry(form, row, currency);
  EntryAtRest(form);
  OfferActions(form, row);
  ShowTitle(form);
  const int armed = ArmedAction(form);
  if (armed == kActionChange || armed == kActionDelete) {
    OfferSave(form);
  } else {
    LockEntry(form, form.currentAction);
  }
}

void OfferActions(frmZj& form, int32_t row) {
  const bool checked = !CellText(form, col::kChecker, row).empty();
  form.cmdAction(kActionChange).SetEnabled(!checked, LoadText(form_text::kEntryIsChecked));
  form.cmdAction(kActionDelete).SetEnabled(!checked, LoadText(form_text::kEntryIsChecked));
  ui::Button& check = form.cmdAction(kActionCheck);
  check.SetCaption(LoadText(text_id::kEntry) +
                   LoadText(checked ? text_id::kUncheck : text_id::kCheck) +
                   basic::Right(check.Caption(), 4));
}

}  // namespace qvzj
