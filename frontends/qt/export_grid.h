#pragma once

#include "frontends/view/export_report.h"

namespace qvzj::qt {

class FormWindow;

/// Asks for a file and writes the grid into it, as an Excel workbook or as CSV; says how it went.
/// `columns` of the grid (1-based), as the user sees them from left to right. Needs
/// Around().exporter.
void ExportGrid(FormWindow& window, const ui::Grid& grid, const std::vector<int32_t>& columns,
                const view::Texts& texts);

/// The part of it after the question: writes the grid into the file and says how it went.
void WriteGrid(FormWindow& window, ExportRequest request, ExportFormat format,
               const view::Texts& texts);

}  // namespace qvzj::qt
