#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/basic/date.h"

/// Small services of the machine that the module runs on.
namespace qvzj {

/// Per-user settings by application, section and key (ASCII case ignored).
class Settings {
 public:
  virtual ~Settings() = default;
  /// The value; `preset` when there is none.
  virtual std::string Get(const std::string& application, const std::string& section,
                          const std::string& key, const std::string& preset) const = 0;
  /// Puts a value in the place of the one before.
  virtual void Set(const std::string& application, const std::string& section,
                   const std::string& key, const std::string& value) = 0;
};

/// The text that users copy and paste.
class Clipboard {
 public:
  virtual ~Clipboard() = default;
  /// What lies there as UTF-8, line breaks as they came; "" when it is no text.
  virtual std::string Text() const = 0;
  /// Puts a text there in place of what was.
  virtual void SetText(const std::string& text) = 0;
};

/// The day on which the module works.
class Clock {
 public:
  virtual ~Clock() = default;
  /// The day of the machine's own place.
  virtual basic::Date Today() const = 0;
};

/// The Chinese (GBK) code page, in which the tables' length limits are counted.
class AnsiCodec {
 public:
  virtual ~AnsiCodec() = default;
  /// Bytes of the text in the code page; a character outside it becomes "?".
  virtual std::string Encode(std::string_view utf8) const = 0;
  /// Bytes of one character in the code page: 1 or 2.
  virtual int BytesOf(char32_t character) const = 0;
};

/// What the module asks of the file system.
class Files {
 public:
  virtual ~Files() = default;
  /// True when listing `pattern` (a path whose last part may hold "*" and "?") finds at least one
  /// normal file. A folder alone is none; a path that ends in a slash lists the folder's files.
  virtual bool AnyNormalFile(const std::string& pattern) const = 0;
};

/// The host's key/value store in which the control saves itself. Keys compare without regard to
/// case. Errors of the store pass to the host as exceptions.
class PropertyBag {
 public:
  virtual ~PropertyBag() = default;
  /// The value kept under `key`, `preset` when there is none. A value that is no number, or leaves
  /// 16 bits, is an error of ReadInteger.
  virtual std::string ReadText(const std::string& key, const std::string& preset) const = 0;
  virtual int16_t ReadInteger(const std::string& key, int16_t preset) const = 0;
  /// The store may omit a value that equals its preset.
  virtual void WriteText(const std::string& key, const std::string& value,
                         const std::string& preset) = 0;
  virtual void WriteInteger(const std::string& key, int16_t value, int16_t preset) = 0;
  /// Writes a key without a value.
  virtual void WriteEmpty(const std::string& key) = 0;
};

}  // namespace qvzj
