#include "hosts/demo/small_png.h"

#include <QList>
#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

namespace qvzj::demo {

namespace {

constexpr size_t kExactColors = 24;  // the surfaces and the letters on them
constexpr size_t kPaletteSize = 44;  // with the edges of letters between them
constexpr int kStep = 36;            // how far colours at the edges of letters stand apart

/// What a colour counts for: strong ones are few and mean something (amounts below zero, the
/// focus).
int64_t Weight(QRgb color, int uses) {
  const auto [least, most] = std::minmax({qRed(color), qGreen(color), qBlue(color)});
  return int64_t{uses} * (1 + (most - least) / 4);
}

using Uses = std::unordered_map<QRgb, int>;

/// The most used colours of the image, and few enough of those in between.
QList<QRgb> ChooseColors(const QImage& image) {
  Uses uses;
  for (int y = 0; y < image.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = 0; x < image.width(); ++x) ++uses[line[x]];
  }
  QList<QRgb> chosen;
  const auto choose = [&chosen](const Uses& from, size_t until) {
    std::vector<std::pair<int64_t, QRgb>> ranked;
    for (const auto& [color, count] : from) ranked.emplace_back(Weight(color, count), color);
    std::sort(ranked.rbegin(), ranked.rend());
    for (const auto& [weight, color] : ranked) {
      if (static_cast<size_t>(chosen.size()) >= until) return;
      if (!chosen.contains(color)) chosen << color;
    }
  };
  choose(uses, kExactColors);
  const auto round = [](int level) { return std::min((level + kStep / 2) / kStep * kStep, 255); };
  Uses rounded;
  for (const auto& [color, count] : uses) {
    if (chosen.contains(color)) continue;
    rounded[qRgb(round(qRed(color)), round(qGreen(color)), round(qBlue(color)))] += count;
  }
  choose(rounded, kPaletteSize);
  return chosen;
}

}  // namespace

bool SaveSmallPng(const QImage& image, const QString& file) {
  const QImage plain = image.convertToFormat(QImage::Format_RGB32);
  const Qt::ImageConversionFlags no_dots = Qt::ThresholdDither | Qt::AvoidDither;
  const QImage indexed =
      plain.convertToFormat(QImage::Format_Indexed8, ChooseColors(plain), no_dots);
  constexpr int kStrongestCompression = 0;  // Qt calls it the quality
  return indexed.save(file, "PNG", kStrongestCompression);
}

}  // namespace qvzj::demo
