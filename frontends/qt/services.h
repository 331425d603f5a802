#pragma once

#include "platform/services.h"

class QSettings;

namespace qvzj::qt {

/// The desktop's clipboard.
class QtClipboard : public Clipboard {
 public:
  std::string Text() const override;
  void SetText(const std::string& text) override;
};

/// Per-user settings in the desktop's settings store. Names compare without regard to ASCII case.
class QtSettings : public Settings {
 public:
  explicit QtSettings(QSettings& settings) : settings_(settings) {}
  std::string Get(const std::string& application, const std::string& section,
                  const std::string& key, const std::string& preset) const override;
  void Set(const std::string& application, const std::string& section, const std::string& key,
           const std::string& value) override;

 private:
  QSettings& settings_;
};

}  // namespace qvzj::qt
