#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/pages.h"

/// Takes a grid out of the module as a file.
namespace qvzj {

namespace ui {
class Grid;
}

/// What is to be written, and where.
struct ExportRequest {
  const ui::Grid* grid = nullptr;   ///< must be there
  std::vector<int32_t> columns;     ///< the grid's, in their order; empty: all visible ones
  std::string title;                ///< name of the sheet
  std::vector<std::string> totals;  ///< caption, value, caption, value, …; may be empty
  std::string path;                 ///< UTF-8; an existing file is replaced
  Progress progress;                ///< by rows; may be empty
};

/// What became of it.
struct ExportResult {
  bool cancelled = false;       ///< no file was left, an older one stays as it was
  int64_t rows = 0;             ///< written, headers not counted
  int sheets = 1;               ///< a sheet holds 1,048,575 rows; more go on to further ones
  int64_t lost_characters = 0;  ///< written as "?" because the file's encoding lacks them
};

/// The request's columns, or all visible ones of the grid.
std::vector<int32_t> ColumnsOf(const ExportRequest& request);

/// Forms of the file: an Excel workbook, or values parted by commas in one of two encodings.
enum class ExportFormat { Xlsx, CsvUtf8, CsvGb18030 };

/// Writes columns under the headers that the grid shows, without the arrow of the sorted one, and
/// rows in the shown order.
class TableExporter {
 public:
  virtual ~TableExporter() = default;
  /// Throws Error when the file cannot be written; an older file then stays as it was.
  virtual ExportResult Export(const ExportRequest& request, ExportFormat format) = 0;
};

}  // namespace qvzj
