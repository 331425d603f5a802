#pragma once

#include <QString>
#include <cstdint>
#include <string>

/// Texts at the edge between the module (UTF-8, positions in characters) and Qt (UTF-16, positions
/// in code units).
namespace qvzj::qt {

inline QString FromUtf8(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string ToUtf8(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  return std::string(bytes.constData(), static_cast<size_t>(bytes.size()));
}

/// Characters that lie before the UTF-16 position.
inline int32_t CharactersBefore(const QString& text, qsizetype position) {
  int32_t count = 0;
  for (qsizetype i = 0; i < position && i < text.size(); ++i) {
    if (!text.at(i).isLowSurrogate()) ++count;
  }
  return count;
}

/// UTF-16 position behind the first `characters` characters; the end when there are fewer.
inline int Utf16Position(const QString& text, int32_t characters) {
  qsizetype i = 0;
  while (characters > 0 && i < text.size()) {
    i += text.at(i).isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
    --characters;
  }
  return static_cast<int>(i);
}

}  // namespace qvzj::qt
