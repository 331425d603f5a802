#pragma once

#include <cstdint>
#include <string>

#include "platform/basic/date.h"

namespace qvzj {

/// Template in force where the settings table has none.
inline constexpr const char* kDefaultTemplate = "yyyymmPZXXXXX";
/// Kind of NextNumber that answers the first number of a stem without asking the database.
inline constexpr int16_t kFirstNumber = -1;
/// Kind of NextNumber for the ledger's voucher numbers.
inline constexpr int16_t kLedgerNumber = 51;

/// The next free document number of `templ` (upper-cased in place) on `date`: the highest counter
/// in use under the same stem plus one. "" when the template does not end in "X", and, after a
/// warning, when it holds a single quote. The number is
/// proposed, not reserved.
std::string NextNumber(basic::Date date, std::string& templ, int16_t kind);

}  // namespace qvzj
