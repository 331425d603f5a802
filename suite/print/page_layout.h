#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/basic/date.h"
#include "platform/components.h"
#include "platform/pages.h"
#include "platform/ui/grid.h"

/// Breaks a print job into pages, apart from painting: a front end paints what it is told, and a
/// test reads it as text. All lengths are points (1/72 inch), from the paper's top left corner.
namespace qvzj::print {

/// Paper in portrait; the layout turns it where the columns need the width.
struct Paper {
  double width = 595.28;  // A4
  double height = 841.89;
  double margin = 36;
};

class PageLayout final : public PageSource {
 public:
  /// Measures the job's grid and breaks it into pages. The grid must stay unchanged while the
  /// layout is used. `cancelled` is true when `progress` said so; there are no pages then.
  PageLayout(const PrintJob& job, basic::Date print_date, const TextMetrics& metrics,
             const Paper& paper = {}, const Progress& progress = {});

  bool Cancelled() const { return cancelled_; }
  bool Landscape() const { return landscape_; }
  double PageWidth() const override { return landscape_ ? paper_.height : paper_.width; }
  double PageHeight() const override { return landscape_ ? paper_.width : paper_.height; }
  int PageCount() const override { return static_cast<int>(starts_.size()); }
  /// Font size of the table, in points.
  double FontSize() const { return size_; }
  Page MakePage(int number) const override;

 private:
  struct PrintColumn {
    int32_t column;    // of the grid
    bool number;       // right-aligned, never wrapped
    double needed;     // widest text, at size 1
    double width = 0;  // points, padding included
  };

  /// Where a page goes on: a grid row, and the line of it for a row higher than a page.
  struct Start {
    int32_t row;
    int32_t line;
  };

  void ChooseColumns();
  bool MeasureColumns(const Progress& progress);
  void FitWidths();
  double NaturalWidth(double size) const;
  bool WrapInto(double room, double size);
  void SpreadSlack();
  void BuildTotals();
  bool BreakPages(const Progress& progress);
  std::vector<std::string> Wrap(const std::string& text, double room, double size) const;
  int32_t RowLines(int32_t row) const;
  double RowHeight(int32_t lines) const;
  double InnerWidth() const { return PageWidth() - 2 * paper_.margin; }
  double RowsTop() const;
  double RowsBottom() const;
  double TotalsHeight() const;
  Start EndOf(int page) const;
  void PlaceHead(Page& page) const;
  double PlaceRow(Page& page, int32_t row, int32_t first_line, int32_t lines, double y) const;
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
  std::vector<std::string> subject_;  // what the list is about, in lines under the title
  std::string count_;                 // how many records there are
  std::vector<std::string> totals_;   // captions with their values, in order
  std::string in_words_;              // the last total in capital numerals, "" for none
  std::vector<Start> starts_;         // of the pages; past the last row for totals alone
};

}  // namespace qvzj::print
