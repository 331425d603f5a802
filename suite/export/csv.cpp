#include <cerrno>
#include <cstring>
#include <fstream>
#include <optional>

#include "adapters/icu/encoder.h"
#include "platform/basic/errors.h"
#include "platform/ui/grid.h"
#include "suite/export/replaced_file.h"
#include "suite/export/suite_exporter.h"

namespace qvzj::exports {
namespace {

constexpr int32_t kProgressRows = 1000;
constexpr const char* kUtf8Bom = "\xEF\xBB\xBF";

/// A text in the form that a spreadsheet reads back as that text.
std::string TextField(std::string text) {
  if (!text.empty() && std::string_view("=+-@\t\r").find(text.front()) != std::string_view::npos) {
    text.insert(text.begin(), '\'');
  }
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (char c : text) {
    if (c == '"') quoted += '"';
    quoted += c;
  }
  return quoted + '"';
}

/// One file being written, in its encoding.
class CsvWriter {
 public:
  CsvWriter(const std::string& path, bool gb18030)
      : path_(path), out_(path, std::ios::binary | std::ios::trunc) {
    CheckState();
    if (gb18030) {
      encoder_.emplace("GB18030");
    } else {
      out_ << kUtf8Bom;
    }
  }

  void Field(const std::string& field) {
    if (!line_.empty() || fields_ > 0) line_ += ',';
    line_ += field;
    ++fields_;
  }
  void EndLine() {
    line_ += "\r\n";
    out_ << (encoder_ ? encoder_->Encode(line_) : line_);
    CheckState();
    line_.clear();
    fields_ = 0;
  }
  int64_t Close() {
    out_.close();
    CheckState();
    return encoder_ ? encoder_->Lost() : 0;
  }

 private:
  void CheckState() {
    if (!out_) throw Error(path_ + ": " + std::strerror(errno));
  }

  std::string path_;
  std::ofstream out_;
  std::optional<IcuEncoder> encoder_;
  std::string line_;
  int fields_ = 0;
};

}  // namespace

ExportResult ExportCsv(const ExportRequest& request, bool gb18030) {
  const ui::Grid& grid = *request.grid;
  const std::vector<int32_t> columns = ColumnsOf(request);
  ReplacedFile file(request.path);
  CsvWriter writer(file.TemporaryPath(), gb18030);
  for (int32_t column : columns) writer.Field(TextField(grid.PlainHeader(column)));
  writer.EndLine();
  for (int32_t row = 1; row <= grid.RowCount(); ++row) {
    if (request.progress && row % kProgressRows == 0 && !request.progress(row, grid.RowCount())) {
      return {.cancelled = true};
    }
    for (int32_t column : columns) {
      const std::string text = grid.CellText(column, row);
      writer.Field(grid.ColumnDecimals(column) >= 0 ? text : TextField(text));
    }
    writer.EndLine();
  }
  for (size_t i = 0; i + 1 < request.totals.size(); i += 2) {
    writer.Field(TextField(request.totals[i]));
    writer.Field(request.totals[i + 1]);
    writer.EndLine();
  }
  ExportResult result;
  result.rows = grid.RowCount();
  result.lost_characters = writer.Close();
  file.Commit();
  return result;
}

}  // namespace qvzj::exports
