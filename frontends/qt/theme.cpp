#include "frontends/qt/theme.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QPointer>
#include <QPushButton>
#include <optional>

#include "frontends/qt/calm_style.h"

namespace qvzj::qt {

namespace {

QPalette PaletteOf(const view::Colors& colors) {
  QPalette palette;
  palette.setColor(QPalette::Window, colors.window);
  palette.setColor(QPalette::WindowText, colors.text);
  palette.setColor(QPalette::Base, colors.base);
  palette.setColor(QPalette::AlternateBase, colors.read_only);
  palette.setColor(QPalette::Text, colors.text);
  palette.setColor(QPalette::PlaceholderText, colors.muted);
  palette.setColor(QPalette::Button, colors.card);
  palette.setColor(QPalette::ButtonText, colors.text);
  palette.setColor(QPalette::BrightText, colors.negative);
  palette.setColor(QPalette::ToolTipBase, colors.card);
  palette.setColor(QPalette::ToolTipText, colors.text);
  palette.setColor(QPalette::Highlight, colors.accent);
  palette.setColor(QPalette::HighlightedText, colors.on_accent);
  palette.setColor(QPalette::Link, colors.accent);
  palette.setColor(QPalette::Light, QColor(colors.card).lighter(110));
  palette.setColor(QPalette::Midlight, colors.card);
  palette.setColor(QPalette::Mid, colors.border);
  palette.setColor(QPalette::Dark, colors.strong_border);
  palette.setColor(QPalette::Shadow, colors.strong_border);
  for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, colors.muted);
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, colors.read_only);
  return palette;
}

bool DigitsAlign(const QFont& font) {
  const QFontMetrics metrics(font);
  const int width = metrics.horizontalAdvance(QLatin1Char('0'));
  for (char digit = '1'; digit <= '9'; ++digit) {
    if (metrics.horizontalAdvance(QLatin1Char(digit)) != width) return false;
  }
  return true;
}

}  // namespace

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::Text).lightness();
}

const view::Colors& ColorsFor(const QPalette& palette) { return view::ColorsOf(IsDark(palette)); }

QPalette ThemePalette(Appearance appearance) {
  if (appearance == Appearance::System) {
    appearance = IsDark(QGuiApplication::palette()) ? Appearance::Dark : Appearance::Light;
  }
  return PaletteOf(view::ColorsOf(appearance == Appearance::Dark));
}

namespace {

/// The text font in a family ("" for the application's own). Whatever measures or paints asks for
/// the very same font: each variant is an engine of its own that takes milliseconds to make.
QFont FontOf(const QString& family) {
  QFont font = QGuiApplication::font();
  if (!family.isEmpty()) font.setFamily(family);
  font.setPointSizeF(view::kFontPoints);
  // Chinese and figures need no shaping, which takes longer than the drawing itself; scripts that
  // do need it are shaped all the same.
  font.setStyleHint(QFont::SansSerif, QFont::PreferNoShaping);
  return font;
}

/// The first of the wanted families that is installed and whose digits stand under each other; ""
/// when there is none. Every family looked at is a font file to load, so the search ends there.
QString ThemeFamily(bool traditional) {
  const QStringList installed = QFontDatabase::families();
  for (const std::string_view wanted : view::FontFamilies(traditional)) {
    const QString family = QString::fromUtf8(wanted.data(), static_cast<qsizetype>(wanted.size()));
    if (installed.contains(family) && DigitsAlign(FontOf(family))) return family;
  }
  return {};
}

}  // namespace

QFont ThemeFont(bool traditional) {
  static std::optional<QString> families[2];
  std::optional<QString>& family = families[traditional ? 1 : 0];
  if (!family) family = ThemeFamily(traditional);
  return FontOf(*family);
}

QStyle* ThemeStyle() {
  static QPointer<QStyle> style;
  if (!style) {
    style = new CalmStyle;
    style->setParent(qApp);
  }
  return style;
}

void Dress(QWidget& window, bool traditional) {
  window.setFont(ThemeFont(traditional));
  window.setPalette(ThemePalette(Appearance::System));
  window.setStyle(ThemeStyle());
  for (QWidget* part : window.findChildren<QWidget*>()) part->setStyle(ThemeStyle());
  // The toolkit's own dialogs put coloured pictures on their buttons.
  for (QPushButton* button : window.findChildren<QPushButton*>()) button->setIcon({});
}

}  // namespace qvzj::qt
