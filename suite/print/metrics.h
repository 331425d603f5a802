#pragma once

#include <string_view>

namespace qvzj {

/// Measures text for page layout. Lengths are points (1/72 inch) at a font size of 1 point, so
/// that a layout can scale them.
class TextMetrics {
 public:
  virtual ~TextMetrics() = default;
  /// Advance width of the text in the plain weight.
  virtual double Width(std::string_view text) const = 0;
};

/// A typewriter for tests and for printers without fonts: Chinese characters one em wide, ASCII
/// half an em.
class FixedMetrics : public TextMetrics {
 public:
  double Width(std::string_view text) const override;
};

}  // namespace qvzj
