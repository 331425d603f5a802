#pragma once

#include <cstdint>

#include "platform/table_export.h"

namespace qvzj::exports {

/// Writes grids as Excel workbooks and as comma-separated values.
class SuiteExporter : public TableExporter {
 public:
  ExportResult Export(const ExportRequest& request, ExportFormat format) override;
};

/// Comma-separated values with CRLF line ends, as UTF-8 with a byte-order mark or in GB18030. A
/// text that a spreadsheet would run as a formula (it begins with = + - @, a tab or a carriage
/// return) gets a leading apostrophe; numbers are written plain.
ExportResult ExportCsv(const ExportRequest& request, bool gb18030);

/// What bounds a workbook.
struct XlsxBounds {
  int32_t rows_of_a_sheet = 1'048'575;  ///< without the header
  /// Bytes that must be free where temporary files lie. The library that writes the workbook does
  /// not tell when a temporary file could not be written, so the exporter looks before it happens.
  uint64_t free_space = 16'000'000;
};

/// An Excel workbook: numbers as numbers, dates as dates, frozen header, column widths, the totals
/// below. More rows than a sheet holds go on to further sheets.
ExportResult ExportXlsx(const ExportRequest& request, const XlsxBounds& bounds = {});

}  // namespace qvzj::exports
