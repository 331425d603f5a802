#include "frontends/qt/keys.h"

#include <algorithm>
#include <array>
#include <utility>

namespace qvzj::qt {

namespace {

using Name = ui::Key::Name;

constexpr std::array kNames{
    std::pair{Qt::Key_Return, Name::Enter},      std::pair{Qt::Key_Enter, Name::Enter},
    std::pair{Qt::Key_Tab, Name::Tab},           std::pair{Qt::Key_Backtab, Name::Tab},
    std::pair{Qt::Key_Escape, Name::Escape},     std::pair{Qt::Key_Backspace, Name::Backspace},
    std::pair{Qt::Key_Delete, Name::Delete},     std::pair{Qt::Key_Left, Name::Left},
    std::pair{Qt::Key_Right, Name::Right},       std::pair{Qt::Key_Up, Name::Up},
    std::pair{Qt::Key_Down, Name::Down},         std::pair{Qt::Key_Home, Name::Home},
    std::pair{Qt::Key_End, Name::End},           std::pair{Qt::Key_PageUp, Name::PageUp},
    std::pair{Qt::Key_PageDown, Name::PageDown}, std::pair{Qt::Key_Space, Name::Space}};

/// The character of a key that carries none in its text because Ctrl or Alt is held.
char32_t PlainCharacter(const QKeyEvent& event) {
  const int key = event.key();
  return key > 0x20 && key < 0x7f ? static_cast<char32_t>(key) : 0;
}

}  // namespace

std::optional<ui::Key> KeyOf(const QKeyEvent& event) {
  ui::Key key;
  key.ctrl = event.modifiers().testFlag(Qt::ControlModifier);
  key.alt = event.modifiers().testFlag(Qt::AltModifier);
  key.shift = event.modifiers().testFlag(Qt::ShiftModifier) || event.key() == Qt::Key_Backtab;

  const auto* named = std::find_if(kNames.begin(), kNames.end(),
                                   [&](const auto& pair) { return pair.first == event.key(); });
  if (named != kNames.end()) {
    key.name = named->second;
    if (key.name == Name::Space) key.character = U' ';
    return key;
  }
  if (event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F12) {
    key.name = static_cast<Name>(static_cast<int>(Name::F1) + (event.key() - Qt::Key_F1));
    return key;
  }
  if (event.key() == Qt::Key_Insert && event.modifiers() == Qt::ControlModifier) {
    key.character = U'C';  // the older key for copying
  } else if (key.ctrl || key.alt) {
    key.character = PlainCharacter(event);
  } else if (!event.text().isEmpty() && event.text().at(0).isPrint()) {
    key.character = event.text().toUcs4().at(0);
  }
  if (key.character == 0) return std::nullopt;
  return key;
}

}  // namespace qvzj::qt
