#pragma once

#include "frontends/qt/view.h"

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
  bool IsModelKey(const ui::Key& key) const override;
  void SendKey(const ui::Key& key) override;

 private:
  ui::TextBox& box_;
  QLineEdit* line_;
  std::unique_ptr<LineLink> link_;
};

/// A text box of several lines.
class MemoView : public ControlView {
 public:
  MemoView(FormWindow& window, ui::TextBox& box, QWidget* parent);
  QWidget* Widget() const override;
  void CommitEdit() override;
  void Mirror(ui::Aspect aspect) override;

 protected:
  bool FocusesOnPress() const override { return true; }
  bool IsModelKey(const ui::Key& key) const override;

 private:
  void ShowText();
  void ShowSelection();
  void Edited();
  void Selected();

  ui::TextBox& box_;
  QPlainTextEdit* page_;
  bool editing_ = false;
};

}  // namespace qvzj::qt
