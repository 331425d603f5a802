#include "platform/basic/text.h"
#include "platform/ui/form.h"

/// What the user does to the text of a box: typing, deleting, the clipboard, input methods and
/// native editors.
namespace qvzj::ui {
namespace {

bool MultiLine(const EditBox& box) {
  return box.GetKind() == Kind::TextBox && static_cast<const TextBox&>(box).MultiLine();
}

/// Text from outside as a box keeps it: line breaks are "\n", and there are none in a single line.
std::string Fitting(const EditBox& box, std::string_view text) {
  const bool lines = MultiLine(box);
  std::string fitting;
  fitting.reserve(text.size());
  for (size_t i = 0; i < text.size(); ++i) {
    const bool pair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
    if (text[i] != '\r' && text[i] != '\n') {
      fitting += text[i];
    } else if (lines && !pair) {
      fitting += '\n';
    }
  }
  return fitting;
}

bool IsTyped(const Key& key, int code) { return !key.ctrl && !key.alt && code >= 32; }

}  // namespace

bool Form::UserInsert(Control& control, std::string_view text) {
  return Act([&] {
    EditBox* const box = AsEditBox(&control);
    if (!box || !Enter(*box) || !box->TakesText()) return false;
    ReplaceSelection(*box, std::string(text));
    return true;
  });
}

bool Form::UserEdited(Control& control, std::string_view text, int32_t caret) {
  EditBox* const box = AsEditBox(&control);
  if (!box) return false;
  const std::string native(text);
  return Act([&] {
    const bool possible = Enter(*box) && box->TakesText();
    if (possible) {
      const Replacement edit = FindReplacement(box->Text(), native, caret);
      EditSelection(*box, [&](EditText& line) { line.Select(edit.start, edit.length); });
      if (edit.length > 0 || !edit.inserted.empty()) ReplaceSelection(*box, edit.inserted);
    }
    if (box->Text() != native) Notify(*box, Aspect::Text);  // the native editor shows another text
    return possible;
  });
}

void Form::UserSelect(Control& control, int32_t start, int32_t length) {
  if (EditBox* const box = AsEditBox(&control)) box->Select(start, length);
}

/// A key in a box that has a text to edit. `code` is what onKeyPress left of the key, 0 for a key
/// without a code.
bool Form::EditKey(EditBox& box, const Key& key, int code) {
  if (key.ctrl && key.name == Key::Name::Character) {
    switch (key.character | 0x20) {
      case U'a':
        box.SelectAll();
        return true;
      case U'c':
        return Copy(box, false);
      case U'x':
        return Copy(box, true);
      case U'v':
        return Paste(box);
      default:
        return false;
    }
  }
  switch (key.name) {
    case Key::Name::Escape:
      return Revert(box);
    case Key::Name::Enter:
      if (MultiLine(box)) box.TakesText() ? ReplaceSelection(box, "\n") : void(Refuse(box));
      return true;
    case Key::Name::Backspace:
    case Key::Name::Delete: {
      if (!box.TakesText()) return Refuse(box);
      EditText wanted = box.edit_;
      if (!wanted.SelectNeighbour(key.name == Key::Name::Backspace)) return true;
      EditSelection(box, [&](EditText& line) { line = wanted; });
      ReplaceSelection(box, {});
      return true;
    }
    default:
      break;
  }
  if (IsTyped(key, code)) {
    if (!box.TakesText()) return Refuse(box);
    ReplaceSelection(box, basic::FromCodePoint(static_cast<char32_t>(code)));
    return true;
  }
  bool moved = false;
  EditSelection(box, [&](EditText& line) { moved = line.Move(key, MultiLine(box)); });
  return moved;
}

bool Form::Copy(EditBox& box, bool cut) {
  const bool masked = box.GetKind() == Kind::TextBox && static_cast<TextBox&>(box).Masked();
  if (masked) return true;
  if (box.SelLength() > 0 && writeClipboard) {
    Raise(writeClipboard, box.SelText());
    if (cut && box.TakesText()) ReplaceSelection(box, {});
  }
  return true;
}

bool Form::Paste(EditBox& box) {
  if (!box.TakesText()) return Refuse(box);
  if (readClipboard) ReplaceSelection(box, readClipboard());
  return true;
}

/// The one way by which a text of the user's comes into a box. What the handler empties altogether
/// was refused, and the selection stays.
void Form::ReplaceSelection(EditBox& box, std::string inserted) {
  if (!inserted.empty()) {
    inserted = Fitting(box, inserted);
    const std::string wanted = inserted;
    if (!inserted.empty()) Raise(box.onEdit, inserted);
    if (basic::Len(inserted) < basic::Len(wanted) || inserted.empty()) Refuse(box);
    if (inserted.empty()) return;
  }
  const std::string before = box.Text();
  EditSelection(box, [&](EditText& line) { line.Replace(inserted); });
  if (box.Text() != before) TextEdited(box);
}

/// Runs an edit and tells the front ends when it moved the selection.
void Form::EditSelection(EditBox& box, const std::function<void(EditText&)>& edit) {
  const int32_t start = box.SelStart();
  const int32_t length = box.SelLength();
  const int32_t caret = box.Caret();
  edit(box.edit_);
  if (box.SelStart() != start || box.SelLength() != length || box.Caret() != caret) {
    Notify(box, Aspect::Selection);
  }
}

void Form::TextEdited(EditBox& box) {
  Notify(box, Aspect::Text);
  box.Edited();
  Raise(box.onChange);
}

/// Esc: back to the last valid text, so that a field that fails its check never traps the user.
/// False when there is nothing to go back to.
bool Form::Revert(EditBox& box) {
  if (!box.TakesText() || !box.Pending()) return false;
  box.edit_.SetText(box.valid_text_);
  box.edit_.Select(0, basic::Len(box.valid_text_));
  TextEdited(box);
  return true;
}

}  // namespace qvzj::ui
