#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <unordered_map>

#include "platform/pages.h"

namespace qvzj::qt {

/// Measures with a real font, independent of screen and printer: advances are taken once a
/// character at a large size and added up, which is how the pages are painted (without kerning).
class FontMetrics : public TextMetrics {
 public:
  explicit FontMetrics(const QFont& font);
  double Width(std::string_view text) const override;

 private:
  QFontMetricsF metrics_;
  mutable std::unordered_map<char32_t, double> advances_;
};

}  // namespace qvzj::qt
