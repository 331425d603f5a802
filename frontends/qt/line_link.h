#pragma once

#include <QObject>
#include <QString>

#include "frontends/view/edit_session.h"

class QLineEdit;

namespace qvzj::qt {

/// A line editor of Qt's as an edit session uses it, and the session.
class LineLink : public QObject, private view::NativeEditor {
 public:
  /// `cut` is shown when the form does not take all of a text that came in at once.
  LineLink(QLineEdit& line, ui::EditBox& box, view::ActPump& pump, QString cut);

  view::EditSession& Session() { return session_; }

 private:
  std::u16string Text() const override;
  view::Stretch Selection() const override;
  int32_t Caret() const override;
  void Show(const std::u16string& text) override;
  void Select(view::Stretch stretch) override;
  void Replace(view::Stretch stretch, const std::u16string& text) override;
  void Undo() override;

  void TellCut() const;

  QLineEdit& line_;
  QString cut_;
  view::EditSession session_;
};

}  // namespace qvzj::qt
