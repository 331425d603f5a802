#pragma once

#include <QProxyStyle>

namespace qvzj::qt {

/// The property of a field that has just refused a key; its outline shows it.
inline constexpr const char* kRefused = "qvRefused";

/// Flat, quiet drawing on top of Qt's own Fusion style: thin rounded outlines, one accent colour
/// for the focus and what is chosen, no gradients. All colours come from the theme, so it follows
/// light and dark palettes, and every line is drawn, so it stays sharp at any scaling.
class CalmStyle : public QProxyStyle {
 public:
  CalmStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option,
                       const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
};

/// A rounded rectangle with a one-pixel outline, aligned to the pixel grid.
void DrawRounded(QPainter& painter, const QRect& rect, const QColor& fill, const QColor& outline,
                 double radius = 4);

}  // namespace qvzj::qt
