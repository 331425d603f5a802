#pragma once

#include <string>
#include <vector>

namespace qvzj {

struct frmZj;

/// Whether something stands in the entry editor that was typed and not saved, so that no way out of
/// it loses that unasked.

/// What the editor holds now counts as nothing typed: it was shown, reset or saved.
void EntryAtRest(frmZj& form);
/// The same for the voucher number alone, which was proposed.
void NumberAtRest(frmZj& form);
/// The same for the customer or account and the direction that it brings, which were carried over
/// from the register.
void RecordOfEntryAtRest(frmZj& form);
/// True when an entry is being keyed, new or to be changed, and differs from what it was at rest.
bool EntryUnsaved(const frmZj& form);
/// The armed action by the editor's title, for a question about what is unsaved.
std::string EntryWork(const frmZj& form);

/// Asks whether the works that are named may be given up; true also when there are none.
bool MayGiveUp(const std::vector<std::string>& works);
/// Asks about the entry editor alone.
bool MayGiveUpEntry(const frmZj& form);

}  // namespace qvzj
