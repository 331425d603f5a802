#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

/// Everything about how a window looks that is a matter of taste and no toolkit's: colours and
/// fonts, in one place.
namespace qvzj::view {

/// 0xRRGGBB.
using Color = uint32_t;

/// The colours of one appearance.
struct Colors {
  Color window;     ///< behind everything
  Color card;       ///< panels and pages
  Color base;       ///< fields and lists
  Color read_only;  ///< fields that cannot be edited now
  Color text;
  Color muted;  ///< hints, disabled texts, row numbers
  Color border;
  Color strong_border;  ///< around fields
  Color accent;         ///< focus, chosen things
  Color on_accent;
  Color soft_accent;   ///< behind the current row of a list that has the focus
  Color faint_accent;  ///< the same without the focus
  Color hover;
  Color negative;  ///< amounts below zero
};

const Colors& ColorsOf(bool dark);

/// A grid row's own colour as it appears: given for a white page, it is carried over to a dark one
/// with the same contrast.
Color RowTint(Color given, bool dark);

/// Families made for Chinese in the order in which they are wanted, `traditional` or simplified
/// forms first.
std::vector<std::string_view> FontFamilies(bool traditional);
/// Size of all texts but headings, in points; a heading is larger by kHeadingMore.
inline constexpr double kFontPoints = 9;
inline constexpr double kHeadingMore = 2;

/// How long a row that something has just happened to stays marked, in milliseconds.
inline constexpr int kMarkedFor = 1500;
/// How long a field that refused a key shows it, in milliseconds.
inline constexpr int kRefusalShownFor = 300;

}  // namespace qvzj::view
