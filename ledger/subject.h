#pragma once

#include <string>

namespace qvzj {

struct frmZj;

/// What the filter panel and the selection narrow the ledger to, in words for a printed page: the
/// record, the period, the filters. "" when it is the whole ledger.
std::string LedgerSubject(const frmZj& form);

/// True when every entry that the ledger grid holds is in renminbi: the currency that comes first
/// in the currency table, if that is its name. Asks the database, by the condition that the ledger
/// was loaded under; false when it does not answer, or answers for another number of entries.
bool LedgerInRenminbi(const frmZj& form);

}  // namespace qvzj
