#pragma once

#include <string>
#include <vector>

#include "platform/data/store.h"

/// The second line of defence against money that is booked twice: a unique index on the link of
/// counter-entries (`fID2` of entries with `fType1` 1), so that no writer, however it looks before
/// it writes, gives a customer entry a second counter-entry. An index over the rows of this kind
/// alone: everywhere else `fID2` is a money account, which many entries share.
namespace qvzj::store {

/// Statement that makes the index where it is not there, with "if not exists".
extern const char* const kCounterIndex;

/// What stands against the index, a line for each customer entry: "entry 5 has 2 counter-entries:
/// 7, 9". Empty where nothing does, and for a ledger that has no links yet. Throws DataError.
std::vector<std::string> DoubledCounterEntries(data::Store& store);

/// Makes the index unless a row stands against it; answers those lines. Throws DataError.
std::vector<std::string> GuardCounterEntries(data::Store& store);

/// Takes the index away, for rows that are to be kept as they are.
void UnguardCounterEntries(data::Store& store);

}  // namespace qvzj::store
