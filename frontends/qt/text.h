#pragma once

#include <QString>
#include <string>
#include <string_view>

/// Texts at the edge between the module (UTF-8) and Qt (UTF-16).
namespace qvzj::qt {

inline QString FromUtf8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string ToUtf8(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  return std::string(bytes.constData(), static_cast<size_t>(bytes.size()));
}

/// The text as the decisions about positions read it.
inline std::u16string_view Units(const QString& text) {
  return {QStringView(text).utf16(), static_cast<size_t>(text.size())};
}

}  // namespace qvzj::qt
