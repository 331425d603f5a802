#pragma once

#include <QFont>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QRawFont>
#include <QString>
#include <map>
#include <utility>

#include "platform/pages.h"

namespace qvzj::qt {

/// Paints pages with one font. Texts are set glyph by glyph, as the layout measured them: nothing
/// is kerned or exchanged for another form, so that columns fit to the hair, a PDF file can be
/// searched for its numbers, and long lists are painted quickly.
class PagePainter {
 public:
  explicit PagePainter(const QFont& font) : font_(font) {}

  /// The page's points are the painter's units.
  void Paint(QPainter& painter, const Page& page);

 private:
  struct Face {
    QFont font;
    QRawFont raw;
  };

  Face& FaceOf(double size, bool bold);
  void PaintText(QPainter& painter, const PlacedText& text);

  QFont font_;
  std::map<std::pair<int, bool>, Face> faces_;  // by size and weight
};

/// Sets the device's paper to the pages' size, without margins of its own.
void FitPaper(QPagedPaintDevice& device, const PageSource& pages);
/// Paints the pages from `first` to `last` (0-based) on a device of `dots` per inch, one after
/// another. False when `progress` cancelled. Throws Error when the device refuses a page.
bool PaintPages(QPagedPaintDevice& device, int dots, const PageSource& pages, int first, int last,
                const QFont& font, const Progress& progress);
/// Writes all pages as a PDF file, under a temporary name until it is complete. False when
/// `progress` cancelled. Throws Error when the file cannot be written.
bool WritePdf(const PageSource& pages, const QString& path, const QString& title, const QFont& font,
              const Progress& progress);

}  // namespace qvzj::qt
