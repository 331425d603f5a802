#include "platform/ui/edit_text.h"

#include <algorithm>

#include "platform/basic/text.h"

namespace qvzj::ui {
namespace {

std::string Encode(std::u32string_view codes) {
  std::string text;
  for (char32_t code : codes) text += basic::FromCodePoint(code);
  return text;
}

}  // namespace

std::string EditText::Selected() const { return basic::Mid(text_, SelStart() + 1, SelLength()); }

void EditText::SetText(std::string text) {
  text_ = std::move(text);
  anchor_ = caret_ = 0;
}

void EditText::Select(int32_t start, int32_t length) {
  const int32_t end = basic::Len(text_);
  anchor_ = std::clamp(start, 0, end);
  caret_ = anchor_ + std::clamp(length, 0, end - anchor_);
}

void EditText::Replace(std::string_view inserted) {
  const int32_t start = SelStart();
  text_ = basic::Left(text_, start) + std::string(inserted) +
          basic::Mid(text_, start + SelLength() + 1);
  anchor_ = caret_ = start + basic::Len(inserted);
}

bool EditText::Move(const Key& key, bool multi_line) {
  const bool collapse = !key.shift && SelLength() > 0;
  int32_t to = caret_;
  switch (key.name) {
    case Key::Name::Left:
      to = collapse ? SelStart() : caret_ - 1;
      break;
    case Key::Name::Right:
      to = collapse ? SelStart() + SelLength() : caret_ + 1;
      break;
    case Key::Name::Home:
      to = key.ctrl ? 0 : LineStart(caret_);
      break;
    case Key::Name::End:
      to = key.ctrl ? basic::Len(text_) : LineEnd(caret_);
      break;
    case Key::Name::Up:
      if (!multi_line) return false;
      to = LineAbove();
      break;
    case Key::Name::Down:
      if (!multi_line) return false;
      to = LineBelow();
      break;
    default:
      return false;
  }
  caret_ = std::clamp(to, 0, basic::Len(text_));
  if (!key.shift) anchor_ = caret_;
  return true;
}

bool EditText::SelectNeighbour(bool before) {
  if (SelLength() == 0) Select(before ? caret_ - 1 : caret_, before && caret_ == 0 ? 0 : 1);
  return SelLength() > 0;
}

int32_t EditText::LineStart(int32_t position) const {
  const std::string before = basic::Left(text_, position);
  const size_t line_break = before.rfind('\n');
  return line_break == std::string::npos ? 0 : basic::Len(before.substr(0, line_break)) + 1;
}

int32_t EditText::LineEnd(int32_t position) const {
  const std::string behind = basic::Mid(text_, position + 1);
  return position + basic::Len(behind.substr(0, behind.find('\n')));
}

int32_t EditText::LineAbove() const {
  const int32_t start = LineStart(caret_);
  if (start == 0) return caret_;
  const int32_t above = LineStart(start - 1);
  return std::min(above + (caret_ - start), start - 1);
}

int32_t EditText::LineBelow() const {
  const int32_t end = LineEnd(caret_);
  if (end == basic::Len(text_)) return caret_;
  return std::min(end + 1 + (caret_ - LineStart(caret_)), LineEnd(end + 1));
}

Replacement FindReplacement(std::string_view old_text, std::string_view new_text, int32_t caret) {
  const std::u32string before = basic::CodePoints(old_text);
  const std::u32string after = basic::CodePoints(new_text);
  const size_t behind_caret =
      after.size() - std::min(after.size(), static_cast<size_t>(std::max(caret, 0)));
  size_t tail = 0;
  while (tail < std::min(before.size(), behind_caret) &&
         before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) {
    ++tail;
  }
  size_t head = 0;
  while (head < std::min(before.size(), after.size()) - tail && before[head] == after[head]) {
    ++head;
  }
  return {static_cast<int32_t>(head), static_cast<int32_t>(before.size() - tail - head),
          Encode(std::u32string_view(after).substr(head, after.size() - tail - head))};
}

}  // namespace qvzj::ui
