#include "ledger/query.h"

#include <cmath>
#include <utility>

#include "ledger/columns.h"
#include "ledger/editor.h"
#include "platform/basic/errors.h"
#include "platform/basic/number.h"
#include "screen/current.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"
#include "screen/loading.h"
#include "services/connect.h"

namespace qvzj {
namespace {

namespace col = ledger_column;
using basic::Column;

constexpr uint32_t kCheckedColor = 0xE0E0E0;

// The selection option as a condition. Selected records without a register search drop every
// filter on purpose: the whole ledger is listed then.
std::string WhereText(const frmZj& form, const std::string& condition) {
  if (form.OptSelect(Selection::Single).Selected())
    return condition + " And a.fID=" + CurrentRecordId(form);
  if (!form.OptSelect(Selection::Searched).Selected()) return condition;
  if (form.registerCondition.empty()) return {};
  return condition + " And " + form.registerCondition;
}

std::string LedgerStatement(const frmZj& form, const std::string& condition) {
  std::string statement =
      "Select b.fDate,b.fAcntNo,a.CompName,b.fMoneyA,b.fMoneyB,0 as hh,b.fBrief,b.fInvID,"
      "b.fOrderID,b.fUser,b.fDoneman,b.fChecker,b.fMoneyRate,b.fType2,b.fInit,b.fCompID,b.fID,"
      "b.fID2 From ";
  statement += form.mode == kCustomers ? "cards a" : "tAccounts a";
  statement += " Right Join tAccountDetail b On b.fCompID=a.fID";
  const std::string where = WhereText(form, condition);
  if (!where.empty()) statement += " Where " + where;
  statement +=
      form.cboKhOrder.ListIndex() == 0 ? " Order By a.CompCode,a.CompName" : " Order By a.CompName";
  return statement + ",b.fDate,b.fAcntNo";
}

// Everything one load computes before the grid is touched.
struct Ledger {
  std::vector<Column> columns;  // column c of the grid at c - 1
  basic::Sum a_in, b_in, a_out, b_out;

  Column& At(int32_t column) { return columns[static_cast<size_t>(column - 1)]; }
  size_t Rows() const { return columns.front().Size(); }
};

Ledger TakeRows(data::Recordset&& rows) {
  Ledger ledger;
  for (int field = 0; field < rows.FieldCount(); ++field) {
    ledger.columns.push_back(rows.TakeColumn(field));
    ledger.columns.back().Fit();
  }
  return ledger;
}

bool EmptyText(const Column& column, size_t row) {
  if (column.IsNull(row)) return true;
  return column.GetKind() == Column::Kind::Text && column.TextView(row).empty();
}

// Which direction each row goes, read without a conversion where the engine answered integers.
class Directions {
 public:
  explicit Directions(const Column& type2)
      : type2_(type2),
        integers_(type2.GetKind() == Column::Kind::Integer ? type2.Integers() : nullptr) {}
  bool In(size_t row) const { return integers_ ? integers_[row] == 1 : type2_.Number(row) == 1; }

