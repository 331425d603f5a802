#pragma once

#include <string>
#include <vector>

#include "frontends/view/file_answer.h"
#include "frontends/view/texts.h"
#include "platform/table_export.h"

/// Taking a grid out as a file: what is asked before and said afterwards.
namespace qvzj::view {

/// What a file made from the grid is called.
std::string ExportTitle(const ui::Grid& grid);

/// The question for the file; FormatOf tells what the chosen type stands for.
FileQuestion ExportQuestion(const std::string& title, const Texts& texts);
ExportFormat FormatOf(const FileAnswer& answer);

/// `columns` of the grid (1-based), as the user sees them from left to right. Without progress.
ExportRequest RequestOf(const ui::Grid& grid, const std::vector<int32_t>& columns,
                        const std::string& path);

/// Says how an export went that was not cancelled.
std::string ExportReport(const ExportResult& result, const std::string& path, const Texts& texts);

}  // namespace qvzj::view
