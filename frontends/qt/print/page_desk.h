#pragma once

#include <QScrollArea>

#include "frontends/qt/print/page_view.h"

namespace qvzj::qt {

/// How the size of the sheet follows the size of the desk.
enum class PageFit { Free, Width, WholePage };

/// The desk on which pages lie, one at a time, in the middle: zoomed, scrolled, and leafed through
/// by the mouse wheel.
class PageDesk : public QScrollArea {
  Q_OBJECT

 public:
  PageDesk(const PageSource& pages, const QFont& font, QWidget* parent = nullptr);

  int Current() const { return sheet_->Current(); }
  /// Shows a page from its top; beyond the ends it is the first or the last one.
  void SetCurrent(int page);
  PageFit Fit() const { return fit_; }
  void SetFit(PageFit fit);
  /// 1 is the paper's real size.
  double Zoom() const;
  /// Sets the size within the limits and no longer follows the desk.
  void SetZoom(double zoom);
  /// One step larger or smaller.
  void ZoomIn() { SetZoom(Zoom() * kZoomStep); }
  void ZoomOut() { SetZoom(Zoom() / kZoomStep); }

 signals:
  void CurrentChanged(int page);
  void ZoomChanged();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  static constexpr double kZoomStep = 1.25;

  void FollowSize();
  void SetScale(double scale);
  bool TurnPage(int wheel);

  const PageSource& pages_;
  PageView* sheet_;
  PageFit fit_ = PageFit::Width;
  int turned_ = 0;  // how far the wheel went on at the page's end
};

}  // namespace qvzj::qt
