#include "ledger/rows.h"

#include <cmath>

#include "ledger/columns.h"

namespace qvzj {
namespace {

namespace col = ledger_column;
using basic::Column;

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

// Amounts that cancel out leave a trace of their binary fractions; it is no balance, and as a
// negative one it would show in red.
double Settled(double balance) {
  constexpr double kTrace = 1e-6;
  return std::fabs(balance) < kTrace ? 0 : balance;
}

}  // namespace

LedgerRows TakeRows(data::Recordset&& rows) {
  LedgerRows ledger;
  for (int field = 0; field < rows.FieldCount(); ++field) {
    ledger.columns.push_back(rows.TakeColumn(field));
    ledger.columns.back().Fit();
  }
  return ledger;
}

MissingAmounts FindMissingAmounts(const LedgerRows& ledger) {
  MissingAmounts missing;
  const Column& column_a = ledger.At(col::kMoneyA);
  const Column& column_b = ledger.At(col::kMoneyB);
  for (size_t row = 0; row < ledger.Count(); ++row) {
    if (!column_a.IsNull(row) && !column_b.IsNull(row)) continue;
    if (missing.count++ > 0) continue;
    missing.number = ledger.At(col::kNumber).Text(row);
    missing.date = ledger.At(col::kDate).Text(row);
  }
  return missing;
}

void SignAndBalance(LedgerRows& ledger, bool customers) {
  Column& column_a = ledger.At(col::kMoneyA);
  Column& column_b = ledger.At(col::kMoneyB);
  Column& column_balance = ledger.At(col::kBalance);
  column_a.MakeReal();
  column_b.MakeReal();
  column_balance = Column();
  column_balance.MakeReal();
  column_balance.Resize(ledger.Count());
  double* const amounts_a = column_a.Reals();
  double* const amounts_b = column_b.Reals();
  double* const balances = column_balance.Reals();
  const Column& names = ledger.At(col::kName);
  const Directions directions(ledger.At(col::kType2));
  const double null = std::nan("");

  basic::Sum balance;
  for (size_t row = 0; row < ledger.Count(); ++row) {
    const bool in = directions.In(row);
    double a = amounts_a[row];
    double b = amounts_b[row];
    (in ? ledger.a_in : ledger.a_out).Add(a);
    (in ? ledger.b_in : ledger.b_out).Add(b);
    if (!in) {
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

void NameOrphans(LedgerRows& ledger) {
  Column& names = ledger.At(col::kName);
  const Column& ids = ledger.At(col::kCompID);
  for (size_t row = 0; row < ledger.Count(); ++row) {
    if (EmptyText(names, row)) names.SetText(row, "(" + ids.Text(row) + ") - Error");
  }
}

bool EmptyText(const Column& column, size_t row) {
  if (column.IsNull(row)) return true;
  return column.GetKind() == Column::Kind::Text && column.TextView(row).empty();
}

}  // namespace qvzj
