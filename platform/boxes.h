#pragma once

#include <optional>
#include <string>

namespace qvzj {

/// Styles of message boxes: icon plus buttons, as numbered by the host's platform.
namespace box {
inline constexpr int kPlain = 0;                 ///< OK, no icon
inline constexpr int kCritical = 16;             ///< critical, OK
inline constexpr int kQuestionOkCancel = 33;     ///< question, OK and Cancel
inline constexpr int kExclamation = 48;          ///< exclamation, OK
inline constexpr int kExclamationOkCancel = 49;  ///< exclamation, OK and Cancel
inline constexpr int kInformation = 64;          ///< information, OK
/// Buttons of a style are its low four bits: 0 = OK, 1 = OK and Cancel, 4 = Yes and No.
inline constexpr int kButtonsMask = 15;
}  // namespace box

enum class Answer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

/// Modal boxes. A call returns when the user has answered. A box may have a detail, lines of plain
/// text that say more than its text and that the user opens when he wants them; "" is none.
class Boxes {
 public:
  virtual ~Boxes() = default;
  Answer Show(const std::string& text, int style, const std::string& title) {
    return Show(text, style, title, {});
  }
  virtual Answer Show(const std::string& text, int style, const std::string& title,
                      const std::string& detail) = 0;
  /// Asks for a line of text; empty optional when the user cancels.
  virtual std::optional<std::string> Input(const std::string& prompt, const std::string& title,
                                           const std::string& preset) = 0;
  /// Reports an error that the behaviour did not catch: a critical box in a window.
  void Error(const std::string& text, const std::string& title) { Error(text, title, {}); }
  virtual void Error(const std::string& text, const std::string& title,
                     const std::string& detail) = 0;
};

}  // namespace qvzj
