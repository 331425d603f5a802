#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/basic/date.h"
#include "platform/ui/control.h"
#include "platform/ui/date_keys.h"
#include "platform/ui/edit_text.h"

/// The plain controls of a form. Every setter is the program's own act and raises no event; the
/// `on…` members are what the user's acts raise.
namespace qvzj::ui {

class Label : public Control {
 public:
  Label(Form& form, std::string name, int index = -1, Control* container = nullptr, int page = -1)
      : Control(form, Kind::Label, std::move(name), index, container, page) {}

  /// Names what a part of the form shows; front ends set it apart from the captions of fields.
  bool Heading() const { return heading_; }
  void SetHeading(bool heading) { heading_ = heading; }

 private:
  bool heading_ = false;
};

class Button : public Control {
 public:
  Button(Form& form, std::string name, int index = -1, Control* container = nullptr, int page = -1)
      : Control(form, Kind::Button, std::move(name), index, container, page) {}

  std::function<void()> onClick;
  /// The mouse went down on the button at x, y (twips inside it). A keyboard press of a button
  /// that has only this event raises it at 0, 0.
  std::function<void(int32_t x, int32_t y)> onMouseDown;
};

/// A frame or panel that holds other controls.
class Frame : public Control {
 public:
  Frame(Form& form, std::string name, int index = -1, Control* container = nullptr, int page = -1)
      : Control(form, Kind::Frame, std::move(name), index, container, page) {}

  /// False for a frame that only groups what it holds.
  bool Outlined() const { return outlined_; }
  void SetOutlined(bool outlined) { outlined_ = outlined; }

 private:
  bool outlined_ = true;
};

/// What text boxes and editable combo boxes share: a text with a selection. Positions and lengths
/// count characters. Line breaks are "\n" whatever form they came in.
class EditBox : public Control {
 public:
  const std::string& Text() const { return edit_.Text(); }
  bool Locked() const { return locked_; }
  /// A locked box shows its text and lets it be copied, and refuses every change by the user.
  void SetLocked(bool locked);
  /// True when the user can type into the box.
  virtual bool TakesText() const = 0;
  /// Most bytes of the Chinese code page that the user may put in; 0 = no limit. Kept by the
  /// behaviour through `onKeyPress` and `onEdit`.
  int16_t MaxLength() const { return max_length_; }
  void SetMaxLength(int16_t bytes) { max_length_ = bytes; }

  int32_t SelStart() const { return edit_.SelStart(); }
  int32_t SelLength() const { return edit_.SelLength(); }
  /// Place of the caret: one end of the selection.
  int32_t Caret() const { return edit_.Caret(); }
  std::string SelText() const { return edit_.Selected(); }
  /// True when the text is another than the last valid one, which Esc would restore.
  bool Pending() const { return Text() != valid_text_; }
  /// Selects characters from `start` on; what lies outside the text is cut off.
  void Select(int32_t start, int32_t length);
  void SelectAll();

  /// What the user is about to insert at the selection by typing, pasting or an input method;
  /// the handler may shorten or empty it. Raised after onKeyPress let the key through.
  std::function<void(std::string& inserted)> onEdit;
  /// The user changed the text.
  std::function<void()> onChange;

 protected:
  EditBox(Form& form, Kind kind, std::string name, int index, Control* container, int page)
      : Control(form, kind, std::move(name), index, container, page) {}

  /// The text, caret to its start; it becomes the last valid one (Esc).
  void PutText(std::string text);
  /// The user's edit changed the text.
  virtual void Edited() {}

 private:
  friend class Form;

  EditText edit_;
  std::string valid_text_;  // what Esc restores
  int16_t max_length_ = 0;
  bool locked_ = false;
};

/// One line of text, or several when multi-line.
class TextBox : public EditBox {
 public:
  TextBox(Form& form, std::string name, int index = -1, Control* container = nullptr, int page = -1)
      : EditBox(form, Kind::TextBox, std::move(name), index, container, page) {}

  /// Puts a text in, the selection to its start; the text becomes the last valid one (Esc).
  void SetText(std::string text);
  bool TakesText() const override { return !Locked(); }
  bool MultiLine() const { return multi_line_; }
  void SetMultiLine(bool multi_line) { multi_line_ = multi_line; }
  /// Right-aligned, for amounts.
  bool RightAligned() const { return right_aligned_; }
  void SetRightAligned(bool right) { right_aligned_ = right; }
  /// Shows dots in place of the text, for passwords. What it holds cannot be copied out.
  bool Masked() const { return masked_; }
  void SetMasked(bool masked) { masked_ = masked; }

 private:
  bool multi_line_ = false;
  bool right_aligned_ = false;
  bool masked_ = false;
};

/// A list of texts that drops down; an editable one also takes a text of its own. Text() is the
/// chosen item, or the text typed into an editable box.
class ComboBox : public EditBox {
 public:
  ComboBox(Form& form, std::string name, int index = -1, Control* container = nullptr,
           int page = -1)
      : EditBox(form, Kind::ComboBox, std::move(name), index, container, page) {}

