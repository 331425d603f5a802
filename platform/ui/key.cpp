#include "platform/ui/key.h"

#include <array>
#include <utility>

#include "platform/basic/text.h"

namespace qvzj::ui {
namespace {

using Name = Key::Name;

constexpr std::array<std::pair<std::string_view, Name>, 31> kNames{{
    {"Enter", Name::Enter},
    {"Return", Name::Enter},
    {"Tab", Name::Tab},
    {"Esc", Name::Escape},
    {"Escape", Name::Escape},
    {"Backspace", Name::Backspace},
    {"Delete", Name::Delete},
    {"Del", Name::Delete},
    {"Left", Name::Left},
    {"Right", Name::Right},
    {"Up", Name::Up},
    {"Down", Name::Down},
    {"Home", Name::Home},
    {"End", Name::End},
    {"PageUp", Name::PageUp},
    {"PgUp", Name::PageUp},
    {"PageDown", Name::PageDown},
    {"PgDn", Name::PageDown},
    {"Space", Name::Space},
    {"F1", Name::F1},
    {"F2", Name::F2},
    {"F3", Name::F3},
    {"F4", Name::F4},
    {"F5", Name::F5},
    {"F6", Name::F6},
    {"F7", Name::F7},
    {"F8", Name::F8},
    {"F9", Name::F9},
    {"F10", Name::F10},
    {"F11", Name::F11},
    {"F12", Name::F12},
}};

/// Takes "Ctrl+" and the like off the front of `text`; false when it does not begin with it.
bool TakeModifier(std::string_view& text, std::string_view modifier) {
  if (text.size() <= modifier.size()) return false;
  if (!basic::EqualIgnoringCase(text.substr(0, modifier.size()), modifier)) return false;
  text.remove_prefix(modifier.size());
  return true;
}

std::optional<Key> PlainKey(std::string_view text) {
  for (const auto& [spelling, name] : kNames) {
    if (basic::EqualIgnoringCase(text, spelling)) {
      return name == Name::Space ? Key{name, U' '} : Key::Named(name);
    }
  }
  if (basic::Len(text) != 1) return std::nullopt;
  const char32_t code = basic::CodePoints(text)[0];
  return code == U' ' ? Key{Name::Space, code} : Key::Character(code);
}

}  // namespace

std::optional<Key> ParseKey(std::string_view text) {
  bool ctrl = false;
  bool alt = false;
  bool shift = false;
  for (bool found = true; found;) {
    found = false;
    if (TakeModifier(text, "Ctrl+")) found = ctrl = true;
    if (TakeModifier(text, "Alt+")) found = alt = true;
    if (TakeModifier(text, "Shift+")) found = shift = true;
  }
  std::optional<Key> key = PlainKey(text);
  if (!key) return std::nullopt;
  key->ctrl = ctrl;
  key->alt = alt;
  key->shift = shift;
  return key;
}

}  // namespace qvzj::ui
