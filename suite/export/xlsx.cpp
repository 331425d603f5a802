#include <xlsxwriter.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <system_error>

#include "platform/basic/errors.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "platform/ui/grid.h"
#include "suite/export/replaced_file.h"
#include "suite/export/suite_exporter.h"

namespace qvzj::exports {
namespace {

constexpr int32_t kProgressRows = 1000;
constexpr int32_t kWidthSample = 1000;  // rows that a column's width is measured on
constexpr double kWidestColumn = 60;    // in characters
constexpr size_t kLongestSheetName = 31;

/// Closes the workbook when something throws before it was closed properly.
struct Discard {
  void operator()(lxw_workbook* workbook) const { lxw_workbook_free(workbook); }
};

/// A title as a sheet may be named.
std::string SheetName(const std::string& title, int part) {
  std::string name;
  for (char c : title)
    name += std::string_view("[]:*?/\\'").find(c) == std::string_view::npos ? c : ' ';
  if (name.empty()) name = "Sheet";
  const std::string tail = part > 1 ? " (" + std::to_string(part) + ")" : "";
  return basic::Left(name, static_cast<int32_t>(kLongestSheetName - tail.size())) + tail;
}

/// Width of a text in the units of a sheet's columns: a Chinese character counts two.
double TextWidth(const std::string& text) {
  double width = 0;
  for (char32_t code : basic::CodePoints(text)) width += code < 0x80 ? 1 : 2;
  return width;
}

class XlsxWriter {
 public:
  XlsxWriter(const ExportRequest& request, const XlsxBounds& bounds, const std::string& path)
      : request_(request),
        grid_(*request.grid),
        bounds_(bounds),
        scratch_(std::filesystem::temp_directory_path().string()) {
    CheckSpace();
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;  // rows go to temporary files as they come
    options.tmpdir = scratch_.data();
    book_.reset(workbook_new_opt(path.c_str(), &options));
    if (!book_) throw Error(path + ": the workbook cannot be made");
    head_ = workbook_add_format(book_.get());
    format_set_bold(head_);
    format_set_align(head_, LXW_ALIGN_CENTER);
    format_set_bg_color(head_, 0xE8EEF4);
    amount_ = workbook_add_format(book_.get());
    format_set_num_format(amount_, "0.00");
    date_ = workbook_add_format(book_.get());
    format_set_num_format(date_, "yyyy-mm-dd");
    for (int32_t column : ColumnsOf(request)) columns_.push_back({column, NumberFormat(column)});
  }

  /// False when the user cancelled.
  bool Write() {
    for (int32_t first = 1; first == 1 || first <= grid_.RowCount();
         first += bounds_.rows_of_a_sheet) {
      NewSheet();
      const int32_t last = std::min(grid_.RowCount(), first + bounds_.rows_of_a_sheet - 1);
      for (int32_t row = first; row <= last; ++row) {
        if (row % kProgressRows == 0) {
          CheckSpace();
          if (request_.progress && !request_.progress(row, grid_.RowCount())) return false;
        }
        WriteRow(row, static_cast<lxw_row_t>(row - first + 1));
      }
      next_row_ = static_cast<lxw_row_t>(std::max(0, last - first + 1) + 1);
    }
    WriteTotals();
    return true;
  }

  int Sheets() const { return sheets_; }

  void Close() {
    const lxw_error failure = workbook_close(book_.release());
    if (failure != LXW_NO_ERROR) throw Error(request_.path + ": " + lxw_strerror(failure));
  }

 private:
  struct SheetColumn {
    int32_t column;
    lxw_format* number;  // null for a column of texts or dates
  };

  void CheckSpace() const {
    if (std::filesystem::space(scratch_).available < bounds_.free_space) {
      throw Error(scratch_ + ": " + std::make_error_code(std::errc::no_space_on_device).message());
    }
  }

