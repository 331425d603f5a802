#include "frontends/qt/print/page_view.h"

#include <QPainter>
#include <algorithm>

#include "frontends/qt/print/paint_page.h"

namespace qvzj::qt {
namespace {

constexpr int kDesk = 16;  // pixels around the page

}  // namespace

PageView::PageView(const PageSource& pages, const QFont& font, QWidget* parent)
    : QWidget(parent), pages_(pages), font_(font), page_(pages.MakePage(0)) {
  resize(sizeHint());
}

void PageView::SetCurrent(int page) {
  page = std::clamp(page, 0, pages_.PageCount() - 1);
  if (page == current_) return;
  current_ = page;
  page_ = pages_.MakePage(page);
  update();
  emit CurrentChanged(page);
}

void PageView::SetZoom(double zoom) {
  zoom_ = zoom;
  resize(sizeHint());
  update();
}

QSize PageView::sizeHint() const {
  return {static_cast<int>(pages_.PageWidth() * zoom_) + 2 * kDesk,
          static_cast<int>(pages_.PageHeight() * zoom_) + 2 * kDesk};
}

void PageView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(kDesk, kDesk);
  painter.scale(zoom_, zoom_);
  const QRectF paper(0, 0, pages_.PageWidth(), pages_.PageHeight());
  painter.fillRect(paper.translated(2, 2), QColor(0, 0, 0, 60));
  painter.fillRect(paper, Qt::white);
  PaintPage(painter, page_, font_);
}

}  // namespace qvzj::qt
