#include "suite/export/suite_exporter.h"

namespace qvzj::exports {

ExportResult SuiteExporter::Export(const ExportRequest& request, ExportFormat format) {
  if (format == ExportFormat::Xlsx) return ExportXlsx(request);
  return ExportCsv(request, format == ExportFormat::CsvGb18030);
}

}  // namespace qvzj::exports
