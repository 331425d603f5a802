#pragma once

#include "platform/table_export.h"

namespace qvzj {

/// Writes grids as Excel workbooks and as comma-separated values.
class SuiteExporter : public TableExporter {
 public:
  ExportResult Export(const ExportRequest& request, ExportFormat format) override;
};

/// Comma-separated values with CRLF line ends, as UTF-8 with a byte-order mark or in GB18030. A
/// text that a spreadsheet would run as a formula (it begins with = + - @, a tab or a carriage
/// return) gets a leading apostrophe; numbers are written plain.
ExportResult ExportCsv(const ExportRequest& request, bool gb18030);

/// An Excel workbook: numbers as numbers, dates as dates, frozen header, column widths, the totals
/// below. More rows than a sheet holds go on to further sheets.
ExportResult ExportXlsx(const ExportRequest& request);

}  // namespace qvzj
