#include "frontends/qt/calm_style.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>

#include "frontends/qt/theme.h"

namespace qvzj::qt {

namespace {

bool Has(const QStyleOption& option, QStyle::StateFlag flag) { return option.state.testFlag(flag); }

/// The two-stroke arrow of drop-down and number fields.
void DrawChevron(QPainter& painter, const QRect& rect, const QColor& color, bool up = false) {
  const QPointF center = QRectF(rect).center();
  const double rise = up ? 1.75 : -1.75;
  QPainterPath path(center + QPointF(-3.5, rise));
  path.lineTo(center + QPointF(0, -rise));
  path.lineTo(center + QPointF(3.5, rise));
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(color, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(path);
  painter.restore();
}

void DrawButton(const QStyleOption& option, QPainter& painter) {
  const view::Colors& colors = ColorsFor(option.palette);
  const bool enabled = Has(option, QStyle::State_Enabled);
  QColor fill = colors.base;
  if (!enabled) {
    fill = colors.card;
  } else if (Has(option, QStyle::State_Sunken) || Has(option, QStyle::State_On)) {
    fill = colors.soft_accent;
  } else if (Has(option, QStyle::State_MouseOver)) {
    fill = colors.hover;
  }
  const bool focused = Has(option, QStyle::State_HasFocus);
  DrawRounded(painter, option.rect, fill,
              focused   ? colors.accent
              : enabled ? colors.strong_border
                        : colors.border);
  if (focused) {
    DrawRounded(painter, option.rect.adjusted(1, 1, -1, -1), Qt::transparent, colors.accent, 3);
  }
}

void DrawTick(QPainter& painter, const QRectF& box, const QColor& color) {
  QPainterPath path(box.topLeft() + QPointF(box.width() * 0.24, box.height() * 0.52));
  path.lineTo(box.topLeft() + QPointF(box.width() * 0.43, box.height() * 0.71));
  path.lineTo(box.topLeft() + QPointF(box.width() * 0.77, box.height() * 0.30));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(color, 1.7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(path);
}

void DrawCheckBox(const QStyleOption& option, QPainter& painter) {
  const view::Colors& colors = ColorsFor(option.palette);
  const bool enabled = Has(option, QStyle::State_Enabled);
  const bool on = Has(option, QStyle::State_On) || Has(option, QStyle::State_NoChange);
  const QColor chosen = enabled ? colors.accent : colors.muted;
  DrawRounded(painter, option.rect,
              on        ? chosen
              : enabled ? colors.base
                        : colors.read_only,
              on        ? chosen
              : enabled ? colors.muted
                        : colors.border,
              3);
  painter.save();
  if (Has(option, QStyle::State_NoChange)) {
    const QRect box = option.rect;
    painter.fillRect(box.adjusted(3, box.height() / 2 - 1, -3, 1 - box.height() / 2),
                     colors.on_accent);
  } else if (on) {
    DrawTick(painter, option.rect, colors.on_accent);
  }
  painter.restore();
}

void DrawOption(const QStyleOption& option, QPainter& painter) {
  const view::Colors& colors = ColorsFor(option.palette);
  const bool enabled = Has(option, QStyle::State_Enabled);
  const bool on = Has(option, QStyle::State_On);
  const QColor chosen = enabled ? colors.accent : colors.muted;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF circle = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.setPen(QPen(QColor(on ? chosen : enabled ? colors.muted : colors.border), 1));
  painter.setBrush(QColor(enabled ? colors.base : colors.read_only));
  painter.drawEllipse(circle);
  if (on) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(chosen);
    painter.drawEllipse(circle.adjusted(3, 3, -3, -3));
  }
  painter.restore();
}

bool IsReadOnly(const QWidget* widget) {
  return widget != nullptr && widget->property("qvReadOnly").toBool();
}

bool HasRefused(const QWidget* widget) {
  return widget != nullptr && widget->property(kRefused).toBool();
}

void DrawField(const QStyleOption& option, QPainter& painter, bool read_only, bool refused) {
  const view::Colors& colors = ColorsFor(option.palette);
  const bool enabled = Has(option, QStyle::State_Enabled);
  const bool focused = Has(option, QStyle::State_HasFocus) && enabled;
  DrawRounded(painter, option.rect, enabled && !read_only ? colors.base : colors.read_only,
              refused   ? colors.negative
              : focused ? colors.accent
              : enabled ? colors.strong_border
                        : colors.border);
}

void DrawDropDown(const QStyleOptionComplex& option, QPainter& painter, const QRect& arrow,
                  bool read_only, bool refused) {
  const view::Colors& colors = ColorsFor(option.palette);
  DrawField(option, painter, read_only, refused);
  DrawChevron(painter, arrow,
              Has(option, QStyle::State_Enabled) && !read_only ? colors.text : colors.border);
}

void DrawTab(const QStyleOptionTab& option, QPainter& painter) {
  const view::Colors& colors = ColorsFor(option.palette);
  const QRect rect = option.rect;
  if (Has(option, QStyle::State_Selected)) {
    painter.fillRect(QRect(rect.left() + 8, rect.bottom() - 1, rect.width() - 16, 2),
                     colors.accent);
    if (Has(option, QStyle::State_HasFocus)) {
      DrawRounded(painter, rect.adjusted(2, 2, -2, -4), Qt::transparent, colors.accent, 3);
    }
  } else if (Has(option, QStyle::State_MouseOver)) {
    painter.fillRect(rect.adjusted(2, 3, -2, -3), colors.hover);
  }
}

void DrawHeaderSection(const QStyleOptionHeader& option, QPainter& painter) {
  const view::Colors& colors = ColorsFor(option.palette);
  painter.fillRect(option.rect, Has(option, QStyle::State_MouseOver) ? colors.hover : colors.card);
  painter.setPen(colors.border);
  painter.drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
  painter.drawLine(option.rect.topRight(), option.rect.bottomRight());
}

/// Where the slider of a scroll bar stands: a bar without arrows, the slider never too short to
/// be caught.
QRect SliderRect(const QStyleOptionSlider& bar) {
  constexpr int kShortest = 28;
  const bool upright = bar.orientation == Qt::Vertical;
  const int room = upright ? bar.rect.height() : bar.rect.width();
  const int64_t range = int64_t{bar.maximum} - bar.minimum;
  const int length =
      range <= 0
          ? room
          : std::clamp(static_cast<int>(room * int64_t{bar.pageStep} / (range + bar.pageStep)),
                       std::min(kShortest, room), room);
  const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                    room - length, bar.upsideDown);
  return upright ? QRect(0, start, bar.rect.width(), length)
                 : QRect(start, 0, length, bar.rect.height());
}

QRect ScrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part) {
  const QRect slider = SliderRect(bar);
  const bool upright = bar.orientation == Qt::Vertical;
  switch (part) {
    case QStyle::SC_ScrollBarSlider:
      return slider;
    case QStyle::SC_ScrollBarGroove:
      return bar.rect;
    case QStyle::SC_ScrollBarSubPage:
      return upright ? QRect(0, 0, bar.rect.width(), slider.top())
                     : QRect(0, 0, slider.left(), bar.rect.height());
    case QStyle::SC_ScrollBarAddPage:
      return upright ? bar.rect.adjusted(0, slider.bottom() + 1, 0, 0)
                     : bar.rect.adjusted(slider.right() + 1, 0, 0, 0);
    default:
      return {};
  }
}

void DrawScrollBar(const QStyleOptionSlider& bar, QPainter& painter) {
  const view::Colors& colors = ColorsFor(bar.palette);
  painter.fillRect(bar.rect, colors.card);
  if (bar.maximum <= bar.minimum) return;
  const bool held = Has(bar, QStyle::State_Sunken);
  const bool under = Has(bar, QStyle::State_MouseOver);
  DrawRounded(painter, SliderRect(bar).adjusted(3, 3, -3, -3),
              held || under ? colors.muted : colors.strong_border, Qt::transparent, 3);
}

}  // namespace

