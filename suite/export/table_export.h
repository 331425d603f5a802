#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/ui/grid.h"

/// Takes a grid out of the module as a file. Visible columns only, in the order and under the
/// headers that the grid shows, rows in the shown order.
namespace qvzj {

/// Called with done and total rows; answering false cancels, and no file is left.
using ExportProgress = std::function<bool(int64_t done, int64_t total)>;

struct ExportRequest {
  const ui::Grid* grid = nullptr;
  std::string title;                ///< name of the sheet
  std::vector<std::string> totals;  ///< caption, value, caption, value, …; may be empty
  std::string path;                 ///< UTF-8; an existing file is replaced
  ExportProgress progress;
};

struct ExportResult {
  bool cancelled = false;
  int64_t rows = 0;
  int64_t lost_characters = 0;  ///< written as "?" because the file's encoding lacks them
};

enum class CsvEncoding { Utf8WithBom, Gb18030 };

/// Writes comma-separated values with CRLF line ends. A text that a spreadsheet would run as a
/// formula (it begins with = + - @, a tab or a carriage return) gets a leading apostrophe; numbers
/// are written plain. Throws Error when the file cannot be written; the old file then stays.
ExportResult ExportCsv(const ExportRequest& request, CsvEncoding encoding);

/// Writes an Excel workbook: numbers as numbers, dates as dates, frozen header, column widths, the
/// totals below. More rows than a sheet holds go on to further sheets. Throws Error as ExportCsv.
ExportResult ExportXlsx(const ExportRequest& request);

}  // namespace qvzj
