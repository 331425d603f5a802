#pragma once

/// Sizes of the page in a preview, and leafing through pages by the mouse wheel.
namespace qvzj::view {

/// How the size of the sheet follows the size of the desk.
enum class PageFit { Free, Width, WholePage };

inline constexpr double kPointsAnInch = 72;
/// From one size of the page to the next one.
inline constexpr double kZoomStep = 1.25;

/// The zoom within the limits of a preview; 1 is the paper's real size.
double LimitedZoom(double zoom);

struct Extent {
  double width = 0;
  double height = 0;
};

/// Pixels a point at which a page (points) fits the room of a desk (pixels) as `fit` says, one of
/// the two that follow the desk. `bar` is the width of the scroll bar that a page higher than the
/// desk needs, `dpi` the desk's.
double FittedScale(PageFit fit, Extent page, Extent room, double bar, double dpi);

/// What a turn of the wheel does to the page.
enum class WheelTurn { Scrolls, Waits, TurnsOn, TurnsBack };

/// Leafing by the wheel: at a page's end a whole notch goes on to the next page. A touch pad comes
/// in many small steps, which add up.
class Leafing {
 public:
  /// `wheel` in eighths of a degree, negative towards the next page; `at_end` tells that the page
  /// cannot be scrolled any further that way.
  WheelTurn Turn(int wheel, bool at_end);

 private:
  int turned_ = 0;  // how far the wheel went on at the page's end
};

}  // namespace qvzj::view
