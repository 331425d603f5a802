#pragma once

#include <optional>
#include <string>
#include <vector>

namespace qvzj {

struct frmZj;

/// What a save still has to do once its checks have passed and the user has agreed.
struct Commit {
  std::vector<std::string> statements;  ///< in the order in which they run
  std::string colon;                    ///< between caption and voucher number in the report
  bool counter_entry = false;           ///< a counter-entry is added, which the report names
};

/// False, after a warning, when one of the entry's texts holds a single quote: it would break the
/// statement it is put into.
bool EntryTextsFit(const frmZj& form);
/// The delete of the shown entry; empty when it is refused or the user cancels. An entry whose
/// warehouse document is checked is deleted from the warehouse side only.
std::optional<Commit> PrepareDelete(frmZj& form);
/// Checks the shown entry, or unchecks it when it is checked; empty when that is refused or the
/// user cancels. A customer entry paid through a money account brings its counter-entry into that
/// account and takes it away again.
std::optional<Commit> PrepareCheck(frmZj& form);

}  // namespace qvzj
