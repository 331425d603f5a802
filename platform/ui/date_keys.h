#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/basic/date.h"

namespace qvzj::ui {

/// The parts of a date in the order in which they are shown and typed.
enum class DatePart { Year = 0, Month = 1, Day = 2 };

/// A date as it is being keyed, part by part ("2026", "11", "18" or all in one go). It knows
/// nothing of events. A key that makes no sense changes nothing and is answered with false.
///
/// There is always a part that the next digit goes to: the year at first, so that "20261118" works
/// wherever the focus came from. A part that is full hands on to the next one, and a date that is
/// full goes back to the part where its typing began.
class DateKeys {
 public:
  /// Shows `date` with nothing typed; the next digit begins the part at hand.
  void Show(basic::Date date);

  /// A digit (0 to 9) goes to the part at hand. False when no date could come of it.
  bool TypeDigit(int digit);
  /// A character between two parts: ends the part at hand. Behind a part that was full it is just
  /// taken, since the typing has moved on by itself.
  bool TypeSeparator();
  /// Takes the last digit back, over the beginning of a part into the one before.
  bool Backspace();
  /// Ends the part at hand and goes to another one, where typing begins anew.
  void GoTo(DatePart part);
  /// Goes one part to the left or right; stays at the ends.
  void Step(bool back);
  /// Replaces what is shown by a date in one of the forms that can be typed. False, and nothing
  /// changed, when `text` is none.
  bool Take(std::string_view text);

  /// True when something was typed that Show has not seen.
  bool Pending() const { return pending_; }
  /// True when the day, and with it the date, has just been typed to its end.
  bool Complete() const { return complete_; }
  /// The date that what stands here means. A day beyond the end of its month is that end; a year of
  /// two digits is the one between 1930 and 2029; a part that cannot be one (one or three digits of
  /// a year, month 0) counts as it was before it was typed.
  basic::Date Meant() const;
  /// True when Meant() takes every part as it was typed.
  bool Sensible() const;

  /// The shown text, "2026-11-18", the part at hand with only those digits that were typed.
  std::string Shown() const;
  DatePart Part() const { return part_; }
  /// What a front end selects of Shown(), in characters: the part at hand while nothing was typed
  /// into it, the place behind its last digit afterwards.
  int32_t SelStart() const;
  int32_t SelLength() const;

 private:
  int Number(DatePart part) const { return parts_[static_cast<size_t>(part)]; }
  std::optional<int> TypedNumber() const;
  bool Fits(const std::string& typed) const;
  bool Full() const;
  void EndPart();
  void Finish();
  std::string PartText(DatePart part) const;

  std::array<int, 3> parts_{1899, 12, 30};
  DatePart part_ = DatePart::Year;
  DatePart first_ = DatePart::Year;  // where the typing began
  std::string typed_;                // digits of the part at hand
  bool moved_on_ = false;            // the part before was full and handed on
  bool pending_ = false;
  bool complete_ = false;
};

/// The digit that a typed character stands for, also as an input method widens it; -1 for others.
int DigitOf(char32_t character);
/// True for a character that people put between the parts of a date.
bool SeparatesDateParts(char32_t character);

}  // namespace qvzj::ui
