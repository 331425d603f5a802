#include "frontends/qt/export_grid.h"

#include <QFileDialog>
#include <exception>

#include "frontends/qt/form_window.h"
#include "frontends/qt/native_texts.h"
#include "frontends/qt/print/work_dialog.h"
#include "frontends/qt/text.h"
#include "platform/surroundings.h"

namespace qvzj::qt {

namespace {

struct Target {
  QString path;
  ExportFormat format = ExportFormat::Xlsx;
};

/// The file and format the user chose; an empty path when there is none.
Target AskTarget(FormWindow& window, const QString& title, const NativeTexts& texts) {
  const QString workbook = texts.excel_file + " (*.xlsx)";
  const QString utf8 = texts.csv_utf8_file + " (*.csv)";
  const QString gb18030 = texts.csv_gb_file + " (*.csv)";
  QString chosen = workbook;
  Target target;
  target.path = QFileDialog::getSaveFileName(
      &window, title, title + ".xlsx", QStringList{workbook, utf8, gb18030}.join(";;"), &chosen);
  if (target.path.isEmpty()) return target;
  if (chosen == utf8) target.format = ExportFormat::CsvUtf8;
  if (chosen == gb18030) target.format = ExportFormat::CsvGb18030;
  // The name's ending follows the format, not the other way round.
  const QString ending = target.format == ExportFormat::Xlsx ? ".xlsx" : ".csv";
  if (!target.path.endsWith(ending, Qt::CaseInsensitive)) {
    if (target.path.endsWith(".xlsx") || target.path.endsWith(".csv")) {
      target.path.truncate(target.path.lastIndexOf('.'));
    }
    target.path += ending;
  }
  return target;
}

std::string TitleOf(const FormWindow& window, const ui::Grid& grid) {
  return grid.offers.title ? grid.offers.title() : window.GetForm().Caption();
}

}  // namespace

void ExportGrid(FormWindow& window, const ui::Grid& grid, const NativeTexts& texts) {
  const Target target = AskTarget(window, FromUtf8(TitleOf(window, grid)), texts);
  if (!target.path.isEmpty()) WriteGrid(window, grid, texts, target.path, target.format);
}

void WriteGrid(FormWindow& window, const ui::Grid& grid, const NativeTexts& texts,
               const QString& path, ExportFormat format) {
  ExportRequest request;
  request.grid = &grid;
  request.title = TitleOf(window, grid);
  if (grid.offers.totals) request.totals = grid.offers.totals();
  request.path = ToUtf8(path);
  WorkDialog work(&window, FromUtf8(request.title));
  request.progress = work.AsProgress();
  try {
    const ExportResult result = Around().exporter->Export(request, format);
    if (result.cancelled) return;
    QString said = texts.exported.arg(result.rows).arg(path);
    if (result.lost_characters > 0) said += "\n" + texts.lost.arg(result.lost_characters);
    Around().boxes->Show(ToUtf8(said), box::kInformation, request.title);
  } catch (const std::exception& error) {
    Around().boxes->Error(error.what(), request.title);
  }
}

}  // namespace qvzj::qt
