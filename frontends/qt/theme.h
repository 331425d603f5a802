#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QStyle>
#include <QWidget>

#include "frontends/view/look.h"

/// The module's look (frontends/view/look.h) as Qt's palettes, fonts and drawing style.
namespace qvzj::qt {

enum class Appearance { System, Light, Dark };

/// The appearance that the palette belongs to.
bool IsDark(const QPalette& palette);
/// The colours that go with the palette.
const view::Colors& ColorsFor(const QPalette& palette);
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
}  // namespace qvzj::qt
