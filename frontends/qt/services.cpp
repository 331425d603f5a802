#include "frontends/qt/services.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSettings>

#include "frontends/qt/text.h"
#include "platform/basic/text.h"

namespace qvzj::qt {

namespace {

QString KeyOf(const std::string& application, const std::string& section, const std::string& key) {
  return "settings/" + FromUtf8(basic::Lower(application + "/" + section + "/" + key));
}

}  // namespace

std::string QtClipboard::Text() const { return ToUtf8(QGuiApplication::clipboard()->text()); }

void QtClipboard::SetText(const std::string& text) {
  QGuiApplication::clipboard()->setText(FromUtf8(text));
}

std::string QtSettings::Get(const std::string& application, const std::string& section,
                            const std::string& key, const std::string& preset) const {
  return ToUtf8(settings_.value(KeyOf(application, section, key), FromUtf8(preset)).toString());
}

void QtSettings::Set(const std::string& application, const std::string& section,
                     const std::string& key, const std::string& value) {
  settings_.setValue(KeyOf(application, section, key), FromUtf8(value));
}

}  // namespace qvzj::qt
