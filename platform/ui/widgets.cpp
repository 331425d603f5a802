#include "platform/ui/widgets.h"

#include <algorithm>
#include <stdexcept>

#include "platform/basic/text.h"
#include "platform/ui/form.h"

namespace qvzj::ui {
namespace {

/// -1 (none) to count - 1; anything else is a fault of the program.
void CheckListIndex(const Control& control, int32_t index, size_t count) {
  if (index >= -1 && index < static_cast<int64_t>(count)) return;
  throw std::out_of_range(control.FullName() + ": no item " + std::to_string(index));
}

std::string UnifyLineBreaks(std::string text) {
  if (text.find('\r') == std::string::npos) return text;
  return basic::Replace(basic::Replace(text, "\r\n", "\n"), "\r", "\n");
}

}  // namespace

void EditBox::SetLocked(bool locked) {
  if (locked == locked_) return;
  locked_ = locked;
  Changed(Aspect::Locked);
}

void EditBox::Select(int32_t start, int32_t length) {
  const int32_t old_start = SelStart();
  const int32_t old_length = SelLength();
  edit_.Select(start, length);
  if (SelStart() != old_start || SelLength() != old_length) Changed(Aspect::Selection);
}

void EditBox::SelectAll() { Select(0, basic::Len(Text())); }

void EditBox::PutText(std::string text) {
  valid_text_ = text;
  if (text == Text()) return Select(0, 0);
  edit_.SetText(std::move(text));
  Changed(Aspect::Text);
}

void TextBox::SetText(std::string text) {
  PutText(multi_line_ ? UnifyLineBreaks(std::move(text)) : std::move(text));
}

void ComboBox::AddItem(std::string item) {
  items_.push_back(std::move(item));
  Changed(Aspect::Items);
}

void ComboBox::SetItems(std::vector<std::string> items) {
  if (items != items_) {
    items_ = std::move(items);
    Changed(Aspect::Items);
  }
  SetListIndex(-1);
}

void ComboBox::SetListIndex(int32_t index) {
  CheckListIndex(*this, index, items_.size());
  const bool moved = index != list_index_;
  list_index_ = index;
  PutText(index < 0 ? std::string() : items_[static_cast<size_t>(index)]);
  if (moved) Changed(Aspect::Value);
}

void ComboBox::SetText(std::string text) {
  PutText(std::move(text));
  Edited();
}

std::string ComboBox::Shown(const std::string& text) const {
  std::string shown = shown_length_ > 0 ? basic::Left(text, shown_length_) : text;
  shown.erase(shown.find_last_not_of(' ') + 1);
  return shown;
}

void ComboBox::Edited() {
  const int32_t index = IndexOf(Text());
  if (index == list_index_) return;
  list_index_ = index;
  Changed(Aspect::Value);
}

int32_t ComboBox::IndexOf(const std::string& text) const {
  const auto found = std::find(items_.begin(), items_.end(), text);
  return found == items_.end() ? -1 : static_cast<int32_t>(found - items_.begin());
}

EditBox* AsEditBox(Control* control) {
  const bool box =
      control && (control->GetKind() == Kind::TextBox || control->GetKind() == Kind::ComboBox);
  return box ? static_cast<EditBox*>(control) : nullptr;
}

void ListBox::SetItems(std::vector<std::string> items) {
  if (items != items_) {
    items_ = std::move(items);
    Changed(Aspect::Items);
  }
  SetListIndex(-1);
}

void ListBox::SetListIndex(int32_t index) {
  CheckListIndex(*this, index, items_.size());
  if (index == list_index_) return;
  list_index_ = index;
  Changed(Aspect::Value);
}

std::string ListBox::Text() const {
  return list_index_ < 0 ? std::string() : items_[static_cast<size_t>(list_index_)];
}

void CheckBox::SetValue(int value) {
  if (value < 0 || value > 2) throw std::out_of_range(FullName() + ": no such check value");
  if (value == value_) return;
  value_ = value;
  Changed(Aspect::Value);
}

bool OptionButton::Excludes(const Control& other) const {
  return &other != this && other.GetKind() == Kind::OptionButton && other.Name() == Name() &&
         other.Container() == Container();
}

void OptionButton::Select() {
  for (Control* other : GetForm().Controls()) {
    if (Excludes(*other)) static_cast<OptionButton*>(other)->SetSelected(false);
  }
  SetSelected(true);
}

void OptionButton::SetSelected(bool selected) {
  if (selected == selected_) return;
  selected_ = selected;
  Changed(Aspect::Value);
}

void Tabs::SetTabCaption(int tab, std::string caption) {
  std::string& shown = captions_.at(static_cast<size_t>(tab));
  if (caption == shown) return;
  shown = std::move(caption);
  Changed(Aspect::Caption);
}

void Tabs::SetTab(int tab) {
  if (tab < 0 || tab >= Count()) throw std::out_of_range(FullName() + ": no such tab");
  if (tab == tab_) return;
  tab_ = tab;
  ReachChanged(Aspect::Tabs);
}

void DatePicker::SetValue(basic::Date value) {
  const bool typed = keyed_.Pending();
  keyed_.Show(value);
  if (value == value_) {
    if (typed) Changed(Aspect::Text);
    return;
  }
  value_ = value;
  Changed(Aspect::Value);
}

}  // namespace qvzj::ui
