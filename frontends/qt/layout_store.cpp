#include "frontends/qt/layout_store.h"

#include <QSettings>
#include <QVariantList>
#include <algorithm>
#include <numeric>

namespace qvzj::qt {

namespace {

QVariantList ToList(const std::vector<int>& numbers) {
  QVariantList list;
  for (int number : numbers) list << number;
  return list;
}

std::vector<int> FromList(const QVariant& value) {
  std::vector<int> numbers;
  for (const QVariant& item : value.toList()) numbers.push_back(item.toInt());
  return numbers;
}

bool IsPermutation(std::vector<int> order) {
  std::sort(order.begin(), order.end());
  std::vector<int> natural(order.size());
  std::iota(natural.begin(), natural.end(), 0);
  return order == natural;
}

}  // namespace

std::optional<ColumnLayout> LayoutStore::Columns(const QString& grid, size_t count) const {
  ColumnLayout layout{FromList(settings_.value("columns/" + grid + "/widths")),
                      FromList(settings_.value("columns/" + grid + "/order"))};
  if (layout.widths.size() != count || layout.order.size() != count ||
      !IsPermutation(layout.order)) {
    return std::nullopt;
  }
  return layout;
}

void LayoutStore::KeepColumns(const QString& grid, const ColumnLayout& layout) {
  settings_.setValue("columns/" + grid + "/widths", ToList(layout.widths));
  settings_.setValue("columns/" + grid + "/order", ToList(layout.order));
}

void LayoutStore::ForgetColumns(const QString& grid) { settings_.remove("columns/" + grid); }

QByteArray LayoutStore::Place(const QString& window) const {
  return settings_.value("windows/" + window).toByteArray();
}

void LayoutStore::KeepPlace(const QString& window, const QByteArray& place) {
  settings_.setValue("windows/" + window, place);
}

}  // namespace qvzj::qt
