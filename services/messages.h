#pragma once

#include <exception>
#include <optional>
#include <string>

#include "platform/boxes.h"

/// Boxes of the module. The host may close the form while one is open; the act of that form then
/// ends with the box (see ui::Form::EndActOfClosedForm).
namespace qvzj {

/// Shows a message box titled with the application title.
Answer Message(const std::string& text, int style);
/// Shows a message box with a title of its own.
Answer Message(const std::string& text, int style, const std::string& title);
/// Shows a message box titled with the application title whose detail tells of `cause`.
Answer Message(const std::string& text, int style, const std::exception& cause);
/// Asks for a line of text under the application title; empty when the user cancels.
std::optional<std::string> AskText(const std::string& prompt);
/// Reports an error that escaped a behaviour: its own text in a box, with the advice as detail.
void ReportError(const std::exception& error);

}  // namespace qvzj
