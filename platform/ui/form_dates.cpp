#include <algorithm>
#include <chrono>

#include "platform/ui/form.h"

/// Dates as the user keys them.
namespace qvzj::ui {
namespace {

using Name = Key::Name;

basic::Date AddMonths(basic::Date date, int months) {
  using namespace std::chrono;
  const year_month shifted =
      year_month{year{date.Year()}, month{static_cast<unsigned>(date.Month())}} +
      std::chrono::months{months};
  const unsigned last = static_cast<unsigned>(
      year_month_day_last{shifted.year() / shifted.month() / std::chrono::last}.day());
  return basic::Date::FromYmd(static_cast<int>(shifted.year()),
                              static_cast<int>(static_cast<unsigned>(shifted.month())),
                              std::min(date.Day(), static_cast<int>(last)));
}

/// The day that a key of movement leads to; `date` itself for any other key.
basic::Date StepTarget(basic::Date date, Name name) {
  switch (name) {
    case Name::Up:
      return {date.serial + 1};
    case Name::Down:
      return {date.serial - 1};
    case Name::PageUp:
      return AddMonths(date, 1);
    case Name::PageDown:
      return AddMonths(date, -1);
    default:
      return date;
  }
}

bool TypeCharacter(DateKeys& keyed, int code) {
  const auto character = static_cast<char32_t>(code);
  const int digit = DigitOf(character);
  if (digit >= 0) return keyed.TypeDigit(digit);
  return SeparatesDateParts(character) && keyed.TypeSeparator();
}

}  // namespace

bool Form::UserDatePart(DatePicker& picker, DatePart part) {
  return Act([&] {
    if (!Enter(picker)) return false;
    return KeyDate(picker, [part](DateKeys& keyed) {
      keyed.GoTo(part);
      return true;
    });
  });
}

/// Digits and what people put between them type a date; the arrows to the side, Home and End choose
/// the part to type, up and down a day, the page keys a month. Esc drops what is being typed.
bool Form::DateKey(DatePicker& picker, const Key& key, int code) {
  if (key.ctrl && key.name == Name::Character) return DateClipboard(picker, key.character | 0x20);
  switch (key.name) {
    case Name::Up:
    case Name::Down:
    case Name::PageUp:
    case Name::PageDown:
      return StepDate(picker, key.name);
    case Name::Left:
    case Name::Right:
      return KeyDate(picker, [&](DateKeys& keyed) {
        keyed.Step(key.name == Name::Left);
        return true;
      });
    case Name::Home:
    case Name::End:
      return KeyDate(picker, [&](DateKeys& keyed) {
        keyed.GoTo(key.name == Name::Home ? DatePart::Year : DatePart::Day);
        return true;
      });
    case Name::Backspace:
      return KeyDate(picker, [](DateKeys& keyed) { return keyed.Backspace(); });
    case Name::Delete:
    case Name::Escape:
      if (!picker.keyed_.Pending()) return false;
      picker.SetValue(picker.Value());
      return true;
    default:
      if (code < ' ') return false;
      return KeyDate(picker, [&](DateKeys& keyed) { return TypeCharacter(keyed, code); });
  }
}

bool Form::DateClipboard(DatePicker& picker, char32_t letter) {
  switch (letter) {
    case U'a':
      return KeyDate(picker, [](DateKeys& keyed) {
        keyed.GoTo(DatePart::Year);
        return true;
      });
    case U'c':
      if (writeClipboard) Raise(writeClipboard, picker.keyed_.Shown());
      return true;
    case U'v':
      if (!readClipboard) return false;
      return KeyDate(picker,
                     [text = readClipboard()](DateKeys& keyed) { return keyed.Take(text); });
    default:
      return false;
  }
}

/// One key of a date. A date that is full with it becomes the value at once.
bool Form::KeyDate(DatePicker& picker, const std::function<bool(DateKeys&)>& key) {
  if (!key(picker.keyed_)) return Refuse(picker);
  Notify(picker, Aspect::Text);
  if (picker.keyed_.Complete()) TakeKeyedDate(&picker);
  return true;
}

bool Form::StepDate(DatePicker& picker, Key::Name name) {
  const basic::Date to = StepTarget(picker.keyed_.Meant(), name);
  return PickDate(picker, to) || Refuse(picker);
}

/// What is being typed into a date becomes its value. A part that cannot be one goes back to what
/// it was, which must not happen unnoticed.
void Form::TakeKeyedDate(Control* control) {
  if (!control || control->GetKind() != Kind::DatePicker) return;
  auto& picker = static_cast<DatePicker&>(*control);
  if (!picker.keyed_.Pending()) return;
  if (!picker.keyed_.Sensible()) Refuse(picker);
  PickDate(picker, picker.keyed_.Meant());
}

/// The field shows its value, and typing begins with the year.
void Form::DropKeyedDate(Control* control) {
  if (!control || control->GetKind() != Kind::DatePicker) return;
  auto& picker = static_cast<DatePicker&>(*control);
  picker.SetValue(picker.Value());
  picker.keyed_.GoTo(DatePart::Year);
}

}  // namespace qvzj::ui
