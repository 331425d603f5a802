#include "frontends/qt/print/page_view.h"

#include <QPainter>

#include "frontends/qt/theme.h"

namespace qvzj::qt {

PageView::PageView(const PageSource& pages, const QFont& font, QWidget* parent)
    : QWidget(parent), pages_(pages), painter_(font), page_(pages.MakePage(0)) {
  resize(sizeHint());
}

void PageView::SetCurrent(int page) {
  current_ = page;
  page_ = pages_.MakePage(page);
  update();
}

void PageView::SetScale(double scale) {
  scale_ = scale;
  resize(sizeHint());
  update();
}

QSize PageView::sizeHint() const {
  return {static_cast<int>(pages_.PageWidth() * scale_) + 2 * kRoom,
          static_cast<int>(pages_.PageHeight() * scale_) + 2 * kRoom};
}

void PageView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF sheet(kRoom, kRoom, pages_.PageWidth() * scale_, pages_.PageHeight() * scale_);
  painter.setPen(QPen(QColor(ColorsFor(palette()).strong_border), 1));
  painter.setBrush(Qt::white);  // paper, whatever the window's colours
  painter.drawRect(sheet.adjusted(-0.5, -0.5, 0.5, 0.5));
  painter.translate(kRoom, kRoom);
  painter.scale(scale_, scale_);
  painter_.Paint(painter, page_);
}

}  // namespace qvzj::qt
