#pragma once

#include "platform/ui/grid.h"

namespace qvzj::qt {

class FormWindow;
struct NativeTexts;

/// Asks for a file and writes the grid into it, as an Excel workbook or as CSV; says how it went.
/// Needs Around().exporter.
void ExportGrid(FormWindow& window, const ui::Grid& grid, const NativeTexts& texts);

}  // namespace qvzj::qt
