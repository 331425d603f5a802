#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/ui/key.h"

namespace qvzj::ui {

/// A text with a caret and a selection, as every box has it that can be typed into. It knows
/// nothing of events. Positions count characters, 0 before the first one.
class EditText {
 public:
  const std::string& Text() const { return text_; }
  int32_t SelStart() const { return anchor_ < caret_ ? anchor_ : caret_; }
  int32_t SelLength() const { return anchor_ < caret_ ? caret_ - anchor_ : anchor_ - caret_; }
  /// The end of the selection that moves.
  int32_t Caret() const { return caret_; }
  std::string Selected() const;

  /// Replaces the whole text and puts the caret to its start.
  void SetText(std::string text);
  /// Selects `length` characters from `start` on, the caret behind them; both are cut to the text.
  void Select(int32_t start, int32_t length);
  /// Replaces the selection and puts the caret behind what came in.
  void Replace(std::string_view inserted);
  /// Moves the caret as Left, Right, Home, End (in a text of several lines also Up and Down) do;
  /// Shift keeps the other end of the selection, Ctrl takes Home and End over the lines. False for
  /// any other key.
  bool Move(const Key& key, bool multi_line);
  /// Makes the character before or behind the caret the selection when nothing is selected, for
  /// Backspace and Delete. False when there is nothing to delete.
  bool SelectNeighbour(bool before);

 private:
  int32_t LineStart(int32_t position) const;
  int32_t LineEnd(int32_t position) const;
  int32_t LineAbove() const;
  int32_t LineBelow() const;

  std::string text_;
  int32_t anchor_ = 0;
  int32_t caret_ = 0;
};

/// The one range in which two texts differ: `length` characters from `start` on became `inserted`.
struct Replacement {
  int32_t start = 0;
  int32_t length = 0;
  std::string inserted;
};

/// Finds what an editor did that turned `old_text` into `new_text` and left its caret at `caret`;
/// among several readings the one that ends at the caret.
Replacement FindReplacement(std::string_view old_text, std::string_view new_text, int32_t caret);

}  // namespace qvzj::ui
