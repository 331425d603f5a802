#pragma once

#include <cstdint>

#include "platform/basic/date.h"
#include "suite/store/progress.h"

namespace qvzj::data {
class Store;
}

namespace qvzj::demo_data {

/// How much demo data is made. The same options give the same rows on every machine.
struct Options {
  uint64_t seed = 1;
  int32_t customers = 200;
  int32_t accounts = 8;
  int32_t entries = 5000;  ///< rows of the ledger, opening balances and counter-entries included
  int32_t years = 2;       ///< the entries lie in the years before `until`
  basic::Date until = basic::Date::FromYmd(2025, 12, 31);
};

/// Fills an empty database with the plausible data of a trading company: currencies, staff,
/// numbering templates, functions, money accounts, customers, visit records, warehouse documents,
/// orders and a ledger in which older entries are checked and have their counter-entries. It
/// is written as a whole or not at all. Throws Error when the register or the ledger holds rows
/// already or an option is out of range (customers 1 to 10,000,000, accounts 1 to 1,000, years 1 to
/// 50, entries 0 to 100,000,000), DataError when the engine refuses.
void MakeData(data::Store& store, const Options& options, const store::RowProgress& progress);

}  // namespace qvzj::demo_data
