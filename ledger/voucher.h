#pragma once

namespace qvzj {

struct frmZj;

/// The voucher number of the entry in the editor. It is proposed and not reserved; a number that
/// the user typed may be borne by several entries, as an invoice and its settlement do.

/// Puts the next free number of the entry's date into its box.
void ProposeNumber(frmZj& form);
/// Before a new entry is stored: a number that was proposed and is taken by now gives way to the
/// next free one. What the user typed stays.
void TakeFreeNumber(frmZj& form);
/// What was proposed and looked up belongs to another entry: forgets it.
void ForgetNumber(frmZj& form);
/// Says quietly in the editor how many other entries bear the number that the user typed.
void ShowNumberUse(frmZj& form);

}  // namespace qvzj
