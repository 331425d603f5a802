#include "ledger/query.h"

#include <utility>

#include "ledger/columns.h"
#include "ledger/editor.h"
#include "ledger/grid.h"
#include "ledger/subject.h"
#include "ledger/unsaved.h"
#include "platform/basic/errors.h"
#include "platform/basic/number.h"
#include "screen/current.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"
#include "screen/loading.h"
#include "services/connect.h"
#include "services/form_texts.h"
#include "services/ids.h"
#include "services/messages.h"
#include "services/strings.h"
#include "services/text_ids.h"

namespace qvzj {
namespace {

namespace col = ledger_column;
using basic::Column;

constexpr uint32_t kCheckedColor = 0xE0E0E0;

// The selection option as a condition. Selected records without a register search drop every
// filter on purpose: the whole ledger is listed then.
std::string WhereText(const frmZj& form, const std::string& condition, const std::string& record) {
  if (form.OptSelect(Selection::Single).Selected()) return condition + " And a.fID=" + record;
  if (!form.OptSelect(Selection::Searched).Selected()) return condition;
  if (form.registerCondition.empty()) return {};
  return condition + " And " + form.registerCondition;
}

std::string LedgerStatement(const frmZj& form, const ReadyLedger& ledger) {
  std::string statement =
      "Select b.fDate,b.fAcntNo,a.CompName,b.fMoneyA,b.fMoneyB,0 as hh,b.fBrief,b.fInvID,"
      "b.fOrderID,b.fUser,b.fDoneman,b.fChecker,b.fMoneyRate,b.fType2,b.fInit,b.fCompID,b.fID,"
      "b.fID2 From ";
  statement += ledger.source;
  if (!ledger.where.empty()) statement += " Where " + ledger.where;
  statement +=
      form.cboKhOrder.ListIndex() == 0 ? " Order By a.CompCode,a.CompName" : " Order By a.CompName";
  return statement + ",b.fDate,b.fAcntNo";
}

// True when a register record is current. Throws TypeMismatchError when the tag is no number.
bool HasCurrentRecord(const std::string& tag) {
  if (tag.empty()) return false;
  if (!basic::IsNumeric(tag)) throw TypeMismatchError(tag);
  return basic::Val(tag) > 0;
}

// The row (1-based) of the entry last shown; 1 when it is not there or no record is current.
int32_t RowToSelect(const frmZj& form, const Column& ids, const std::string& record) {
  if (!HasCurrentRecord(record)) return 1;
  const std::string& shown = ShownEntryId(form);
  const bool integers = ids.GetKind() == Column::Kind::Integer;
  const double wanted = basic::Val(shown);
  for (size_t row = 1; row < ids.Size(); ++row) {
    if (integers && ids.Integers()[row] != wanted) continue;
    if (ids.Text(row) == shown) return static_cast<int32_t>(row) + 1;
  }
  return 1;
}

void FillGrid(ui::Grid& grid, LedgerRows& ledger, bool negated) {
  const auto rows = static_cast<int32_t>(ledger.Count());
  if (rows == 0) return;
  grid.SetRowCount(rows);
  const Column& checkers = ledger.At(col::kChecker);
  for (int32_t row = 1; row <= rows; ++row) {
    if (!EmptyText(checkers, static_cast<size_t>(row - 1))) grid.SetRowColor(row, kCheckedColor);
  }
  for (int32_t column = 1; column <= grid.ColumnCount(); ++column) {
    grid.TakeColumn(column, std::move(ledger.At(column)));
  }
  // What the tab does to a ledger that is there, it does to one that comes in.
  if (negated) NegateAmounts(grid);
}

void WriteTotal(frmZj& form, int index, double value) {
  form.txtTotal(index).SetText(basic::FormatFixed(value, 2));
}

void WriteTotals(frmZj& form, const LedgerRows& ledger) {
  const double a_in = ledger.a_in.Value();
  const double b_in = ledger.b_in.Value();
  const double a_out = ledger.a_out.Value();
  const double b_out = ledger.b_out.Value();
  WriteTotal(form, TotalBox::MoneyBIn, b_in);
  WriteTotal(form, TotalBox::MoneyBOut, b_out);
  if (form.mode == kCustomers) {
    WriteTotal(form, TotalBox::MoneyAIn, a_in);
    WriteTotal(form, TotalBox::BalanceIn, a_in - b_in);
    WriteTotal(form, TotalBox::MoneyAOut, a_out);
    WriteTotal(form, TotalBox::Balance, a_out - b_out);
  } else {
    WriteTotal(form, TotalBox::MoneyAIn, a_in + a_out);
    WriteTotal(form, TotalBox::Balance, a_in + a_out + b_in - b_out);
  }
}

void ReportMissing(const MissingAmounts& missing) {
  if (missing.count == 0) return;
  Message(LoadText(form_text::kMissingAmounts) + std::to_string(missing.count) + "\r\n\r\n" +
              LoadText(form_text::kFirstOfThem) + LoadText(text_id::kVoucher) + " " +
              missing.number + "，" + LoadText(text_id::kDate) + " " + missing.date,
          box::kExclamation);
}

// What is being keyed is not shown over: a reload only marks its row.
bool EntryStays(const frmZj& form) { return KeyingNewEntry(form) || EntryUnsaved(form); }

void ShowSelected(frmZj& form, const ReadyLedger& ledger) {
  form.Grid2.SetActive(1, ledger.selected);
  if (EntryStays(form)) {
    OfferActions(form, ledger.selected);
  } else {
    ShowLedgerRow(form, ledger.selected, ledger.currency);
  }
}

void ShowRows(frmZj& form, ReadyLedger& ledger, GridFilling& filling) {
  form.ledgerShown = {ledger.source, ledger.where, LedgerSubject(form)};
  WriteTotals(form, ledger.rows);
  FillGrid(form.Grid2, ledger.rows, form.SSTab2.Tab() == LedgerTab::Out);
  if (ledger.selected > 0) ShowSelected(form, ledger);
  filling.Show();
}

// What the editor writes back, or looks entries up by, as a bare number.
void RequireEntryIds(const LedgerRows& rows) {
  RequireIds(rows.At(col::kID), "tAccountDetail.fID");
  RequireIds(rows.At(col::kCompID), "tAccountDetail.fCompID");
  RequireIds(rows.At(col::kID2), "tAccountDetail.fID2");
  RequireIds(rows.At(col::kType2), "tAccountDetail.fType2");
  RequireIds(rows.At(col::kInit), "tAccountDetail.fInit");
}

}  // namespace

ReadyLedger ReadLedger(const frmZj& form, const std::string& condition, const std::string& record) {
  ReadyLedger ledger;
  ledger.source = form.mode == kCustomers ? "cards a" : "tAccounts a";
  ledger.source += " Right Join tAccountDetail b On b.fCompID=a.fID";
  ledger.where = WhereText(form, condition, record);
  ledger.rows = TakeRows(Data().Open(LedgerStatement(form, ledger)));
  if (ledger.rows.Count() == 0) return ledger;
  RequireEntryIds(ledger.rows);
  ledger.missing = FindMissingAmounts(ledger.rows);
  if (ledger.missing.count > 0) {
    ledger.rows = {};
    return ledger;
  }
  SignAndBalance(ledger.rows, form.mode == kCustomers);
  NameOrphans(ledger.rows);
  const Column& ids = ledger.rows.At(col::kID);
  ledger.selected = RowToSelect(form, ids, record);
  if (!EntryStays(form)) {
    ledger.currency = ReadCurrency(ids.Text(static_cast<size_t>(ledger.selected - 1)));
  }
  return ledger;
}

void ShowLedger(frmZj& form, ReadyLedger&& ledger) {
  {
    GridFilling filling(form.Grid2);
    ShowRows(form, ledger, filling);
  }
  ReportMissing(ledger.missing);
}

void LoadLedger(frmZj& form, const std::string& condition) {
  ReadyLedger ledger;
  {
    const Hourglass hourglass(form);
    GridFilling filling(form.Grid2);
    WriteTotals(form, {});  // what an error leaves behind goes with the empty grid
    form.ledgerShown = {};
    ledger = ReadLedger(form, condition, CurrentRecordId(form));
    ShowRows(form, ledger, filling);
  }
  ReportMissing(ledger.missing);
}

}  // namespace qvzj
