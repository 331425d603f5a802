#pragma once

#include <QString>

namespace qvzj::demo {

class DemoHost;

/// Draws the screens of both modes in both languages into PNG files in `folder` and names each
/// file on standard output. False when the control did not open, a file could not be written or a
/// box came up; what the box said goes to standard error.
bool TakeShots(DemoHost& host, const QString& folder);

}  // namespace qvzj::demo
