#pragma once

#include <QRect>
#include <QWidget>

#include "platform/ui/geometry.h"

/// Twips (1/1440 inch) to and from Qt's logical pixels. The screen's scaling factor is Qt's own
/// business: a logical pixel is 15 twips at 96 dpi whatever the factor, so that text and lines
/// stay sharp at 100, 150 and 200 %.
namespace qvzj::qt {

inline int ToPixels(int32_t twips, int dpi) {
  const int64_t scaled = int64_t{twips} * dpi;
  return static_cast<int>((scaled + (scaled < 0 ? -720 : 720)) / 1440);
}

inline int32_t ToTwips(int pixels, int dpi) {
  return static_cast<int32_t>(int64_t{pixels} * 1440 / dpi);
}

/// Both edges are rounded, not the size, so that neighbours neither overlap nor gape.
inline QRect ToPixels(const ui::Bounds& bounds, const QWidget& widget) {
  const int left = ToPixels(bounds.left, widget.logicalDpiX());
  const int top = ToPixels(bounds.top, widget.logicalDpiY());
  const int right = ToPixels(bounds.left + bounds.width, widget.logicalDpiX());
  const int bottom = ToPixels(bounds.top + bounds.height, widget.logicalDpiY());
  return {left, top, right - left, bottom - top};
}

}  // namespace qvzj::qt
