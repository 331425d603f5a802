#pragma once

#include <QObject>
#include <QString>
#include <functional>

#include "platform/ui/form.h"

class QLineEdit;

namespace qvzj::qt {

/// Keeps a native line editor and an edit box of the form in step. Keys that change the text go to
/// the form (Key); pasting by menu, dropping, undoing and input methods end in the editor's own
/// change, which the form sees as a whole. Either way the text runs through the form's filters, and
/// what they let through becomes an edit of the editor, so that its undo history stays whole.
class LineLink : public QObject {
 public:
  using Act = std::function<bool(const std::function<bool()>&)>;
  /// `act` runs a user's act (FormWindow::Act); `live` tells whether the form is still there.
  /// `cut` is shown when the form does not take all of a text that came in at once.
  LineLink(QLineEdit& line, ui::EditBox& box, Act act, std::function<bool()> live, QString cut);

  /// True for the keys that Key() takes.
  static bool TakesKey(const ui::Key& key);
  /// Sends a key to the form.
  void Key(const ui::Key& key);
  /// True while an edit is on its way through the form.
  bool Editing() const { return edit_ != Edit::None; }
  void ShowText();
  void ShowSelection();

 private:
  void Edited();
  void Selected();
  void Correct(const QString& wanted);
  void TellCut() const;

  QLineEdit& line_;
  ui::EditBox& box_;
  Act act_;
  std::function<bool()> live_;
  QString cut_;
  enum class Edit { None, ByKey, ByEditor };
  Edit edit_ = Edit::None;  // the edit that is on its way through the form
};

}  // namespace qvzj::qt
