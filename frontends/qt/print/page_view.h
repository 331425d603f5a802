#pragma once

#include <QFont>
#include <QWidget>

#include "platform/pages.h"

namespace qvzj::qt {

/// Shows one page of a source on a desk, made when it is looked at, so that thousands of pages
/// cost no more than one.
class PageView : public QWidget {
  Q_OBJECT

 public:
  PageView(const PageSource& pages, const QFont& font, QWidget* parent = nullptr);

  int Current() const { return current_; }
  void SetCurrent(int page);
  /// Size of the page on the screen; 1 is 72 dpi.
  void SetZoom(double zoom);
  double Zoom() const { return zoom_; }

 signals:
  void CurrentChanged(int page);

 protected:
  void paintEvent(QPaintEvent* event) override;
  QSize sizeHint() const override;

 private:
  const PageSource& pages_;
  QFont font_;
  Page page_;
  int current_ = 0;
  double zoom_ = 1.2;
};

}  // namespace qvzj::qt
