#pragma once

#include <QString>
#include <vector>

#include "platform/table_export.h"
#include "platform/ui/grid.h"

namespace qvzj::qt {

class FormWindow;
struct NativeTexts;

/// Asks for a file and writes the grid into it, as an Excel workbook or as CSV; says how it went.
/// `columns` of the grid (1-based), as the user sees them from left to right. Needs
/// Around().exporter.
void ExportGrid(FormWindow& window, const ui::Grid& grid, const std::vector<int32_t>& columns,
                const NativeTexts& texts);

/// The part of it after the question: writes the grid into the file and says how it went.
void WriteGrid(FormWindow& window, const ui::Grid& grid, const std::vector<int32_t>& columns,
               const NativeTexts& texts, const QString& path, ExportFormat format);

}  // namespace qvzj::qt
