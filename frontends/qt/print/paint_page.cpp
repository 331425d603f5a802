#include "frontends/qt/print/paint_page.h"

#include <QGlyphRun>
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

double Units(double points) { return points * kSubunits; }

int AlignmentOf(PrintAlign align) {
  if (align == PrintAlign::Center) return Qt::AlignHCenter;
  return align == PrintAlign::Right ? Qt::AlignRight : Qt::AlignLeft;
}

/// Left edge of something `width` wide in a text's room.
double LeftEdge(const PlacedText& text, double width) {
  const double slack = Units(text.width) - width;
  if (text.align == PrintAlign::Left) return Units(text.x);
  return Units(text.x) + (text.align == PrintAlign::Right ? slack : slack / 2);
}

}  // namespace

PagePainter::Face& PagePainter::FaceOf(double size, bool bold) {
  const int units = qRound(Units(size));
  const auto [place, is_new] = faces_.try_emplace({units, bold});
  if (is_new) {
    QFont& font = place->second.font = font_;
    font.setPixelSize(units);
    font.setBold(bold);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    place->second.raw = QRawFont::fromFont(font);
  }
  return place->second;
}

void PagePainter::PaintText(QPainter& painter, const PlacedText& text) {
  const Face& face = FaceOf(text.size, text.bold);
  const QString line = FromUtf8(text.text);
  const double height = Units(text.size * kLineHeight);
  const QList<quint32> glyphs = face.raw.glyphIndexesForString(line);
  if (glyphs.contains(0)) {  // a character that another font must help out with
    painter.setFont(face.font);
    painter.drawText(
        QRectF(Units(text.x), Units(text.y), Units(text.width), height),
        AlignmentOf(text.align) | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip, line);
    return;
  }
  QList<QPointF> places;
  places.reserve(glyphs.size());
  double width = 0;
  for (const QPointF& advance : face.raw.advancesForGlyphIndexes(glyphs)) {
    places << QPointF(width, 0);
    width += advance.x();
  }
  QGlyphRun run;
  run.setRawFont(face.raw);
  run.setGlyphIndexes(glyphs);
  run.setPositions(places);
  const double base = (height + face.raw.ascent() - face.raw.descent()) / 2;
  painter.drawGlyphRun(QPointF(LeftEdge(text, width), Units(text.y) + base), run);
}

void PagePainter::Paint(QPainter& painter, const Page& page) {
  painter.save();
  painter.scale(1 / kSubunits, 1 / kSubunits);
  for (const PlacedFill& fill : page.fills) {
    painter.fillRect(QRectF(Units(fill.x), Units(fill.y), Units(fill.width), Units(fill.height)),
                     QColor(QRgb(fill.color)));
  }
  painter.setPen(QPen(QColor(kLineColor), Units(kLineWidth)));
  for (const PlacedLine& line : page.lines) {
    painter.drawLine(QPointF(Units(line.x1), Units(line.y1)),
                     QPointF(Units(line.x2), Units(line.y2)));
  }
  painter.setPen(Qt::black);
  for (const PlacedText& text : page.texts) PaintText(painter, text);
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
  PagePainter pages_painter(font);
  for (int number = first; number <= last; ++number) {
    if (progress && !progress(number - first, last - first + 1)) return false;
    if (number > first && !device.newPage()) throw refused(number);
    pages_painter.Paint(painter, pages.MakePage(number));
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
