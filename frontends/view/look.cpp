#include "frontends/view/look.h"

#include <algorithm>

namespace qvzj::view {
namespace {

constexpr Colors kLight{0xeef1f5, 0xf8f9fb, 0xffffff, 0xf1f3f6, 0x1d232b, 0x7b8593, 0xd5dae1,
                        0xb9c1cc, 0x2563b8, 0xffffff, 0xcfe1f8, 0xe2e9f2, 0xe6ecf4, 0xc0272d};

constexpr Colors kDark{0x1b1e23, 0x23272e, 0x181b1f, 0x262a31, 0xe4e7eb, 0x8f98a5, 0x363c45,
                       0x4b535f, 0x5b9bf0, 0x0f1216, 0x274468, 0x2c3440, 0x2d333c, 0xff7b78};

int Part(Color color, int shift) { return static_cast<int>(color >> shift & 0xff); }

/// 0 black … 1 white.
double Lightness(Color color) {
  const auto [least, most] = std::minmax({Part(color, 16), Part(color, 8), Part(color, 0)});
  return (least + most) / 510.0;
}

}  // namespace

const Colors& ColorsOf(bool dark) { return dark ? kDark : kLight; }

Color RowTint(Color given, bool dark) {
  if (!dark) return given;
  const double share = 1.0 - Lightness(given);
  Color tint = 0;
  for (int shift : {16, 8, 0}) {
    const int from = Part(kDark.base, shift);
    const int to = Part(kDark.text, shift);
    tint |= static_cast<Color>(from + share * (to - from)) << shift;
  }
  return tint;
}

std::vector<std::string_view> FontFamilies(bool traditional) {
  std::vector<std::string_view> families{
      "Noto Sans CJK SC", "Source Han Sans SC", "Microsoft YaHei UI",    "PingFang SC",
      "Noto Sans CJK TC", "Source Han Sans TC", "Microsoft JhengHei UI", "PingFang TC"};
  if (traditional) std::rotate(families.begin(), families.begin() + 4, families.end());
  families.insert(families.end(), {"WenQuanYi Micro Hei", "DejaVu Sans"});
  return families;
}

}  // namespace qvzj::view
