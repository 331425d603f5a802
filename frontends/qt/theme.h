#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QStyle>
#include <QWidget>

/// Everything about how the window looks that is a matter of taste: colours, fonts and the drawing
/// style, in one place.
namespace qvzj::qt {

/// The colours of one appearance.
struct Colors {
  QColor window;     ///< behind everything
  QColor card;       ///< panels and pages
  QColor base;       ///< fields and lists
  QColor read_only;  ///< fields that cannot be edited now
  QColor text;
  QColor muted;  ///< hints, disabled texts, row numbers
  QColor border;
  QColor strong_border;  ///< around fields
  QColor accent;         ///< focus, chosen things
  QColor on_accent;
  QColor soft_accent;   ///< behind the current row of a list that has the focus
  QColor faint_accent;  ///< the same without the focus
  QColor hover;
  QColor negative;  ///< amounts below zero
};

enum class Appearance { System, Light, Dark };

/// The appearance that the palette belongs to.
bool IsDark(const QPalette& palette);
/// The colours that go with the palette.
const Colors& ColorsFor(const QPalette& palette);
/// The module's palette; System follows the application's own.
QPalette ThemePalette(Appearance appearance);
/// The text font: the first installed family of a list made for Chinese (`traditional` or
/// simplified forms first) whose digits are of one width, so that amounts line up.
QFont ThemeFont(bool traditional);
/// The drawing style, shared by all windows; owned by the library.
QStyle* ThemeStyle();
/// Gives a window and all its parts the module's font, palette and drawing style. For windows that
/// are put together of native widgets; to be called when all parts are there.
void Dress(QWidget& window, bool traditional);
/// A grid row's own colour as it appears on the palette: given for a white page, it is carried
/// over to a dark one with the same contrast.
QColor RowTint(uint32_t rgb, const QPalette& palette);

}  // namespace qvzj::qt
