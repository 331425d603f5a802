#include "frontends/qt/print/page_desk.h"

#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

namespace qvzj::qt {
namespace {

constexpr double kSmallest = 0.25;
constexpr double kLargest = 4;
constexpr double kPointsAnInch = 72;
constexpr int kNotch = 120;  // of a mouse wheel, in Qt's units

}  // namespace

PageDesk::PageDesk(const PageSource& pages, const QFont& font, QWidget* parent)
    : QScrollArea(parent), pages_(pages), sheet_(new PageView(pages, font)) {
  setFrameShape(QFrame::NoFrame);
  setAlignment(Qt::AlignCenter);
  setBackgroundRole(QPalette::Mid);
  setFocusPolicy(Qt::StrongFocus);
  setWidget(sheet_);
}

void PageDesk::SetCurrent(int page) {
  page = std::clamp(page, 0, pages_.PageCount() - 1);
  if (page == Current()) return;
  sheet_->SetCurrent(page);
  verticalScrollBar()->setValue(0);
  emit CurrentChanged(page);
}

void PageDesk::SetFit(PageFit fit) {
  fit_ = fit;
  FollowSize();
  emit ZoomChanged();
}

double PageDesk::Zoom() const { return sheet_->Scale() * kPointsAnInch / logicalDpiX(); }

void PageDesk::SetZoom(double zoom) {
  fit_ = PageFit::Free;
  SetScale(std::clamp(zoom, kSmallest, kLargest) * logicalDpiX() / kPointsAnInch);
}

void PageDesk::SetScale(double scale) {
  // What stands in the middle stays there.
  const auto middle = [](const QScrollBar& bar) {
    return (bar.value() + bar.pageStep() / 2.0) / (bar.maximum() + bar.pageStep());
  };
  QScrollBar& down = *verticalScrollBar();
  QScrollBar& across = *horizontalScrollBar();
  const double y = middle(down);
  const double x = middle(across);
  sheet_->SetScale(scale);
  const auto go = [](QScrollBar& bar, double to) {
    bar.setValue(qRound(to * (bar.maximum() + bar.pageStep()) - bar.pageStep() / 2.0));
  };
  go(down, y);
  go(across, x);
  emit ZoomChanged();
}

void PageDesk::FollowSize() {
  if (fit_ == PageFit::Free) return;
  const QSize room = maximumViewportSize() - QSize(2 * PageView::kRoom, 2 * PageView::kRoom);
  const double high = room.height() / pages_.PageHeight();
  double wide = room.width() / pages_.PageWidth();
  if (wide > high) {
    // A page higher than the desk needs the scroll bar, which takes its room from the width.
    wide = std::max(high,
                    (room.width() - verticalScrollBar()->sizeHint().width()) / pages_.PageWidth());
  }
  const double zoom =
      (fit_ == PageFit::Width ? wide : std::min(wide, high)) * kPointsAnInch / logicalDpiX();
  SetScale(std::clamp(zoom, kSmallest, kLargest) * logicalDpiX() / kPointsAnInch);
}

void PageDesk::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  FollowSize();
}

bool PageDesk::TurnPage(int wheel) {
  const QScrollBar& bar = *verticalScrollBar();
  const bool on = wheel < 0;
  if (bar.value() != (on ? bar.maximum() : bar.minimum())) {
    turned_ = 0;
    return false;
  }
  if ((turned_ < 0) != on) turned_ = 0;
  turned_ += wheel;
  if (std::abs(turned_) < kNotch) return true;  // a touch pad comes in many small steps
  turned_ = 0;
  const int before = Current();
  SetCurrent(before + (on ? 1 : -1));
  if (!on && Current() != before) verticalScrollBar()->setValue(verticalScrollBar()->maximum());
  return true;
}

void PageDesk::wheelEvent(QWheelEvent* event) {
  const int wheel = event->angleDelta().y();
  if (event->modifiers().testFlag(Qt::ControlModifier)) {
    if (wheel > 0) ZoomIn();
    if (wheel < 0) ZoomOut();
    event->accept();
  } else if (wheel != 0 && TurnPage(wheel)) {
    event->accept();
  } else {
    QScrollArea::wheelEvent(event);
  }
}

}  // namespace qvzj::qt
