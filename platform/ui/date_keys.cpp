#include "platform/ui/date_keys.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

#include "platform/basic/text.h"

namespace qvzj::ui {
namespace {

constexpr int kFirstYear = 100;
constexpr size_t kYearDigits = 4;
constexpr size_t kShortDigits = 2;

size_t DigitsOf(DatePart part) { return part == DatePart::Year ? kYearDigits : kShortDigits; }

int ToNumber(const std::string& digits) {
  int number = 0;
  for (const char digit : digits) number = number * 10 + (digit - '0');
  return number;
}

int LastDay(int year, int month) {
  using namespace std::chrono;
  const year_month_day_last last{std::chrono::year{year} /
                                 std::chrono::month{static_cast<unsigned>(month)} /
                                 std::chrono::last};
  return static_cast<int>(static_cast<unsigned>(last.day()));
}

DatePart After(DatePart part, bool back) {
  const int to = std::clamp(static_cast<int>(part) + (back ? -1 : 1), 0, 2);
  return static_cast<DatePart>(to);
}

}  // namespace

void DateKeys::Show(basic::Date date) {
  const DatePart part = part_;
  const bool ended = complete_;
  *this = DateKeys();
  moved_on_ = ended;  // a character behind the day is still taken
  parts_ = {date.Year(), date.Month(), date.Day()};
  part_ = first_ = part;
}

/// The number that the digits typed into the part at hand mean; empty when they mean none.
std::optional<int> DateKeys::TypedNumber() const {
  if (typed_.empty()) return std::nullopt;
  const int number = ToNumber(typed_);
  if (part_ == DatePart::Year) {
    if (typed_.size() == kYearDigits) return number;
    if (typed_.size() != kShortDigits) return std::nullopt;
    return number + (number < 30 ? 2000 : 1900);
  }
  return number == 0 ? std::nullopt : std::optional(number);
}

/// Can these digits, or these and more, be the part at hand?
bool DateKeys::Fits(const std::string& typed) const {
  const int number = ToNumber(typed);
  if (typed.size() < DigitsOf(part_)) return true;
  switch (part_) {
    case DatePart::Year:
      return number >= kFirstYear;
    case DatePart::Month:
      return number >= 1 && number <= 12;
    default:
      return number >= 1 && number <= LastDay(Number(DatePart::Year), Number(DatePart::Month));
  }
}

/// True when no further digit can belong to the part at hand.
bool DateKeys::Full() const {
  if (typed_.size() == DigitsOf(part_)) return true;
  if (part_ == DatePart::Year) return false;
  return ToNumber(typed_) > (part_ == DatePart::Month ? 1 : 3);
}

bool DateKeys::TypeDigit(int digit) {
  const std::string typed = typed_ + static_cast<char>('0' + digit);
  if (!Fits(typed)) return false;
  typed_ = typed;
  moved_on_ = complete_ = false;
  pending_ = true;
  if (!Full()) return true;
  if (part_ == DatePart::Day) {
    Finish();
  } else {
    EndPart();
    part_ = After(part_, false);
    moved_on_ = true;
  }
  return true;
}

bool DateKeys::TypeSeparator() {
  if (moved_on_) {
    moved_on_ = false;
    return true;
  }
  if (!TypedNumber()) return false;
  if (part_ == DatePart::Day) {
    Finish();
  } else {
    EndPart();
    part_ = After(part_, false);
  }
  return true;
}

bool DateKeys::Backspace() {
  if (typed_.empty()) {
    if (part_ == first_) return false;
    part_ = After(part_, true);
    typed_ = PartText(part_);
  }
  typed_.pop_back();
  moved_on_ = complete_ = false;
  pending_ = true;
  return true;
}

void DateKeys::GoTo(DatePart part) {
  EndPart();
  part_ = first_ = part;
  moved_on_ = complete_ = false;
}

void DateKeys::Step(bool back) { GoTo(After(part_, back)); }

bool DateKeys::Take(std::string_view text) {
  DateKeys taken = *this;
  taken.GoTo(DatePart::Year);
  for (const char32_t character : basic::CodePoints(basic::Trim(text))) {
    if (taken.complete_) return false;
    const int digit = DigitOf(character);
    if (digit < 0 && !SeparatesDateParts(character)) return false;
    if (!(digit < 0 ? taken.TypeSeparator() : taken.TypeDigit(digit))) return false;
  }
  const bool day_typed = taken.part_ == DatePart::Day && taken.TypedNumber().has_value();
  if (!taken.complete_ && !day_typed) return false;
  if (!taken.complete_) taken.Finish();
  *this = taken;
  return true;
}

void DateKeys::EndPart() {
  if (const auto number = TypedNumber()) parts_[static_cast<size_t>(part_)] = *number;
  typed_.clear();
}

void DateKeys::Finish() {
  EndPart();
  part_ = first_;
  complete_ = true;
}

basic::Date DateKeys::Meant() const {
  DateKeys ended = *this;
  ended.EndPart();
  const int year = ended.Number(DatePart::Year);
  const int month = ended.Number(DatePart::Month);
  return basic::Date::FromYmd(year, month,
                              std::min(ended.Number(DatePart::Day), LastDay(year, month)));
}

bool DateKeys::Sensible() const { return typed_.empty() || TypedNumber().has_value(); }

std::string DateKeys::PartText(DatePart part) const {
  char text[16];
  std::snprintf(text, sizeof text, part == DatePart::Year ? "%04d" : "%02d", Number(part));
  return text;
}

std::string DateKeys::Shown() const {
  std::string shown;
  for (const DatePart part : {DatePart::Year, DatePart::Month, DatePart::Day}) {
    if (!shown.empty()) shown += '-';
    shown += part == part_ && !typed_.empty() ? typed_ : PartText(part);
  }
  return shown;
}

int32_t DateKeys::SelStart() const {
  constexpr std::array<int32_t, 3> kStarts = {0, 5, 8};
  return kStarts[static_cast<size_t>(part_)] + static_cast<int32_t>(typed_.size());
}

int32_t DateKeys::SelLength() const {
  return typed_.empty() ? static_cast<int32_t>(DigitsOf(part_)) : 0;
}

int DigitOf(char32_t character) {
  if (character >= U'0' && character <= U'9') return static_cast<int>(character - U'0');
  if (character >= U'０' && character <= U'９') return static_cast<int>(character - U'０');
  return -1;
}

bool SeparatesDateParts(char32_t character) {
  return std::u32string_view(U"-/.－／．。年月日").find(character) != std::u32string_view::npos;
}

}  // namespace qvzj::ui
