#pragma once

#include <exception>
#include <string>

namespace qvzj {

/// What a box tells about an error besides its text: what went wrong, what the user can do, and
/// what the engine or the program itself reported, a line each. `language` is 0 for simplified and
/// 1 for traditional Chinese.
std::string Advice(const std::exception& error, int language);

}  // namespace qvzj
