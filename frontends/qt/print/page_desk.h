#pragma once

#include <QScrollArea>

#include "frontends/qt/print/page_view.h"
#include "frontends/view/page_fit.h"

namespace qvzj::qt {

/// The desk on which pages lie, one at a time, in the middle: zoomed, scrolled, and leafed through
/// by the mouse wheel.
class PageDesk : public QScrollArea {
  Q_OBJECT

 public:
  PageDesk(const PageSource& pages, const QFont& font, QWidget* parent = nullptr);

  int Current() const { return sheet_->Current(); }
  /// Shows a page from its top; beyond the ends it is the first or the last one.
  void SetCurrent(int page);
  view::PageFit Fit() const { return fit_; }
  void SetFit(view::PageFit fit);
  /// 1 is the paper's real size.
  double Zoom() const;
  /// Sets the size within the limits and no longer follows the desk.
  void SetZoom(double zoom);
  /// One step larger or smaller.
  void ZoomIn() { SetZoom(Zoom() * view::kZoomStep); }
  void ZoomOut() { SetZoom(Zoom() / view::kZoomStep); }

 signals:
  void CurrentChanged(int page);
  void ZoomChanged();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void FollowSize();
  void SetScale(double scale);
  bool TurnPage(int wheel);

  const PageSource& pages_;
  PageView* sheet_;
  view::PageFit fit_ = view::PageFit::Width;
  view::Leafing leafing_;
};

}  // namespace qvzj::qt
