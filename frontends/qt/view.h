#pragma once

#include <QObject>
#include <QWidget>
#include <memory>

#include "frontends/view/composition.h"
#include "frontends/view/key_route.h"
#include "platform/ui/form.h"

class QContextMenuEvent;
class QKeyEvent;

namespace qvzj::qt {

class FormWindow;

/// Room that the widest text of a control needs and has, in pixels.
struct TextFit {
  int needed = 0;
  int available = 0;
};

/// The native side of one control: creates the widget, shows the control's state in it and hands
/// the user's acts to the form. It has no rule of its own.
///
/// The native focus never moves on its own: no widget takes it by mouse or Tab. Presses and keys
/// go to the form first, the form moves its focus, and the native one follows.
class ControlView : public QObject {
 public:
  ControlView(FormWindow& window, ui::Control& control) : window_(window), control_(&control) {}

  ui::Control& GetControl() const { return *control_; }
  /// The outer widget, which has the control's bounds.
  virtual QWidget* Widget() const = 0;
  /// The widget that takes the focus.
  virtual QWidget* FocusWidget() const { return Widget(); }
  /// The parent of what lies in the control, or on a page of it.
  virtual QWidget* Inner(int page) const;
  /// Shows one aspect of the control.
  virtual void Mirror(ui::Aspect aspect);
  /// Shows everything; called once when the window is built.
  virtual void MirrorAll();
  /// Shows what was put off with FormWindow::PutOff.
  virtual void Refresh() {}
  /// Hands over an edit that the native editor still keeps to itself (a date half typed).
  virtual void CommitEdit() {}
  /// A key did nothing here: makes that heard and seen, and says why where there is a reason.
  void TellRefusal();
  /// The form goes away: nothing of the control may be touched afterwards.
  virtual void Detach() {}
  /// How the control's shown texts fit; null room when it shows none.
  virtual TextFit Fit() const { return {}; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  /// To be called once by each view's constructor: watches the widget (and `also`, an editor
  /// inside it) and takes away its own ways of getting the focus.
  void Adopt(QWidget* widget, QWidget* also = nullptr);
  /// Sends a key to the form.
  virtual void SendKey(const ui::Key& key);
  /// Does what a key asks of the window.
  virtual void DoOwn(view::KeyRoute, const ui::Key&) {}
  /// True for widgets that take the focus when the mouse is pressed on them; the others take it
  /// with the click that they report.
  virtual bool FocusesOnPress() const { return false; }
  /// Called instead of the widget's own press when the press has just moved the focus here. True
  /// when the widget shall not see it.
  virtual bool SwallowFocusingPress() const { return false; }
  /// Has an input method hand over what it composes here, before the focus goes elsewhere: what
  /// came afterwards would call the focus back.
  void CommitComposition();
  /// Where a menu that is asked for by key drops, in the widget that takes the focus.
  virtual QPoint MenuPlace() const;
  /// Runs a user's act; false when it was refused or the form has gone.
  bool Act(const std::function<bool()>& act);
  /// False once the form has gone; nothing of the control may be touched then.
  bool Live() const;
  ui::Form& GetForm() const { return control_->GetForm(); }

  FormWindow& window_;

 private:
  bool HandleKey(QKeyEvent& event, bool only_ask);
  bool HandlePress();
  void AskForMenu();
  bool ShowReason(const QPoint& at);
  void HandleFocusIn(Qt::FocusReason reason);

  ui::Control* control_;
  view::Composition composition_;
};

/// The view for a control's kind; null for menu entries, which exist only while popped up.
std::unique_ptr<ControlView> MakeView(FormWindow& window, ui::Control& control, QWidget* parent);

}  // namespace qvzj::qt
