#pragma once

#include <string>

namespace qvzj {

struct frmZj;

/// Connects the search frame and the selection options.
void ConnectRegisterSearch(frmZj& form);
/// The search frame as a condition on the register table (alias `a`); never empty.
std::string BuildRegisterCondition(const frmZj& form);
/// Stores the search frame's condition as the form's register condition and reloads the register.
/// Nothing but a warning when a text of a ticked row holds a quote.
void SearchRegister(frmZj& form);
/// The same on the record of id `record`, which is looked for under the former condition when a
/// text may not be asked for.
void SearchRecord(frmZj& form, const std::string& record);

}  // namespace qvzj
