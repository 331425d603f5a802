#pragma once

#include <exception>
#include <string>

#include "platform/boxes.h"

namespace qvzj {

/// Shows a message box titled with the application title.
Answer Message(const std::string& text, int style);
/// Shows a message box with a title of its own.
Answer Message(const std::string& text, int style, const std::string& title);
/// Shows a message box titled with the application title whose detail tells of `cause`.
Answer Message(const std::string& text, int style, const std::exception& cause);
/// Reports an error that escaped a behaviour: its own text in a box, with the advice as detail.
void ReportError(const std::exception& error);

}  // namespace qvzj
