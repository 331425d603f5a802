#pragma once

#include <string>

#include "platform/boxes.h"

namespace qvzj {

/// Shows a message box titled with the application title.
Answer Message(const std::string& text, int style);
/// Shows a message box with a title of its own.
Answer Message(const std::string& text, int style, const std::string& title);

}  // namespace qvzj
