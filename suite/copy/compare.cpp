#include "suite/copy/compare.h"

#include <cmath>

#include "platform/basic/errors.h"
#include "platform/basic/number.h"
#include "suite/copy/lots.h"

namespace qvzj::copy {
namespace {

using basic::Column;

bool SameValue(const Column& left, const Column& right, size_t row) {
  const bool null = left.IsNull(row);
  if (null || right.IsNull(row)) return null && right.IsNull(row);
  if (left.GetKind() != right.GetKind()) return left.Text(row) == right.Text(row);
  switch (left.GetKind()) {
    case Column::Kind::Real:
      return left.Reals()[row] == right.Reals()[row];
    case Column::Kind::Text:
      return left.TextView(row) == right.TextView(row);
    default:
      return left.Number(row) == right.Number(row);
  }
}

std::string Shown(const Column& column, size_t row) {
  return column.IsNull(row) ? "null" : "\"" + column.Text(row) + "\"";
}

/// A total with two decimals. One that no number can hold is told as such: the rows agree all the
/// same.
std::string Shown(double total) {
  return std::isfinite(total) ? basic::FormatFixed(total, 2) : basic::NumberText(total);
}

class Comparison {
 public:
  Comparison(const store::Table& table, const std::vector<std::string>& columns)
      : table_(table), columns_(columns), sums_(table.amounts.size()) {}

  void Take(const data::Recordset& left, const data::Recordset& right) {
    const auto rows = static_cast<size_t>(std::min(left.RecordCount(), right.RecordCount()));
    for (int field = 0; field < left.FieldCount(); ++field) {
      for (size_t row = 0; row < rows; ++row) {
        if (!SameValue(left.ColumnAt(field), right.ColumnAt(field), row)) {
          Refuse(left, right, field, row);
        }
      }
    }
    if (left.RecordCount() != right.RecordCount()) {
      throw Error(Head() + std::to_string(rows_ + left.RecordCount()) +
                  " rows or more in the source, " + std::to_string(rows_ + right.RecordCount()) +
                  " in the target");
    }
    rows_ += left.RecordCount();
    for (size_t i = 0; i < sums_.size(); ++i) AddUp(left, i);
  }

  CopiedTable Result() const {
    CopiedTable copied{table_.name, rows_, {}};
    for (size_t i = 0; i < sums_.size(); ++i) {
      copied.sums.emplace_back(table_.amounts[i], Shown(sums_[i].Value()));
    }
    return copied;
  }

 private:
  std::string Head() const {
    return std::string("The copy is not finished, for source and target differ: ") + table_.name +
           ", ";
  }

  [[noreturn]] void Refuse(const data::Recordset& left, const data::Recordset& right, int field,
                           size_t row) const {
    const int key = left.FieldIndex(table_.key);
    throw Error(Head() + table_.key + " " + left.ColumnAt(key).Text(row) + ", " +
                columns_[static_cast<size_t>(field)] + ": " + Shown(left.ColumnAt(field), row) +
                " in the source, " + Shown(right.ColumnAt(field), row) + " in the target");
  }

  void AddUp(const data::Recordset& rows, size_t amount) {
    const Column& column = rows.ColumnAt(rows.FieldIndex(table_.amounts[amount]));
    for (size_t row = 0; row < column.Size(); ++row) {
      if (!column.IsNull(row)) sums_[amount].Add(column.Number(row));
    }
  }

  const store::Table& table_;
  const std::vector<std::string>& columns_;
  std::vector<basic::Sum> sums_;
  int64_t rows_ = 0;
};

}  // namespace

CopiedTable CompareTables(data::Store& source, data::Store& target, const store::Table& table,
                          const std::vector<std::string>& columns, int32_t lot) {
  Comparison comparison(table, columns);
  std::optional<int64_t> after;
  while (true) {
    const data::Recordset left = ReadLot(source, table, columns, after, lot);
    const data::Recordset right = ReadLot(target, table, columns, after, lot);
    comparison.Take(left, right);
    if (left.RecordCount() == 0) break;
    after = LastKey(table, left);
    if (!after) break;
  }
  return comparison.Result();
}

}  // namespace qvzj::copy
