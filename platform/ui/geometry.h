#pragma once

#include <cstdint>

namespace qvzj::ui {

/// Place and size of a control in twips (1/1440 inch; 15 twips are one pixel at 96 dpi), from the
/// outer top left corner of its container: a frame's border and caption and a tab strip's tabs lie
/// inside the container's own bounds.
struct Bounds {
  int32_t left = 0;
  int32_t top = 0;
  int32_t width = 0;
  int32_t height = 0;

  friend bool operator==(const Bounds&, const Bounds&) = default;
};

}  // namespace qvzj::ui
