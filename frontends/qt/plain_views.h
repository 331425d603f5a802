#pragma once

#include <QFrame>
#include <QLabel>

#include "frontends/qt/view.h"

class QCheckBox;
class QPushButton;
class QRadioButton;

/// The views of labels, buttons, check boxes, options and frames.
namespace qvzj::qt {

/// One line of text that is cut with an ellipsis where it does not fit and then shows itself whole
/// as a tool tip.
class ElidedLabel : public QLabel {
 public:
  using QLabel::QLabel;
  /// A caption with its access-key mark.
  void SetCaption(const std::string& caption);

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  QString whole_;  // the caption without the mark
};

class LabelView : public ControlView {
 public:
  LabelView(FormWindow& window, ui::Label& label, QWidget* parent);
  QWidget* Widget() const override;
  void Mirror(ui::Aspect aspect) override;
  TextFit Fit() const override;

 private:
  ElidedLabel* label_;
};

class ButtonView : public ControlView {
 public:
  ButtonView(FormWindow& window, ui::Button& button, QWidget* parent);
  QWidget* Widget() const override;
  void Mirror(ui::Aspect aspect) override;
  TextFit Fit() const override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Pressed();

  ui::Button& button_;
  QPushButton* native_;
  QPoint pressed_at_;  // in the button
};

class CheckView : public ControlView {
 public:
  CheckView(FormWindow& window, ui::CheckBox& check, QWidget* parent);
  QWidget* Widget() const override;
  void Mirror(ui::Aspect aspect) override;
  TextFit Fit() const override;

 private:
  ui::CheckBox& check_;
  QCheckBox* native_;
};

class OptionView : public ControlView {
 public:
  OptionView(FormWindow& window, ui::OptionButton& option, QWidget* parent);
  QWidget* Widget() const override;
  void Mirror(ui::Aspect aspect) override;
  TextFit Fit() const override;

 private:
  ui::OptionButton& option_;
  QRadioButton* native_;
};

/// A panel with a quiet outline; a caption stands in its upper edge. The outline's upper side runs
/// a little below the panel's own edge, and what lies above it belongs to the neighbour: forms let
/// panels overlap by that much.
class Panel : public QWidget {
 public:
  Panel(bool outlined, QWidget* parent) : QWidget(parent), outlined_(outlined) {}
  void SetTitle(const QString& title);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  int LineTop() const;
  void LeaveTop();

  bool outlined_;
  QString title_;
};

class FrameView : public ControlView {
 public:
  FrameView(FormWindow& window, ui::Frame& frame, QWidget* parent);
  QWidget* Widget() const override;
  void Mirror(ui::Aspect aspect) override;

 private:
  Panel* panel_;
};

}  // namespace qvzj::qt
