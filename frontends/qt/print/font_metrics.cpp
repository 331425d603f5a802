#include "frontends/qt/print/font_metrics.h"

#include <QString>

#include "platform/basic/text.h"

namespace qvzj::qt {
namespace {

constexpr int kMeasuredPixels = 1000;

QFont Measured(QFont font) {
  font.setPixelSize(kMeasuredPixels);
  font.setKerning(false);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

}  // namespace

FontMetrics::FontMetrics(const QFont& font) : metrics_(Measured(font)) {}

double FontMetrics::Width(std::string_view text) const {
  double width = 0;
  for (char32_t code : basic::CodePoints(text)) {
    auto [place, is_new] = advances_.try_emplace(code);
    if (is_new) {
      place->second = metrics_.horizontalAdvance(QString::fromUcs4(&code, 1)) / kMeasuredPixels;
    }
    width += place->second;
  }
  return width;
}

}  // namespace qvzj::qt
