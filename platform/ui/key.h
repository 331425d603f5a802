#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qvzj::ui {

/// One key press as a front end hands it to the form. A printable key carries its character; the
/// others are named.
struct Key {
  enum class Name {
    Character,
    Enter,
    Tab,
    Escape,
    Backspace,
    Delete,
    Left,
    Right,
    Up,
    Down,
    Home,
    End,
    PageUp,
    PageDown,
    Space,
    F1,
    F2,
    F3,
    F4,
    F5,
    F6,
    F7,
    F8,
    F9,
    F10,
    F11,
    F12
  };
  Name name = Name::Character;
  char32_t character = 0;  ///< for Character; Space also carries U+0020
  bool ctrl = false;
  bool alt = false;
  bool shift = false;

  static Key Character(char32_t code) { return {Name::Character, code}; }
  static Key Named(Name name) { return {name}; }
};

/// Codes that key-press events see, as the host's language numbers them.
inline constexpr int kKeyBackspace = 8;
inline constexpr int kKeyEnter = 13;
inline constexpr int kKeyCtrlC = 3;
inline constexpr int kKeyCtrlV = 22;
inline constexpr int kKeyCtrlX = 24;
inline constexpr int kKeyEscape = 27;

/// Reads "Enter", "Shift+Tab", "Ctrl+V", "Alt+N", "Up", "F5" or a single character. Empty when the
/// text names no key. Names ignore case.
std::optional<Key> ParseKey(std::string_view text);

}  // namespace qvzj::ui
