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

const Colors kLight{QColor(0xeef1f5), QColor(0xf8f9fb), QColor(0xffffff), QColor(0xf1f3f6),
                    QColor(0x1d232b), QColor(0x7b8593), QColor(0xd5dae1), QColor(0xb9c1cc),
                    QColor(0x2563b8), QColor(0xffffff), QColor(0xcfe1f8), QColor(0xe2e9f2),
                    QColor(0xe6ecf4), QColor(0xc0272d)};

const Colors kDark{QColor(0x1b1e23), QColor(0x23272e), QColor(0x181b1f), QColor(0x262a31),
                   QColor(0xe4e7eb), QColor(0x8f98a5), QColor(0x363c45), QColor(0x4b535f),
                   QColor(0x5b9bf0), QColor(0x0f1216), QColor(0x274468), QColor(0x2c3440),
                   QColor(0x2d333c), QColor(0xff7b78)};

QPalette PaletteOf(const Colors& colors) {
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
  palette.setColor(QPalette::Light, colors.card.lighter(110));
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

const Colors& ColorsFor(const QPalette& palette) { return IsDark(palette) ? kDark : kLight; }

QPalette ThemePalette(Appearance appearance) {
  if (appearance == Appearance::System) {
    appearance = IsDark(QGuiApplication::palette()) ? Appearance::Dark : Appearance::Light;
  }
  return PaletteOf(appearance == Appearance::Dark ? kDark : kLight);
}

namespace {

/// The text font in a family ("" for the application's own). Whatever measures or paints asks for
/// the very same font: each variant is an engine of its own that takes milliseconds to make.
QFont FontOf(const QString& family) {
  QFont font = QGuiApplication::font();
  if (!family.isEmpty()) font.setFamily(family);
  font.setPointSizeF(9);
  // Chinese and figures need no shaping, which takes longer than the drawing itself; scripts that
  // do need it are shaped all the same.
  font.setStyleHint(QFont::SansSerif, QFont::PreferNoShaping);
  return font;
}

/// The first of the wanted families that is installed and whose digits stand under each other; ""
/// when there is none. Every family looked at is a font file to load, so the search ends there.
QString ThemeFamily(bool traditional) {
  const QStringList simplified_families{"Noto Sans CJK SC", "Source Han Sans SC",
                                        "Microsoft YaHei UI", "PingFang SC"};
  const QStringList traditional_families{"Noto Sans CJK TC", "Source Han Sans TC",
                                         "Microsoft JhengHei UI", "PingFang TC"};
  QStringList wanted = traditional ? traditional_families + simplified_families
                                   : simplified_families + traditional_families;
  wanted << "WenQuanYi Micro Hei"
         << "DejaVu Sans";
  const QStringList installed = QFontDatabase::families();
  for (const QString& family : wanted) {
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

QColor RowTint(uint32_t rgb, const QPalette& palette) {
  const QColor given = QColor::fromRgb(static_cast<QRgb>(rgb));
  if (!IsDark(palette)) return given;
  const QColor base = palette.color(QPalette::Base);
  const QColor text = palette.color(QPalette::Text);
  const double share = 1.0 - given.lightnessF();
  auto mix = [share](int from, int to) { return static_cast<int>(from + share * (to - from)); };
  return {mix(base.red(), text.red()), mix(base.green(), text.green()),
          mix(base.blue(), text.blue())};
}

}  // namespace qvzj::qt