  lxw_format* NumberFormat(int32_t column) {
    const int decimals = grid_.ColumnDecimals(column);
    if (decimals < 0) return nullptr;
    lxw_format* format = workbook_add_format(book_.get());
    const std::string code =
        decimals == 0 ? "0" : "0." + std::string(static_cast<size_t>(decimals), '0');
    format_set_num_format(format, code.c_str());
    return format;
  }

  void NewSheet() {
    sheet_ = workbook_add_worksheet(book_.get(), SheetName(request_.title, ++sheets_).c_str());
    if (!sheet_) throw Error(request_.path + ": a sheet cannot be added");
    lxw_col_t place = 0;
    for (const SheetColumn& column : columns_) {
      worksheet_set_column(sheet_, place, place, ColumnWidth(column.column), nullptr);
      Text(0, place++, grid_.PlainHeader(column.column), head_);
    }
    worksheet_freeze_panes(sheet_, 1, 0);
    PreparePrinting();
  }

  /// Who prints the sheet gets its whole width, under the header on every page.
  void PreparePrinting() {
    constexpr uint8_t kA4 = 9;
    worksheet_set_paper(sheet_, kA4);
    worksheet_set_landscape(sheet_);
    worksheet_fit_to_pages(sheet_, 1, 0);
    worksheet_repeat_rows(sheet_, 0, 0);
  }

  double ColumnWidth(int32_t column) const {
    double width = TextWidth(grid_.PlainHeader(column));
    for (int32_t row = 1; row <= std::min(grid_.RowCount(), kWidthSample); ++row) {
      width = std::max(width, TextWidth(grid_.CellText(column, row)));
    }
    return std::min(width + 2, kWidestColumn);
  }

  void WriteRow(int32_t row, lxw_row_t at) {
    lxw_col_t place = 0;
    for (const SheetColumn& column : columns_) {
      const basic::Column& cells = grid_.Stored(column.column);
      if (grid_.CellEmpty(column.column, row)) {
        ++place;
      } else if (column.number) {
        worksheet_write_number(sheet_, at, place++, grid_.CellNumber(column.column, row),
                               column.number);
      } else if (cells.GetKind() == basic::Column::Kind::Date) {
        worksheet_write_number(sheet_, at, place++, grid_.CellNumber(column.column, row), date_);
      } else {
        Text(at, place++, grid_.CellText(column.column, row), nullptr);
      }
    }
  }

  void WriteTotals() {
    lxw_row_t at = next_row_ + 1;
    for (size_t i = 0; i + 1 < request_.totals.size(); i += 2, ++at) {
      Text(at, 0, request_.totals[i], head_);
      worksheet_write_number(sheet_, at, 1, basic::Val(request_.totals[i + 1]), amount_);
    }
  }

  void Text(lxw_row_t row, lxw_col_t column, const std::string& text, lxw_format* format) {
    const lxw_error failure = worksheet_write_string(sheet_, row, column, text.c_str(), format);
    if (failure != LXW_NO_ERROR) throw Error(request_.path + ": " + lxw_strerror(failure));
  }

  const ExportRequest& request_;
  const ui::Grid& grid_;
  const XlsxBounds bounds_;
  std::string scratch_;  // folder of temporary files
  std::unique_ptr<lxw_workbook, Discard> book_;
  lxw_worksheet* sheet_ = nullptr;
  lxw_format* head_ = nullptr;
  lxw_format* amount_ = nullptr;  // of the totals
  lxw_format* date_ = nullptr;
  std::vector<SheetColumn> columns_;
  lxw_row_t next_row_ = 1;
  int sheets_ = 0;
};

}  // namespace

ExportResult ExportXlsx(const ExportRequest& request, const XlsxBounds& bounds) {
  ReplacedFile file(request.path);
  XlsxWriter writer(request, bounds, file.TemporaryPath());
  ExportResult result;
  result.cancelled = !writer.Write();
  if (result.cancelled) return result;
  writer.Close();
  file.Commit();
  result.rows = request.grid->RowCount();
  result.sheets = writer.Sheets();
  return result;
}

}  // namespace qvzj::exports
