#pragma once

#include "frontends/qt/view.h"
#include "frontends/view/edit_session.h"

class QLineEdit;
class QPlainTextEdit;

namespace qvzj::qt {

class LineLink;

/// A text box of one line.
class LineView : public ControlView {
 public:
  LineView(FormWindow& window, ui::TextBox& box, QWidget* parent);
  ~LineView() override;
  QWidget* Widget() const override;
  void CommitEdit() override;
  void Mirror(ui::Aspect aspect) override;

 protected:
  bool FocusesOnPress() const override { return true; }
  bool SwallowFocusingPress() const override;
  void SendKey(const ui::Key& key) override;

 private:
  ui::TextBox& box_;
  QLineEdit* line_;
  std::unique_ptr<LineLink> link_;
};

/// A text box of several lines.
class MemoView : public ControlView, private view::NativeEditor {
 public:
  MemoView(FormWindow& window, ui::TextBox& box, QWidget* parent);
  QWidget* Widget() const override;
  void CommitEdit() override;
  void Mirror(ui::Aspect aspect) override;

 protected:
  bool FocusesOnPress() const override { return true; }

 private:
  std::u16string Text() const override;
  view::Stretch Selection() const override;
  int32_t Caret() const override;
  void Show(const std::u16string& text) override;
  void Select(view::Stretch stretch) override;
  void Replace(view::Stretch stretch, const std::u16string& text) override;
  /// Not within its own change: there the page's history is still being written.
  void Undo() override {}

  ui::TextBox& box_;
  QPlainTextEdit* page_;
  view::EditSession session_;
};

}  // namespace qvzj::qt
