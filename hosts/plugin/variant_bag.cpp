#include "hosts/plugin/variant_bag.h"

#include "frontends/qt/text.h"
#include "platform/basic/number.h"

namespace qvzj {

QVariant VariantBag::Find(const std::string& key) const {
  const QString wanted = qt::FromUtf8(key);
  for (auto it = values_.begin(); it != values_.end(); ++it) {
    if (it.key().compare(wanted, Qt::CaseInsensitive) == 0) return it.value();
  }
  return {};
}

std::string VariantBag::ReadText(const std::string& key, const std::string& preset) const {
  const QVariant value = Find(key);
  return value.isValid() ? qt::ToUtf8(value.toString()) : preset;
}

int16_t VariantBag::ReadInteger(const std::string& key, int16_t preset) const {
  const QVariant value = Find(key);
  return value.isValid() ? basic::ToInt16(value.toDouble()) : preset;
}

void VariantBag::WriteText(const std::string& key, const std::string& value,
                           const std::string& preset) {
  if (value != preset) values_.insert(qt::FromUtf8(key), qt::FromUtf8(value));
}

void VariantBag::WriteInteger(const std::string& key, int16_t value, int16_t preset) {
  if (value != preset) values_.insert(qt::FromUtf8(key), int{value});
}

void VariantBag::WriteEmpty(const std::string&) {}

}  // namespace qvzj
