#pragma once

#include "frontends/view/file_answer.h"

class QWidget;

namespace qvzj::qt {

/// Asks where to save a file and as what, by the desktop's own dialog where it has one. Starts in
/// the folder of the last answer. An existing file is replaced only after a question.
view::FileAnswer AskSaveFile(QWidget& owner, const view::FileQuestion& question, bool traditional);

}  // namespace qvzj::qt
