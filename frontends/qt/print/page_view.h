#pragma once

#include <QWidget>

#include "frontends/qt/print/paint_page.h"
#include "platform/pages.h"

namespace qvzj::qt {

/// Shows one page of a source as a sheet of paper with some room around it. Only the page shown is
/// made, so that thousands of pages cost no more than one.
class PageView : public QWidget {
 public:
  PageView(const PageSource& pages, const QFont& font, QWidget* parent = nullptr);

  /// Room on each side of the sheet, in pixels.
  static constexpr int kRoom = 16;

  int Current() const { return current_; }
  /// `page` is one of the source's.
  void SetCurrent(int page);
  /// Pixels a point (1/72 inch); the sheet's real size is a dpi of 72 at 1.
  void SetScale(double scale);
  double Scale() const { return scale_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  QSize sizeHint() const override;

 private:
  const PageSource& pages_;
  PagePainter painter_;
  Page page_;
  int current_ = 0;
  double scale_ = 1;
};

}  // namespace qvzj::qt
