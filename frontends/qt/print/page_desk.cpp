#include "frontends/qt/print/page_desk.h"

#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

namespace qvzj::qt {
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

void PageDesk::SetFit(view::PageFit fit) {
  fit_ = fit;
  FollowSize();
  emit ZoomChanged();
}

double PageDesk::Zoom() const { return sheet_->Scale() * view::kPointsAnInch / logicalDpiX(); }

void PageDesk::SetZoom(double zoom) {
  fit_ = view::PageFit::Free;
  SetScale(view::LimitedZoom(zoom) * logicalDpiX() / view::kPointsAnInch);
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
  if (fit_ == view::PageFit::Free) return;
  const QSize room = maximumViewportSize() - QSize(2 * PageView::kRoom, 2 * PageView::kRoom);
  const int bar = verticalScrollBar()->sizeHint().width();
  SetScale(view::FittedScale(fit_, {pages_.PageWidth(), pages_.PageHeight()},
                             {double(room.width()), double(room.height())}, bar, logicalDpiX()));
}

void PageDesk::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  FollowSize();
}

bool PageDesk::TurnPage(int wheel) {
  QScrollBar& bar = *verticalScrollBar();
  const bool at_end = bar.value() == (wheel < 0 ? bar.maximum() : bar.minimum());
  const view::WheelTurn turn = leafing_.Turn(wheel, at_end);
  const int before = Current();
  if (turn == view::WheelTurn::TurnsOn) SetCurrent(before + 1);
  if (turn == view::WheelTurn::TurnsBack) {
    SetCurrent(before - 1);
    if (Current() != before) bar.setValue(bar.maximum());
  }
  return turn != view::WheelTurn::Scrolls;
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