 private:
  const Column& type2_;
  const int32_t* integers_;
};

double Amount(const double* amounts, size_t row, const char* name) {
  if (std::isnan(amounts[row]))
    throw TypeMismatchError(std::string("Invalid use of Null: ") + name);
  return amounts[row];
}

// Amounts that cancel out leave a trace of their binary fractions; it is no balance, and as a
// negative one it would show in red.
double Settled(double balance) {
  constexpr double kTrace = 1e-6;
  return std::fabs(balance) < kTrace ? 0 : balance;
}

// Signs the amounts, empties those of 0, runs the balance of each name and sums the totals.
// Receivables and money in are positive and the other side negative, the other way round on the
// payable tab; the opening amounts of money accounts keep their sign.
void SignAndBalance(Ledger& ledger, bool customers, bool payable_tab) {
  Column& column_a = ledger.At(col::kMoneyA);
  Column& column_b = ledger.At(col::kMoneyB);
  Column& column_balance = ledger.At(col::kBalance);
  column_a.MakeReal();
  column_b.MakeReal();
  column_balance = Column();
  column_balance.MakeReal();
  column_balance.Resize(ledger.Rows());
  double* const amounts_a = column_a.Reals();
  double* const amounts_b = column_b.Reals();
  double* const balances = column_balance.Reals();
  const Column& names = ledger.At(col::kName);
  const Directions directions(ledger.At(col::kType2));
  const double null = std::nan("");

  basic::Sum balance;
  for (size_t row = 0; row < ledger.Rows(); ++row) {
    const bool in = directions.In(row);
    double a = Amount(amounts_a, row, "fMoneyA");
    double b = Amount(amounts_b, row, "fMoneyB");
    (in ? ledger.a_in : ledger.a_out).Add(a);
    (in ? ledger.b_in : ledger.b_out).Add(b);
    if (in == payable_tab) {
      if (customers) a = -a;
      b = -b;
    }
    amounts_a[row] = a != 0 ? a : null;
    amounts_b[row] = b != 0 ? b : null;
    const bool same_name = row > 0 && (names.SameValue(row, row - 1) ||
                                       (EmptyText(names, row) && EmptyText(names, row - 1)));
    if (!same_name) balance = {};
    balance.Add(a);
    balance.Add(customers ? -b : b);
    balances[row] = Settled(balance.Value());
  }
}

// Entries whose register record is gone are listed under the record's id.
void NameOrphans(Ledger& ledger) {
  Column& names = ledger.At(col::kName);
  const Column& ids = ledger.At(col::kCompID);
  for (size_t row = 0; row < ledger.Rows(); ++row) {
    if (EmptyText(names, row)) names.SetText(row, "(" + ids.Text(row) + ") - Error");
  }
}

// True when a register record is current. Throws TypeMismatchError when the tag is no number.
bool HasCurrentRecord(const std::string& tag) {
  if (tag.empty()) return false;
  if (!basic::IsNumeric(tag)) throw TypeMismatchError(tag);
  return basic::Val(tag) > 0;
}

// The row (1-based) of the entry last shown; 1 when it is not there or no record is current.
int32_t RowToSelect(const frmZj& form, const Column& ids) {
  if (!HasCurrentRecord(CurrentRecordId(form))) return 1;
  const std::string& shown = ShownEntryId(form);
  const bool integers = ids.GetKind() == Column::Kind::Integer;
  const double wanted = basic::Val(shown);
  for (size_t row = 1; row < ids.Size(); ++row) {
    if (integers && ids.Integers()[row] != wanted) continue;
    if (ids.Text(row) == shown) return static_cast<int32_t>(row) + 1;
  }
  return 1;
}

void FillGrid(ui::Grid& grid, Ledger& ledger) {
  const auto rows = static_cast<int32_t>(ledger.Rows());
  grid.SetRowCount(rows);
  const Column& checkers = ledger.At(col::kChecker);
  for (int32_t row = 1; row <= rows; ++row) {
    if (!EmptyText(checkers, static_cast<size_t>(row - 1))) grid.SetRowColor(row, kCheckedColor);
  }
  for (int32_t column = 1; column <= grid.ColumnCount(); ++column) {
    grid.TakeColumn(column, std::move(ledger.At(column)));
  }
}

void WriteTotal(frmZj& form, int index, double value) {
  form.txtTotal(index).SetText(basic::FormatFixed(value, 2));
}

void WriteTotals(frmZj& form, const Ledger& ledger) {
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

}  // namespace

void LoadLedger(frmZj& form, const std::string& condition) {
  const bool payable_tab = form.SSTab2.Tab() == LedgerTab::Out;
  const Hourglass hourglass(form);
  const GridFilling filling(form.Grid2);
  WriteTotals(form, {});  // what an error leaves behind goes with the empty grid
  // Everything that can fail comes before the first cell is filled.
  Ledger ledger = TakeRows(Data().Open(LedgerStatement(form, condition)));
  SignAndBalance(ledger, form.mode == kCustomers, payable_tab);
  NameOrphans(ledger);
  const int32_t selected = ledger.Rows() > 0 ? RowToSelect(form, ledger.At(col::kID)) : 0;
  FillGrid(form.Grid2, ledger);
  form.ledgerNegated = false;
  WriteTotals(form, ledger);
  if (selected > 0) {
    form.Grid2.SetActive(1, selected);
    if (KeyingNewEntry(form)) {
      OfferActions(form, selected);
    } else {
      ShowLedgerRow(form, selected);
    }
  }
}

}  // namespace qvzj
