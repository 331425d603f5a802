#include "frontends/view/edit_session.h"

#include "frontends/view/utf16.h"
#include "platform/ui/edit_text.h"

namespace qvzj::view {
namespace {

/// Characters of a text as the stretch of the native one that they take.
Stretch StretchOf(std::u16string_view text, int32_t start, int32_t length) {
  const int32_t from = Utf16Position(text, start);
  return {from, Utf16Position(text, start + length) - from};
}

}  // namespace

void EditSession::Key(const ui::Key& key) {
  edit_ = Edit::ByKey;
  pump_.Act([&] { return box_.GetForm().UserKey(key); });
  edit_ = Edit::None;
}

bool EditSession::Edited() {
  if (!pump_.Live() || Editing()) return false;
  const std::u16string native = editor_.Text();
  const std::string text = ToUtf8(native);
  if (text == box_.Text()) return false;
  edit_ = Edit::ByEditor;
  const int32_t caret = CharactersBefore(native, static_cast<size_t>(editor_.Caret()));
  pump_.Act([&] { return box_.GetForm().UserEdited(box_, text, caret); });
  bool cut = false;
  if (pump_.Live()) {
    ShowText();
    cut = editor_.Text().size() < native.size();
  }
  edit_ = Edit::None;
  return cut;
}

void EditSession::Selected() {
  if (!pump_.Live() || Editing()) return;
  const std::u16string native = editor_.Text();
  if (ToUtf8(native) != box_.Text()) return;
  const Stretch shown = editor_.Selection();
  const int32_t start = CharactersBefore(native, static_cast<size_t>(shown.start));
  const int32_t end = CharactersBefore(native, static_cast<size_t>(shown.start + shown.length));
  if (start == box_.SelStart() && end - start == box_.SelLength()) return;
  box_.GetForm().UserSelect(box_, start, end - start);
}

void EditSession::ShowText() {
  if (ToUtf8(editor_.Text()) == box_.Text()) return;
  if (Editing()) {
    Correct(box_.Text());
  } else {
    editor_.Show(ToUtf16(box_.Text()));
  }
  ShowSelection();
}

void EditSession::ShowSelection() {
  const Stretch wanted = StretchOf(editor_.Text(), box_.SelStart(), box_.SelLength());
  if (editor_.Selection() != wanted) editor_.Select(wanted);
}

void EditSession::Correct(const std::string& wanted) {
  // A refused edit is taken back, then what was let through is put in as one edit, so that an undo
  // never meets a text that the form has refused.
  if (edit_ == Edit::ByEditor) editor_.Undo();
  const std::u16string native = editor_.Text();
  const std::string now = ToUtf8(native);
  if (now == wanted) return;
  const ui::Replacement edit = ui::FindReplacement(now, wanted, box_.Caret());
  editor_.Replace(StretchOf(native, edit.start, edit.length), ToUtf16(edit.inserted));
}

}  // namespace qvzj::view