  const std::vector<std::string>& Items() const { return items_; }
  /// Empties the list, and with it the choice and the text.
  void Clear() { SetItems({}); }
  void AddItem(std::string item);
  /// Replaces the whole list at once; nothing is chosen and the text is empty.
  void SetItems(std::vector<std::string> items);
  /// Index of the chosen item, -1 when none.
  int32_t ListIndex() const { return list_index_; }
  /// Chooses an item (or none, -1); the text follows. Throws std::out_of_range.
  void SetListIndex(int32_t index);
  /// Shows a text; the item that equals it is chosen, none when there is none. Also a list-only
  /// box can show a text of an older record that is not in its list any more.
  void SetText(std::string text);
  bool Editable() const { return editable_; }
  void SetEditable(bool editable) { editable_ = editable; }
  bool TakesText() const override { return editable_ && !Locked(); }
  /// The user may clear the choice (Delete or Backspace in the box).
  bool Clearable() const { return clearable_; }
  void SetClearable(bool clearable) { clearable_ = clearable; }
  /// Characters of an item that are shown; what lies behind is hidden storage. 0 = all.
  int32_t ShownLength() const { return shown_length_; }
  void SetShownLength(int32_t characters) { shown_length_ = characters; }
  /// An item or text as the user sees it: cut to ShownLength, without trailing blanks.
  std::string Shown(const std::string& text) const;

  /// The user is about to choose an item (-1: to clear the choice); `cancel` keeps the present one.
  std::function<void(int32_t index, bool& cancel)> onChoosing;
  /// The user chose an item or cleared the choice.
  std::function<void()> onClick;

 private:
  void Edited() override;
  int32_t IndexOf(const std::string& text) const;

  std::vector<std::string> items_;
  int32_t list_index_ = -1;
  int32_t shown_length_ = 0;
  bool editable_ = false;
  bool clearable_ = false;
};

/// The control as a box with a text to edit; null when it is of another kind (or null).
EditBox* AsEditBox(Control* control);

class ListBox : public Control {
 public:
  ListBox(Form& form, std::string name, int index = -1, Control* container = nullptr, int page = -1)
      : Control(form, Kind::ListBox, std::move(name), index, container, page) {}

  const std::vector<std::string>& Items() const { return items_; }
  void SetItems(std::vector<std::string> items);
  int32_t ListIndex() const { return list_index_; }
  /// Throws std::out_of_range.
  void SetListIndex(int32_t index);
  /// The selected item, "" when none.
  std::string Text() const;

  std::function<void()> onClick;
  std::function<void()> onDblClick;

 private:
  std::vector<std::string> items_;
  int32_t list_index_ = -1;
};

/// 0 = clear, 1 = ticked, 2 = greyed.
class CheckBox : public Control {
 public:
  CheckBox(Form& form, std::string name, int index = -1, Control* container = nullptr,
           int page = -1)
      : Control(form, Kind::CheckBox, std::move(name), index, container, page) {}

  int Value() const { return value_; }
  /// Throws std::out_of_range for a value other than 0, 1 and 2.
  void SetValue(int value);
  bool Ticked() const { return value_ == 1; }

  std::function<void()> onClick;

 private:
  int value_ = 0;
};

/// One of several choices; the options of one array in one container exclude each other.
class OptionButton : public Control {
 public:
  OptionButton(Form& form, std::string name, int index = -1, Control* container = nullptr,
               int page = -1)
      : Control(form, Kind::OptionButton, std::move(name), index, container, page) {}

  bool Selected() const { return selected_; }
  /// Selects this option and clears the others of its array.
  void Select();
  /// True when `other` is another option of the same array in the same container.
  bool Excludes(const Control& other) const;

  std::function<void()> onClick;

 private:
  void SetSelected(bool selected);

  bool selected_ = false;
};

/// A strip of tabs; controls created with it as container and a page lie on that page.
class Tabs : public Control {
 public:
  Tabs(Form& form, std::string name, int count, Control* container = nullptr)
      : Control(form, Kind::Tabs, std::move(name), -1, container),
        captions_(static_cast<size_t>(count)) {}

  int Count() const { return static_cast<int>(captions_.size()); }
  /// Each throws std::out_of_range for a tab that is not there.
  const std::string& TabCaption(int tab) const { return captions_.at(static_cast<size_t>(tab)); }
  void SetTabCaption(int tab, std::string caption);
  /// Index of the tab in front.
  int Tab() const { return tab_; }
  void SetTab(int tab);

  /// The user clicked another tab; `previous` was in front before.
  std::function<void(int previous)> onClick;

 private:
  std::vector<std::string> captions_;
  int tab_ = 0;
};

/// A date that is typed, part by part, or changed a day or month at a time. Value() is the last
/// whole one: what is being typed becomes it when the date is full or the field is left.
class DatePicker : public Control {
 public:
  DatePicker(Form& form, std::string name, int index = -1, Control* container = nullptr,
             int page = -1)
      : Control(form, Kind::DatePicker, std::move(name), index, container, page) {}

  basic::Date Value() const { return value_; }
  /// Drops what is being typed.
  void SetValue(basic::Date value);
  /// What the field shows, and which part of it the next digit goes to.
  const DateKeys& Keyed() const { return keyed_; }

  /// The user changed the date.
  std::function<void()> onChange;

 private:
  friend class Form;

  basic::Date value_;
  DateKeys keyed_;
};

/// A menu entry; one with children is a menu. A caption of "-" is a separator.
class MenuItem : public Control {
 public:
  MenuItem(Form& form, std::string name, int index = -1, Control* container = nullptr,
           int page = -1)
      : Control(form, Kind::Menu, std::move(name), index, container, page) {}

  std::function<void()> onClick;
};

}  // namespace qvzj::ui
