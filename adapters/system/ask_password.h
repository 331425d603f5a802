#pragma once

#include <string>

namespace qvzj {

/// Asks on the terminal, which does not show what is typed; input from elsewhere is read as it is,
/// a line of it. "" at its end.
std::string AskPassword(const std::string& prompt);

}  // namespace qvzj
