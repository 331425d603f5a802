#pragma once

#include <cstdint>
#include <string>

namespace qvzj {

struct frmZj;

/// The entry editor: the panel in which one ledger entry is shown, keyed in or armed for deletion
/// or checking.

/// Connects the events of the action buttons and of the panel's fields.
void ConnectEditor(frmZj& form);
/// Arranges the panel's controls for the run mode.
void ArrangeEditor(frmZj& form);
/// What a press of `cmdAction(action)` does: show, reset or arm the entry (kAction… of frmZj.h).
void PressAction(frmZj& form, int action);
/// Resets the panel for a new entry.
void ResetEntry(frmZj& form);
/// Makes `row` the ledger grid's active row and copies it into the panel. The signs that the grid
/// shows are undone, so that saving unchanged writes back what was read.
void ShowLedgerRow(frmZj& form, int32_t row);
/// Locks or frees the fields for an action.
void LockEntry(frmZj& form, int action);
/// Shows the checker's name, or hides it when empty.
void ShowChecker(frmZj& form, const std::string& name);
/// Chooses the money account of that id in `cboAcntName`; none when it is below 1 or unknown.
void SelectAccountById(frmZj& form, int32_t id);

}  // namespace qvzj
