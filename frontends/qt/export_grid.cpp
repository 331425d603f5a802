#include "frontends/qt/export_grid.h"

#include <exception>

#include "frontends/qt/ask_file.h"
#include "frontends/qt/form_window.h"
#include "frontends/qt/native_texts.h"
#include "frontends/qt/text.h"
#include "frontends/qt/work_dialog.h"
#include "platform/surroundings.h"

namespace qvzj::qt {

namespace {

std::string TitleOf(const FormWindow& window, const ui::Grid& grid) {
  return grid.offers.title ? grid.offers.title() : window.GetForm().Caption();
}

}  // namespace

void ExportGrid(FormWindow& window, const ui::Grid& grid, const std::vector<int32_t>& columns,
                const NativeTexts& texts) {
  constexpr ExportFormat kFormats[] = {ExportFormat::Xlsx, ExportFormat::CsvUtf8,
                                       ExportFormat::CsvGb18030};
  const QString title = FromUtf8(TitleOf(window, grid));
  const FileQuestion question{
      title,
      title,
      {{texts.excel_file, "xlsx"}, {texts.csv_utf8_file, "csv"}, {texts.csv_gb_file, "csv"}}};
  const FileAnswer answer = AskSaveFile(window, question, window.Traditional());
  if (answer.path.isEmpty()) return;
  WriteGrid(window, grid, columns, texts, answer.path, kFormats[answer.type]);
}

void WriteGrid(FormWindow& window, const ui::Grid& grid, const std::vector<int32_t>& columns,
               const NativeTexts& texts, const QString& path, ExportFormat format) {
  ExportRequest request;
  request.grid = &grid;
  request.columns = columns;
  request.title = TitleOf(window, grid);
  if (grid.offers.totals) request.totals = grid.offers.totals();
  request.path = ToUtf8(path);
  try {
    ExportResult result;
    {
      WorkDialog work(&window, FromUtf8(request.title), texts.exporting, window.Traditional());
      request.progress = work.AsProgress();
      result = Around().exporter->Export(request, format);
    }
    if (result.cancelled) return;
    QString said = texts.exported.arg(result.rows).arg(path);
    if (result.sheets > 1) said += "\n" + texts.sheets.arg(result.sheets);
    if (result.lost_characters > 0) said += "\n" + texts.lost.arg(result.lost_characters);
    Around().boxes->Show(ToUtf8(said), box::kInformation, request.title);
  } catch (const std::exception& error) {
    const QString reason = FromUtf8(error.what());
    Around().boxes->Error(ToUtf8(texts.not_exported.arg(reason)), request.title);
  }
}

}  // namespace qvzj::qt
