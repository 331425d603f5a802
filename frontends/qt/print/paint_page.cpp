#include "frontends/qt/print/paint_page.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QSaveFile>

#include "frontends/qt/text.h"
#include "platform/basic/errors.h"

namespace qvzj::qt {
namespace {

/// Text is laid out in tenths of a point, so that half-point font sizes survive Qt's whole pixels.
constexpr double kSubunits = 10;
constexpr double kPointsAnInch = 72;
constexpr double kLineWidth = 0.4;
constexpr double kLineHeight = 1.35;
constexpr int kPdfDots = 1200;
constexpr QRgb kLineColor = 0xFFB4BAC2;

int AlignmentOf(PrintAlign align) {
  if (align == PrintAlign::Center) return Qt::AlignHCenter;
  return align == PrintAlign::Right ? Qt::AlignRight : Qt::AlignLeft;
}

}  // namespace

void PaintPage(QPainter& painter, const Page& page, const QFont& font) {
  painter.save();
  painter.scale(1 / kSubunits, 1 / kSubunits);
  const auto unit = [](double points) { return points * kSubunits; };
  for (const PlacedFill& fill : page.fills) {
    painter.fillRect(QRectF(unit(fill.x), unit(fill.y), unit(fill.width), unit(fill.height)),
                     QColor(QRgb(fill.color)));
  }
  painter.setPen(QPen(QColor(kLineColor), unit(kLineWidth)));
  for (const PlacedLine& line : page.lines) {
    painter.drawLine(QPointF(unit(line.x1), unit(line.y1)), QPointF(unit(line.x2), unit(line.y2)));
  }
  painter.setPen(Qt::black);
  QFont sized = font;
  sized.setKerning(false);
  for (const PlacedText& text : page.texts) {
    sized.setPixelSize(qRound(unit(text.size)));
    sized.setBold(text.bold);
    painter.setFont(sized);
    painter.drawText(
        QRectF(unit(text.x), unit(text.y), unit(text.width), unit(text.size * kLineHeight)),
        AlignmentOf(text.align) | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip,
        FromUtf8(text.text));
  }
  painter.restore();
}

void FitPaper(QPagedPaintDevice& device, const PageSource& pages) {
  const bool landscape = pages.PageWidth() > pages.PageHeight();
  QSizeF size(pages.PageWidth(), pages.PageHeight());
  if (landscape) size.transpose();
  device.setPageLayout(QPageLayout(QPageSize(size, QPageSize::Point, {}, QPageSize::FuzzyMatch),
                                   landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                                   QMarginsF(0, 0, 0, 0)));
}

bool PaintPages(QPagedPaintDevice& device, int dots, const PageSource& pages, int first, int last,
                const QFont& font, const Progress& progress) {
  QPainter painter;
  const auto refused = [](int page) {
    return Error("page " + std::to_string(page + 1) + " cannot be painted");
  };
  if (!painter.begin(&device)) throw refused(first);
  painter.scale(dots / kPointsAnInch, dots / kPointsAnInch);
  for (int number = first; number <= last; ++number) {
    if (progress && !progress(number - first, last - first + 1)) return false;
    if (number > first && !device.newPage()) throw refused(number);
    PaintPage(painter, pages.MakePage(number), font);
  }
  return true;
}

bool WritePdf(const PageSource& pages, const QString& path, const QString& title, const QFont& font,
              const Progress& progress) {
  QSaveFile file(path);
  const auto fail = [&] { throw Error(ToUtf8(path + ": " + file.errorString())); };
  if (!file.open(QIODevice::WriteOnly)) fail();
  QPdfWriter writer(&file);
  writer.setTitle(title);
  writer.setResolution(kPdfDots);
  FitPaper(writer, pages);
  if (!PaintPages(writer, kPdfDots, pages, 0, pages.PageCount() - 1, font, progress)) {
    file.cancelWriting();
    return false;
  }
  // What is still buffered is written here, since commit does not look whether it could be.
  if (!file.flush() || !file.commit()) fail();
  return true;
}

}  // namespace qvzj::qt
