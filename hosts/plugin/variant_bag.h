#pragma once

#include <QVariantMap>

#include "platform/services.h"

namespace qvzj {

/// The host's property store as a map of Qt values.
class VariantBag : public PropertyBag {
 public:
  VariantBag() = default;
  explicit VariantBag(QVariantMap values) : values_(std::move(values)) {}
  const QVariantMap& Values() const { return values_; }

  std::string ReadText(const std::string& key, const std::string& preset) const override;
  int16_t ReadInteger(const std::string& key, int16_t preset) const override;
  void WriteText(const std::string& key, const std::string& value,
                 const std::string& preset) override;
  void WriteInteger(const std::string& key, int16_t value, int16_t preset) override;
  void WriteEmpty(const std::string& key) override;

 private:
  /// The value of a key, ASCII case ignored; invalid when there is none.
  QVariant Find(const std::string& key) const;

  QVariantMap values_;
};

}  // namespace qvzj
