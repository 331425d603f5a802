#pragma once

#include <cstdint>

#include "platform/ui/geometry.h"

/// Twips (1/1440 inch) to and from logical pixels. The screen's scaling factor is the toolkit's own
/// business: a logical pixel is 15 twips at 96 dpi whatever the factor, so that text and lines
/// stay sharp at 100, 150 and 200 %.
namespace qvzj::view {

inline int ToPixels(int32_t twips, int dpi) {
  const int64_t scaled = int64_t{twips} * dpi;
  return static_cast<int>((scaled + (scaled < 0 ? -720 : 720)) / 1440);
}

inline int32_t ToTwips(int pixels, int dpi) {
  return static_cast<int32_t>(int64_t{pixels} * 1440 / dpi);
}

/// A place in logical pixels.
struct PixelRect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

/// Both edges are rounded, not the size, so that neighbours neither overlap nor gape.
inline PixelRect ToPixels(const ui::Bounds& bounds, int dpi_x, int dpi_y) {
  const int left = ToPixels(bounds.left, dpi_x);
  const int top = ToPixels(bounds.top, dpi_y);
  return {left, top, ToPixels(bounds.left + bounds.width, dpi_x) - left,
          ToPixels(bounds.top + bounds.height, dpi_y) - top};
}

}  // namespace qvzj::view
