#include "hosts/demo/small_png.h"

#include <QList>
#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

namespace qvzj::demo {

namespace {

constexpr size_t kPaletteSize = 256;

QList<QRgb> MostUsedColors(const QImage& image) {
  std::unordered_map<QRgb, int> uses;
  for (int y = 0; y < image.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = 0; x < image.width(); ++x) ++uses[line[x]];
  }
  std::vector<std::pair<int, QRgb>> ranked;
  for (const auto& [color, count] : uses) ranked.emplace_back(count, color);
  std::sort(ranked.rbegin(), ranked.rend());
  if (ranked.size() > kPaletteSize) ranked.resize(kPaletteSize);
  QList<QRgb> colors;
  for (const auto& [count, color] : ranked) colors << color;
  return colors;
}

}  // namespace

bool SaveSmallPng(const QImage& image, const QString& file) {
  const QImage plain = image.convertToFormat(QImage::Format_RGB32);
  const Qt::ImageConversionFlags no_dots = Qt::ThresholdDither | Qt::AvoidDither;
  const QImage indexed =
      plain.convertToFormat(QImage::Format_Indexed8, MostUsedColors(plain), no_dots);
  constexpr int kStrongestCompression = 0;  // Qt calls it the quality
  return indexed.save(file, "PNG", kStrongestCompression);
}

}  // namespace qvzj::demo
