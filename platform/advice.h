#pragma once

#include <exception>
#include <string>

#include "platform/language.h"

namespace qvzj {

/// What a box tells about an error besides its text: what went wrong, what the user can do, and
/// what the engine or the program itself reported, a line each.
std::string Advice(const std::exception& error, Language language);

}  // namespace qvzj
