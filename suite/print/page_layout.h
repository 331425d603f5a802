#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/basic/date.h"
#include "platform/components.h"
#include "platform/ui/grid.h"
#include "suite/print/metrics.h"

/// Breaks a print job into pages, apart from painting: a front end paints what it is told, and a
/// test reads it as text. All lengths are points (1/72 inch), from the paper's top left corner.
namespace qvzj {

/// Paper in portrait; the layout turns it where the columns need the width.
struct Paper {
  double width = 595.28;   // A4
  double height = 841.89;
  double margin = 36;
};

enum class PrintAlign { Left, Center, Right };

struct PlacedText {
  double x = 0;       ///< left edge of the room
  double y = 0;       ///< top edge of the line
  double width = 0;   ///< room for the text
  double size = 9;    ///< font size
  PrintAlign align = PrintAlign::Left;
  bool bold = false;
  std::string text;
};

struct PlacedLine {
  double x1, y1, x2, y2;
};

/// A filled rectangle behind the texts, 0xRRGGBB.
struct PlacedFill {
  double x, y, width, height;
  uint32_t color;
};

struct Page {
  std::vector<PlacedFill> fills;
  std::vector<PlacedLine> lines;
  std::vector<PlacedText> texts;
};

/// Called with done and total rows; answering false cancels.
using PrintProgress = std::function<bool(int64_t done, int64_t total)>;

class PageLayout {
 public:
  /// Measures the job's grid and breaks it into pages. The grid must stay unchanged while the
  /// layout is used. `cancelled` is true when `progress` said so; there are no pages then.
  PageLayout(const PrintJob& job, basic::Date print_date, const TextMetrics& metrics,
             const Paper& paper = {}, const PrintProgress& progress = {});

  bool Cancelled() const { return cancelled_; }
  bool Landscape() const { return landscape_; }
  double PageWidth() const { return landscape_ ? paper_.height : paper_.width; }
  double PageHeight() const { return landscape_ ? paper_.width : paper_.height; }
  int PageCount() const { return static_cast<int>(first_rows_.size()); }
  /// Font size of the table, in points.
  double FontSize() const { return size_; }
  /// Everything on a page, 0-based.
  Page MakePage(int page) const;

 private:
  struct PrintColumn {
    int32_t column;    // of the grid
    bool number;       // right-aligned, never wrapped
    double needed;     // widest text, at size 1
    double width = 0;  // points, padding included
  };

  void ChooseColumns();
  bool MeasureColumns(const PrintProgress& progress);
  void FitWidths();
  double NaturalWidth(double size) const;
  bool WrapInto(double room, double size);
  void SpreadSlack();
  void BuildTotals();
  bool LedgerInLocalCurrency() const;
  bool BreakPages(const PrintProgress& progress);
  std::vector<std::string> Wrap(const std::string& text, double room) const;
  int32_t RowLines(int32_t row) const;
  double RowHeight(int32_t lines) const;
  double InnerWidth() const { return PageWidth() - 2 * paper_.margin; }
  double RowsTop() const;
  double RowsBottom() const;
  double TotalsHeight() const;
  int32_t LastRow(int page) const;
  void PlaceHead(Page& page) const;
  double PlaceRow(Page& page, int32_t row, double y) const;
  void PlaceGridLines(Page& page, const std::vector<double>& ys) const;
  void PlaceTotals(Page& page, double y) const;
  void PlaceFoot(Page& page, int number) const;

  PrintJob job_;
  const ui::Grid& grid_;
  basic::Date print_date_;
  const TextMetrics& metrics_;
  Paper paper_;
  bool landscape_ = false;
  bool cancelled_ = false;
  bool wraps_ = false;
  double size_ = 0;
  std::vector<PrintColumn> columns_;
  std::vector<std::string> totals_;   // what the closing block says, in order
  std::string in_words_;              // the last total in capital numerals, "" for none
  std::vector<int32_t> first_rows_;   // first grid row of each page, past the end for totals alone
};

}  // namespace qvzj
