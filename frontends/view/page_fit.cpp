#include "frontends/view/page_fit.h"

#include <algorithm>
#include <cstdlib>

namespace qvzj::view {
namespace {

constexpr double kSmallest = 0.25;
constexpr double kLargest = 4;
constexpr int kNotch = 120;  // of a mouse wheel, in eighths of a degree

}  // namespace

double LimitedZoom(double zoom) { return std::clamp(zoom, kSmallest, kLargest); }

double FittedScale(PageFit fit, Extent page, Extent room, double bar, double dpi) {
  const double high = room.height / page.height;
  double wide = room.width / page.width;
  // The scroll bar takes its room from the width.
  if (wide > high) wide = std::max(high, (room.width - bar) / page.width);
  const double scale = fit == PageFit::Width ? wide : std::min(wide, high);
  return LimitedZoom(scale * kPointsAnInch / dpi) * dpi / kPointsAnInch;
}

WheelTurn Leafing::Turn(int wheel, bool at_end) {
  const bool on = wheel < 0;
  if (!at_end) {
    turned_ = 0;
    return WheelTurn::Scrolls;
  }
  if ((turned_ < 0) != on) turned_ = 0;
  turned_ += wheel;
  if (std::abs(turned_) < kNotch) return WheelTurn::Waits;
  turned_ = 0;
  return on ? WheelTurn::TurnsOn : WheelTurn::TurnsBack;
}

}  // namespace qvzj::view
