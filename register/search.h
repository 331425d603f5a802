#pragma once

#include <string>

namespace qvzj {

struct frmZj;

/// Connects the search frame and the selection options.
void ConnectRegisterSearch(frmZj& form);
/// The search frame as a condition on the register table (alias `a`); never empty.
std::string BuildRegisterCondition(const frmZj& form);
/// Stores the search frame's condition as the form's register condition and reloads the register.
/// False, after a warning and with nothing changed, when a text of a ticked row holds a quote.
bool SearchRegister(frmZj& form);

}  // namespace qvzj
