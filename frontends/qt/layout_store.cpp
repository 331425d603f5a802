#include "frontends/qt/layout_store.h"

#include <QSettings>
#include <QVariantList>

#include "frontends/qt/text.h"

namespace qvzj::qt {

std::vector<int> LayoutStore::Numbers(const std::string& name) const {
  std::vector<int> numbers;
  for (const QVariant& item : settings_.value(FromUtf8(name)).toList()) {
    numbers.push_back(item.toInt());
  }
  return numbers;
}

void LayoutStore::KeepNumbers(const std::string& name, const std::vector<int>& numbers) {
  QVariantList list;
  for (int number : numbers) list << number;
  settings_.setValue(FromUtf8(name), list);
}

void LayoutStore::Forget(const std::string& name) { settings_.remove(FromUtf8(name)); }

QByteArray LayoutStore::Place(const QString& window) const {
  return settings_.value("windows/" + window).toByteArray();
}

void LayoutStore::KeepPlace(const QString& window, const QByteArray& place) {
  settings_.setValue("windows/" + window, place);
}

}  // namespace qvzj::qt