void DrawRounded(QPainter& painter, const QRect& rect, const QColor& fill, const QColor& outline,
                 double radius) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const bool outlined = outline.alpha() != 0;
  if (outlined && fill.alpha() != 0) {
    // Two filled shapes take half the time of a filled and a stroked one.
    painter.setPen(Qt::NoPen);
    painter.setBrush(outline);
    painter.drawRoundedRect(rect, radius + 0.5, radius + 0.5);
    painter.setBrush(fill);
    painter.drawRoundedRect(rect.adjusted(1, 1, -1, -1), radius - 0.5, radius - 0.5);
  } else {
    painter.setPen(outlined ? QPen(outline, 1) : QPen(Qt::NoPen));
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
  }
  painter.restore();
}

CalmStyle::CalmStyle() : QProxyStyle("Fusion") {}

void CalmStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
  switch (element) {
    case PE_PanelButtonCommand:
      DrawButton(*option, *painter);
      return;
    case PE_FrameLineEdit:
    case PE_PanelLineEdit: {
      const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
      if (frame != nullptr && frame->lineWidth <= 0) return;  // inside a drop-down field
      DrawField(*option, *painter, Has(*option, State_ReadOnly), HasRefused(widget));
      return;
    }
    case PE_IndicatorCheckBox:
      DrawCheckBox(*option, *painter);
      return;
    case PE_IndicatorRadioButton:
      DrawOption(*option, *painter);
      return;
    case PE_FrameFocusRect:
      // Check boxes and options get a line around their text; the others show the focus themselves.
      if (qobject_cast<const QAbstractButton*>(widget) != nullptr) {
        DrawRounded(*painter, option->rect.adjusted(-2, 0, 2, 0), Qt::transparent,
                    ColorsFor(option->palette).accent, 3);
      }
      return;
    case PE_FrameDefaultButton:
      return;
    case PE_IndicatorHeaderArrow:
      if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option)) {
        // Upwards while the values rise from the top, as the register's captions have it.
        DrawChevron(*painter, option->rect, ColorsFor(option->palette).accent,
                    header->sortIndicator == QStyleOptionHeader::SortDown);
      }
      return;
    case PE_Frame:
      painter->setPen(Has(*option, State_HasFocus) ? ColorsFor(option->palette).accent
                                                   : ColorsFor(option->palette).strong_border);
      painter->setBrush(Qt::NoBrush);
      painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
      return;
    case PE_PanelMenu:
      painter->fillRect(option->rect, ColorsFor(option->palette).card);
      painter->setPen(ColorsFor(option->palette).strong_border);
      painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
      return;
    case PE_PanelScrollAreaCorner:
      painter->fillRect(option->rect, ColorsFor(option->palette).card);
      return;
    default:
      QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void CalmStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
  switch (element) {
    case CE_PushButtonBevel:
      DrawButton(*option, *painter);
      return;
    case CE_TabBarTabShape:
      if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option)) {
        DrawTab(*tab, *painter);
      }
      return;
    case CE_ComboBoxLabel:
      if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
        // A text that is not in the list is shown like any other.
        QStyleOptionComboBox plain(*combo);
        plain.palette.setBrush(QPalette::ButtonText, plain.palette.windowText());
        QProxyStyle::drawControl(element, &plain, painter, widget);
      }
      return;
    case CE_HeaderSection:
    case CE_HeaderEmptyArea:
      if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option)) {
        DrawHeaderSection(*header, *painter);
      } else {
        painter->fillRect(option->rect, ColorsFor(option->palette).card);
      }
      return;
    default:
      QProxyStyle::drawControl(element, option, painter, widget);
  }
}

void CalmStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
  if (control == CC_ComboBox) {
    const QRect arrow = subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget);
    DrawDropDown(*option, *painter, arrow, IsReadOnly(widget), HasRefused(widget));
    return;
  }
  const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
  if (control == CC_SpinBox && spin != nullptr) {
    DrawField(*option, *painter, false, HasRefused(widget));
    if (spin->buttonSymbols == QAbstractSpinBox::NoButtons) return;
    const QColor color = ColorsFor(option->palette).text;
    DrawChevron(*painter, subControlRect(control, option, SC_SpinBoxUp, widget), color, true);
    DrawChevron(*painter, subControlRect(control, option, SC_SpinBoxDown, widget), color);
    return;
  }
  const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
  if (control == CC_ScrollBar && bar != nullptr) {
    DrawScrollBar(*bar, *painter);
    return;
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect CalmStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                SubControl part, const QWidget* widget) const {
  const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
  if (control == CC_ScrollBar && bar != nullptr) return ScrollBarPart(*bar, part);
  return QProxyStyle::subControlRect(control, option, part, widget);
}

QRect CalmStyle::subElementRect(SubElement element, const QStyleOption* option,
                                const QWidget* widget) const {
  const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option);
  if (element == SE_HeaderArrow && header != nullptr) {
    // Over the text: beside it, it would take the room of a caption that just fits.
    const QRect section = option->rect;
    return {section.center().x() - 4, section.top() + 1, 9, 5};
  }
  if (element == SE_HeaderLabel && header != nullptr) {
    QStyleOptionHeader unsorted(*header);
    unsorted.sortIndicator = QStyleOptionHeader::None;
    return QProxyStyle::subElementRect(element, &unsorted, widget);
  }
  const QRect rect = QProxyStyle::subElementRect(element, option, widget);
  // Chinese fonts stand low in their lines.
  return element == SE_LineEditContents ? rect.adjusted(1, -1, -1, -1) : rect;
}

int CalmStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const {
  switch (metric) {
    case PM_ButtonMargin:
      return 4;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
    case PM_TabBarTabShiftVertical:
    case PM_TabBarBaseHeight:
    case PM_TabBarBaseOverlap:
      return 0;
    case PM_TabBarTabHSpace:
      return 20;
    case PM_TabBarTabVSpace:
      return 8;
    case PM_HeaderMargin:
      return 4;
    case PM_FocusFrameHMargin:
      return 4;  // beside the texts of cells
    case PM_ScrollBarExtent:
      return 13;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

int CalmStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const {
  switch (hint) {
    case SH_ComboBox_Popup:
      return 0;  // drop the list below the field, so that the field stays readable
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
      return 0;
    case SH_UnderlineShortcut:
      return 1;
    case SH_Table_GridLineColor:
      return option == nullptr ? 0
                               : static_cast<int>(QColor(ColorsFor(option->palette).border).rgb());
    case SH_TabBar_Alignment:
      return Qt::AlignLeft;
    default:
      return QProxyStyle::styleHint(hint, option, widget, returned);
  }
}

}  // namespace qvzj::qt
