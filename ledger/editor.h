#pragma once

#include <cstdint>
#include <optional>
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
/// True while the user keys a new entry in: a reload of the ledger must not overwrite it.
bool KeyingNewEntry(const frmZj& form);
/// Resets the panel for a new entry.
void ResetEntry(frmZj& form);
/// The currency of the entry of that id, which the ledger grid does not carry; empty for no value.
std::optional<std::string> ReadCurrency(const std::string& id);
/// Makes `row` the ledger grid's active row and copies it into the panel with its currency, which
/// is read first where it is not given: an entry that cannot be read changes nothing. The signs
/// that the grid shows are undone, so that saving unchanged writes back what was read.
void ShowLedgerRow(frmZj& form, int32_t row);
void ShowLedgerRow(frmZj& form, int32_t row, const std::optional<std::string>& currency);
/// Offers the actions that fit the entry of a ledger grid row: a checked one can be neither
/// changed nor deleted, and is unchecked instead of checked.
void OfferActions(frmZj& form, int32_t row);
/// Lets `cmdAcntSave` be pressed exactly while the armed action's button can be, and locks the
/// fields to match.
void OfferSave(frmZj& form);
/// Locks or frees the fields for an action.
void LockEntry(frmZj& form, int action);
/// Shows the checker's name, or hides it when empty.
void ShowChecker(frmZj& form, const std::string& name);
/// Chooses the money account of that id in `cboAcntName`; none when it is below 1 or unknown.
void SelectAccountById(frmZj& form, int32_t id);

}  // namespace qvzj
