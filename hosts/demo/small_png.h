#pragma once

#include <QImage>
#include <QString>

namespace qvzj::demo {

/// Writes a picture of a screen as a small PNG file: with a palette of its most used colours and a
/// few between them, which flat drawing hardly needs more of. False when the file cannot be written.
bool SaveSmallPng(const QImage& image, const QString& file);

}  // namespace qvzj::demo
