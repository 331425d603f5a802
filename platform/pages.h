#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// Printed pages as a front end paints them: placed texts, lines and fills. All lengths are points
/// (1/72 inch) from the paper's top left corner.
namespace qvzj {

/// Measures text. Lengths are points at a font size of 1 point, so that a layout can scale them.
class TextMetrics {
 public:
  virtual ~TextMetrics() = default;
  /// Advance width of the text in the plain weight.
  virtual double Width(std::string_view text) const = 0;
};

/// Where a text stands in its room.
enum class PrintAlign { Left, Center, Right };

/// One line of text in the room that the layout gives it.
struct PlacedText {
  double x = 0;      ///< left edge of the room
  double y = 0;      ///< top edge of the line
  double width = 0;  ///< room for the text
  double size = 9;   ///< font size
  PrintAlign align = PrintAlign::Left;
  bool bold = false;
  std::string text;  ///< UTF-8, without line breaks
};

/// A thin line from one point to another.
struct PlacedLine {
  double x1, y1, x2, y2;
};

/// A filled rectangle behind the texts, 0xRRGGBB.
struct PlacedFill {
  double x, y, width, height;
  uint32_t color;
};

/// What is on one page; fills lie under lines, lines under texts.
struct Page {
  std::vector<PlacedFill> fills;
  std::vector<PlacedLine> lines;
  std::vector<PlacedText> texts;
};

/// Called now and then during long work with done and total steps; answering false cancels.
using Progress = std::function<bool(int64_t done, int64_t total)>;

/// Pages that are ready to be painted, made one at a time.
class PageSource {
 public:
  virtual ~PageSource() = default;
  /// Number of pages.
  virtual int PageCount() const = 0;
  /// Size of the paper as it is laid.
  virtual double PageWidth() const = 0;
  virtual double PageHeight() const = 0;
  /// Everything on a page, 0-based.
  virtual Page MakePage(int page) const = 0;
};

/// Where pages go: a preview window, a printer, a file. Front ends implement it.
class PageOutput {
 public:
  virtual ~PageOutput() = default;
  /// Measures with the font that the pages will be painted with.
  virtual const TextMetrics& Metrics() const = 0;
  /// Shows how far the layout is; false when the user cancelled.
  virtual bool ShowProgress(int64_t done, int64_t total) = 0;
  /// Takes the pages; returns when the user is done with them.
  virtual void Output(const PageSource& pages, const std::string& title) = 0;
};

}  // namespace qvzj
