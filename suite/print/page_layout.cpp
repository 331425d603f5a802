#include "suite/print/page_layout.h"

#include <algorithm>
#include <cmath>

#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "suite/print/amount_words.h"
#include "suite/print/print_words.h"

namespace qvzj::print {
namespace {

constexpr int32_t kProgressRows = 1000;  // rows between two progress reports
constexpr double kTitleSize = 16;
constexpr double kTextSize = 9;  // head, foot and totals
constexpr double kLargestTable = 9;
constexpr double kSmallestTable = 7;  // below this a line is wrapped rather than shrunk
constexpr double kTiny = 5;           // what many columns may still come down to
constexpr double kPadding = 0.7;      // both sides of a cell, in em
constexpr double kNarrowestWrap = 5;  // room a wrapped column keeps, in em
constexpr double kLine = 1.35;        // line height, in em
constexpr int kTotalsLines = 2;       // the totals stand in two lines, as on the screen
constexpr int16_t kLedger = 1;

std::string WithoutColon(std::string caption) {
  for (const std::string colon : {":", "："}) {
    if (caption.ends_with(colon)) caption.resize(caption.size() - colon.size());
  }
  return caption;
}

}  // namespace

PageLayout::PageLayout(const PrintJob& job, basic::Date print_date, const TextMetrics& metrics,
                       const Paper& paper, const Progress& progress)
    : job_(job), grid_(*job.grid), print_date_(print_date), metrics_(metrics), paper_(paper) {
  ChooseColumns();
  cancelled_ = !MeasureColumns(progress);
  if (cancelled_) return;
  FitWidths();
  if (!job_.facts.subject.empty()) subject_ = Wrap(job_.facts.subject, InnerWidth(), kTextSize);
  BuildTotals();
  cancelled_ = !BreakPages(progress);
  if (cancelled_) starts_.clear();
}

void PageLayout::ChooseColumns() {
  for (int32_t column = 1; column <= grid_.ColumnCount(); ++column) {
    if (grid_.ColumnHidden(column)) continue;
    columns_.push_back(
        {column, grid_.ColumnDecimals(column) >= 0, metrics_.Width(grid_.PlainHeader(column))});
  }
}

bool PageLayout::MeasureColumns(const Progress& progress) {
  for (int32_t row = 1; row <= grid_.RowCount(); ++row) {
    if (progress && row % kProgressRows == 0 && !progress(row, 2 * int64_t{grid_.RowCount()})) {
      return false;
    }
    for (PrintColumn& column : columns_) {
      column.needed = std::max(column.needed, metrics_.Width(grid_.CellText(column.column, row)));
    }
  }
  return true;
}

double PageLayout::NaturalWidth(double size) const {
  double width = 0;
  for (const PrintColumn& column : columns_) width += (column.needed + kPadding) * size;
  return width;
}

void PageLayout::FitWidths() {
  size_ = kLargestTable;
  if (NaturalWidth(size_) > InnerWidth()) landscape_ = true;
  while (NaturalWidth(size_) > InnerWidth() && size_ > kSmallestTable) size_ -= 0.5;
  if (NaturalWidth(size_) > InnerWidth()) {
    wraps_ = true;
    while (!WrapInto(InnerWidth(), size_) && size_ > kTiny) size_ -= 0.5;
    return;
  }
  for (PrintColumn& column : columns_) column.width = (column.needed + kPadding) * size_;
  SpreadSlack();
}

/// Gives every column its natural width but cuts the widest texts to one common limit, so that the
/// table fills `room`. False when that limit would be too narrow to read; the widths then still
/// fit the room.
bool PageLayout::WrapInto(double room, double size) {
  std::vector<double> texts;
  double fixed = 0;
  for (const PrintColumn& column : columns_) {
    fixed += kPadding * size;
    if (column.number) {
      fixed += column.needed * size;
    } else {
      texts.push_back(column.needed * size);
    }
  }
  std::sort(texts.begin(), texts.end());
  double left = room - fixed;
  double limit = 0;
  for (size_t i = 0; i < texts.size(); ++i) {
    limit = left / static_cast<double>(texts.size() - i);
    if (texts[i] > limit) break;
    left -= texts[i];
  }
  limit = std::max(limit, size);
  for (PrintColumn& column : columns_) {
    const double needed = column.needed * size;
    column.width = kPadding * size + (column.number ? needed : std::min(needed, limit));
  }
  return limit >= kNarrowestWrap * size;
}

void PageLayout::SpreadSlack() {
  double width = 0;
  for (const PrintColumn& column : columns_) width += column.width;
  const double stretch = width > 0 ? InnerWidth() / width : 1;
  for (PrintColumn& column : columns_) column.width *= stretch;
}

void PageLayout::BuildTotals() {
  const PrintWords& words = WordsOf(job_.language);
  count_ = words.count_before + std::to_string(grid_.RowCount()) + words.count_after;
  if (job_.kind != kLedger) return;  // a register's page does not carry the ledger's totals
  for (size_t i = 0; i + 1 < job_.totals.size(); i += 2) {
    totals_.push_back(job_.totals[i] + " " + job_.totals[i + 1]);
  }
  if (job_.totals.size() < 2 || !job_.facts.local_currency) return;
  const double last = basic::Val(job_.totals.back());
  if (std::fabs(last) >= kNoAmountInWords) return;
  in_words_ = std::string(words.amount_in_words) + "（" +
              WithoutColon(job_.totals[job_.totals.size() - 2]) +
              "）: " + AmountInWords(last, job_.language);
}

std::vector<std::string> PageLayout::Wrap(const std::string& text, double room, double size) const {
  std::vector<std::string> lines;
  std::string line;
  double width = 0;
  for (char32_t code : basic::CodePoints(text)) {
    const std::string character = basic::FromCodePoint(code);
    const double advance = metrics_.Width(character) * size;
    if (!line.empty() && width + advance > room) {
      const size_t blank = line.rfind(' ');
      std::string carried;
      if (code < 0x80 && code != U' ' && blank != std::string::npos && blank > 0) {
        carried = line.substr(blank + 1);
        line.erase(blank);
      }
      lines.push_back(std::exchange(line, carried));
      width = metrics_.Width(line) * size;
      if (code == U' ' && line.empty()) continue;
    }
    line += character;
    width += advance;
  }
  lines.push_back(line);
  return lines;
}

int32_t PageLayout::RowLines(int32_t row) const {
  if (!wraps_) return 1;
  size_t lines = 1;
  for (const PrintColumn& column : columns_) {
    const double room = column.width - kPadding * size_;
    if (column.number || column.needed * size_ <= room) continue;
    lines = std::max(lines, Wrap(grid_.CellText(column.column, row), room, size_).size());
  }
  return static_cast<int32_t>(lines);
}

double PageLayout::RowHeight(int32_t lines) const { return (lines * kLine + kPadding / 2) * size_; }

double PageLayout::RowsTop() const {
  const auto subject_lines = static_cast<double>(subject_.size());
  return paper_.margin + kTitleSize * kLine + kTextSize * ((subject_lines + 1) * kLine + 0.5) +
         RowHeight(1);
}

double PageLayout::RowsBottom() const {
  return PageHeight() - paper_.margin - kTextSize * (kLine + 0.5);
}

double PageLayout::TotalsHeight() const {
  const int lines = 1 + (totals_.empty() ? 0 : kTotalsLines) + (in_words_.empty() ? 0 : 1);
  return (lines + 0.5) * kLine * kTextSize;
}

bool PageLayout::BreakPages(const Progress& progress) {
  const int32_t rows = grid_.RowCount();
  const double page_ems = (RowsBottom() - RowsTop()) / size_;
  const auto most_lines = static_cast<int32_t>((page_ems - kPadding / 2) / kLine);
  double y = RowsTop();
  starts_.push_back({1, 0});
  for (int32_t row = 1; row <= rows; ++row) {
    if (progress && row % kProgressRows == 0 && !progress(int64_t{rows} + row, 2 * int64_t{rows})) {
      return false;
    }
    int32_t lines = RowLines(row);
    if (y > RowsTop() && y + RowHeight(lines) > RowsBottom()) {
      starts_.push_back({row, 0});
      y = RowsTop();
    }
    for (; lines > most_lines; lines -= most_lines) {  // a row that no page holds
      const Start& here = starts_.back();
      starts_.push_back({row, (here.row == row ? here.line : 0) + most_lines});
    }
    y += RowHeight(lines);
  }
  if (y + TotalsHeight() > RowsBottom()) starts_.push_back({rows + 1, 0});
  return true;
}

PageLayout::Start PageLayout::EndOf(int page) const {
  return page + 1 < PageCount() ? starts_[static_cast<size_t>(page) + 1]
                                : Start{grid_.RowCount() + 1, 0};
}

Page PageLayout::MakePage(int number) const {
  Page page;
  PlaceHead(page);
  double y = RowsTop();
  std::vector<double> ys{y - RowHeight(1), y};
  const Start end = EndOf(number);
  Start at = starts_[static_cast<size_t>(number)];
  for (; at.row < end.row || at.line < end.line; at = {at.row + 1, 0}) {
    const int32_t lines = (at.row < end.row ? RowLines(at.row) : end.line) - at.line;
    y = PlaceRow(page, at.row, at.line, lines, y);
    ys.push_back(y);
    if (at.row == end.row) break;
  }
  PlaceGridLines(page, ys);
  if (number + 1 == PageCount()) PlaceTotals(page, y + 0.5 * kTextSize);
  PlaceFoot(page, number);
  return page;
}

void PageLayout::PlaceHead(Page& page) const {
  const double left = paper_.margin;
  double y = paper_.margin;
  page.texts.push_back({left, y, InnerWidth(), kTitleSize, PrintAlign::Center, true, job_.title});
  y += kTitleSize * kLine;
  for (const std::string& line : subject_) {
    page.texts.push_back({left, y, InnerWidth(), kTextSize, PrintAlign::Center, false, line});
    y += kTextSize * kLine;
  }
  page.texts.push_back({left, y, InnerWidth(), kTextSize, PrintAlign::Left, false, job_.company});
  page.texts.push_back({left, y, InnerWidth(), kTextSize, PrintAlign::Right, false,
                        WordsOf(job_.language).print_date + basic::FormatIso(print_date_)});
  y = RowsTop() - RowHeight(1);
  double x = left;
  for (const PrintColumn& column : columns_) {
    page.texts.push_back({x, y + kPadding / 4 * size_, column.width, size_, PrintAlign::Center,
                          true, grid_.PlainHeader(column.column)});
    x += column.width;
  }
}

double PageLayout::PlaceRow(Page& page, int32_t row, int32_t first_line, int32_t lines,
                            double y) const {
  const double height = RowHeight(lines);
  if (const auto color = grid_.RowColor(row)) {
    double width = 0;
    for (const PrintColumn& column : columns_) width += column.width;
    page.fills.push_back({paper_.margin, y, width, height, *color});
  }
  double x = paper_.margin;
  for (const PrintColumn& column : columns_) {
    const double room = column.width - kPadding * size_;
    const std::string text = grid_.CellText(column.column, row);
    const std::vector<std::string> all =
        column.number || !wraps_ ? std::vector<std::string>{text} : Wrap(text, room, size_);
    for (int32_t i = 0; i < lines && first_line + i < std::ssize(all); ++i) {
      const std::string& line = all[static_cast<size_t>(first_line + i)];
      if (line.empty()) continue;
      page.texts.push_back({x + kPadding / 2 * size_, y + (kPadding / 4 + i * kLine) * size_, room,
                            size_, column.number ? PrintAlign::Right : PrintAlign::Left, false,
                            line});
    }
    x += column.width;
  }
  return y + height;
}

void PageLayout::PlaceGridLines(Page& page, const std::vector<double>& ys) const {
  double x = paper_.margin;
  page.lines.push_back({x, ys.front(), x, ys.back()});
  for (const PrintColumn& column : columns_) {
    x += column.width;
    page.lines.push_back({x, ys.front(), x, ys.back()});
  }
  for (double y : ys) page.lines.push_back({paper_.margin, y, x, y});
}

void PageLayout::PlaceTotals(Page& page, double y) const {
  const auto place = [&](double x, double room, const std::string& text) {
    page.texts.push_back({x, y, room, kTextSize, PrintAlign::Left, true, text});
  };
  place(paper_.margin, InnerWidth(), count_);
  const size_t in_a_line = (totals_.size() + kTotalsLines - 1) / kTotalsLines;
  for (size_t i = 0; i < totals_.size(); ++i) {
    if (i % in_a_line == 0) y += kLine * kTextSize;
    const double room = InnerWidth() / static_cast<double>(in_a_line);
    place(paper_.margin + room * static_cast<double>(i % in_a_line), room, totals_[i]);
  }
  y += kLine * kTextSize;
  if (!in_words_.empty()) place(paper_.margin, InnerWidth(), in_words_);
}

void PageLayout::PlaceFoot(Page& page, int number) const {
  const PrintWords& words = WordsOf(job_.language);
  const double y = PageHeight() - paper_.margin - kTextSize * kLine;
  page.texts.push_back({paper_.margin, y, InnerWidth(), kTextSize, PrintAlign::Left, false,
                        words.made_by + job_.user});
  page.texts.push_back({paper_.margin, y, InnerWidth(), kTextSize, PrintAlign::Right, false,
                        words.page_before + std::to_string(number + 1) + words.page_between +
                            std::to_string(PageCount()) + words.page_after});
}

}  // namespace qvzj::print
