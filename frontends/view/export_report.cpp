#include "frontends/view/export_report.h"

#include "platform/ui/form.h"

namespace qvzj::view {

std::string ExportTitle(const ui::Grid& grid) {
  return grid.offers.title ? grid.offers.title() : grid.GetForm().Caption();
}

FileQuestion ExportQuestion(const std::string& title, const Texts& texts) {
  return {title,
          title,
          {{std::string(texts.excel_file), "xlsx"},
           {std::string(texts.csv_utf8_file), "csv"},
           {std::string(texts.csv_gb_file), "csv"}}};
}

ExportFormat FormatOf(const FileAnswer& answer) {
  constexpr ExportFormat kFormats[] = {ExportFormat::Xlsx, ExportFormat::CsvUtf8,
                                       ExportFormat::CsvGb18030};
  return kFormats[answer.type];
}

ExportRequest RequestOf(const ui::Grid& grid, const std::vector<int32_t>& columns,
                        const std::string& path) {
  ExportRequest request;
  request.grid = &grid;
  request.columns = columns;
  request.title = ExportTitle(grid);
  if (grid.offers.totals) request.totals = grid.offers.totals();
  request.path = path;
  return request;
}

std::string ExportReport(const ExportResult& result, const std::string& path, const Texts& texts) {
  std::string said = Fill(texts.exported, {std::to_string(result.rows), path});
  if (result.sheets > 1) said += "\n" + Fill(texts.sheets, {std::to_string(result.sheets)});
  if (result.lost_characters > 0) {
    said += "\n" + Fill(texts.lost, {std::to_string(result.lost_characters)});
  }
  return said;
}

}  // namespace qvzj::view
