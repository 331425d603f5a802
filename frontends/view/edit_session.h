#pragma once

#include <cstdint>
#include <string>

#include "frontends/view/act_pump.h"
#include "platform/ui/widgets.h"

namespace qvzj::view {

/// A stretch of a native text, in UTF-16 units; a caret has no length.
struct Stretch {
  int32_t start = 0;
  int32_t length = 0;
  friend bool operator==(const Stretch&, const Stretch&) = default;
};

/// What a session asks of the toolkit's own text editor. What the session does to it raises no
/// signal of the user's.
class NativeEditor {
 public:
  virtual ~NativeEditor() = default;
  virtual std::u16string Text() const = 0;
  virtual Stretch Selection() const = 0;
  virtual int32_t Caret() const = 0;
  /// Puts another text in; what was edited before cannot be undone any more.
  virtual void Show(const std::u16string& text) = 0;
  virtual void Select(Stretch stretch) = 0;
  /// Puts a text in place of a stretch, as an edit that can be undone.
  virtual void Replace(Stretch stretch, const std::u16string& text) = 0;
  /// Takes the last edit back. An editor that cannot do so within its own change leaves it.
  virtual void Undo() = 0;
};

/// Keeps a native text editor and an edit box of the form in step. Keys that change the text go to
/// the form (Key); pasting by menu, dropping, undoing and input methods end in the editor's own
/// change, which the form sees as a whole (Edited). Either way the text runs through the form's
/// filters, and what they let through becomes an edit of the editor, so that its undo history
/// stays whole.
class EditSession {
 public:
  EditSession(NativeEditor& editor, ui::EditBox& box, ActPump& pump)
      : editor_(editor), box_(box), pump_(pump) {}

  /// Sends a key to the form.
  void Key(const ui::Key& key);
  /// The user changed the text in the editor. True when the form did not take all of it.
  bool Edited();
  /// The user moved the caret or the selection in the editor.
  void Selected();
  /// True while an edit is on its way through the form.
  bool Editing() const { return edit_ != Edit::None; }
  /// Shows the box's text, and its selection when the text was another one.
  void ShowText();
  void ShowSelection();

 private:
  enum class Edit { None, ByKey, ByEditor };

  void Correct(const std::string& wanted);

  NativeEditor& editor_;
  ui::EditBox& box_;
  ActPump& pump_;
  Edit edit_ = Edit::None;  // the edit that is on its way through the form
};

}  // namespace qvzj::view
