#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/basic/column.h"
#include "platform/basic/number.h"
#include "platform/data/recordset.h"

namespace qvzj {

/// The entries of a ledger as they were read, with everything that is computed over them before
/// the grid is touched.
struct LedgerRows {
  std::vector<basic::Column> columns;  ///< column c of the grid (ledger/columns.h) at c - 1
  basic::Sum a_in, b_in, a_out, b_out;

  basic::Column& At(int32_t column) { return columns[static_cast<size_t>(column - 1)]; }
  const basic::Column& At(int32_t column) const { return columns[static_cast<size_t>(column - 1)]; }
  size_t Count() const { return columns.empty() ? 0 : columns.front().Size(); }
};

/// Entries without an amount: they cannot be added up, so that no balance behind them is true.
struct MissingAmounts {
  size_t count = 0;
  std::string number;  ///< voucher number of the first one
  std::string date;    ///< its date, as shown
};

/// Takes over what the ledger's statement answered.
LedgerRows TakeRows(data::Recordset&& rows);
/// The entries whose amounts are null.
MissingAmounts FindMissingAmounts(const LedgerRows& ledger);
/// Signs the amounts, empties those of 0, runs the balance of each name and sums the totals.
/// Receivables and money in are positive and the other side negative; the opening amounts of money
/// accounts keep their sign. No amount may be missing.
void SignAndBalance(LedgerRows& ledger, bool customers);
/// Lists entries whose register record is gone under the record's id.
void NameOrphans(LedgerRows& ledger);
/// Does the row (0-based) hold no text in the column, or an empty one?
bool EmptyText(const basic::Column& column, size_t row);

}  // namespace qvzj
