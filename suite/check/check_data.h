#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace qvzj::data {
class Store;
}

namespace qvzj::check {

/// Kinds of faults that data can have, in the order in which they are looked for.
enum class FaultKind {
  File,             ///< pages or indexes of the data file are damaged
  Kind,             ///< an entry of no ledger: fType1 is not 0, 1 or 9
  Orphan,           ///< an entry whose customer or money account is gone
  Amount,           ///< an amount that is null or no number
  Checker,          ///< a checker that is null: neither checked nor unchecked to the filter
  Date,             ///< an entry without a date that can be read
  Link,             ///< a customer entry linked to a money account that is gone
  Counter,          ///< a counter-entry out of step with its customer entry, or missing
  DuplicateNumber,  ///< several entries of one ledger with one voucher number
};

/// Short name of a kind, as reports print it.
const char* NameOf(FaultKind kind);

struct Fault {
  FaultKind kind;
  std::string text;  ///< names the rows and what is wrong with them
};

/// Looks for every fault of the data and reports each; answers how many there are. Nothing is
/// changed. Throws DataError when a table is missing or the engine fails. Knows SQLite and
/// PostgreSQL.
int64_t CheckData(data::Store& store, const std::function<void(const Fault&)>& report);

}  // namespace qvzj::check
