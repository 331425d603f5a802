#include "frontends/qt/export_grid.h"

#include <exception>

#include "frontends/qt/ask_file.h"
#include "frontends/qt/form_window.h"
#include "frontends/qt/text.h"
#include "frontends/qt/work_dialog.h"
#include "platform/surroundings.h"

namespace qvzj::qt {

namespace {

ExportResult WriteWithProgress(FormWindow& window, ExportRequest request, ExportFormat format,
                               const view::Texts& texts) {
  WorkDialog work(&window, FromUtf8(request.title), FromUtf8(texts.exporting),
                  window.Traditional());
  request.progress = work.AsProgress();
  return Around().exporter->Export(request, format);
}

}  // namespace

void ExportGrid(FormWindow& window, const ui::Grid& grid, const std::vector<int32_t>& columns,
                const view::Texts& texts) {
  const view::FileAnswer answer = AskSaveFile(
      window, view::ExportQuestion(view::ExportTitle(grid), texts), window.Traditional());
  if (answer.path.empty()) return;
  WriteGrid(window, view::RequestOf(grid, columns, answer.path), view::FormatOf(answer), texts);
}

void WriteGrid(FormWindow& window, ExportRequest request, ExportFormat format,
               const view::Texts& texts) {
  try {
    const ExportResult result = WriteWithProgress(window, request, format, texts);
    if (result.cancelled) return;
    Around().boxes->Show(view::ExportReport(result, request.path, texts), box::kInformation,
                         request.title);
  } catch (const std::exception& error) {
    Around().boxes->Error(view::Fill(texts.not_exported, {error.what()}), request.title);
  }
}

}  // namespace qvzj::qt
