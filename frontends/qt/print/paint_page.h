#pragma once

#include <QFont>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QString>

#include "platform/pages.h"

namespace qvzj::qt {

/// Paints a page whose points are the painter's units.
void PaintPage(QPainter& painter, const Page& page, const QFont& font);
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
