#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "frontends/qt/view.h"
#include "frontends/view/act_pump.h"
#include "platform/ui/form.h"

class QMenu;

namespace qvzj::qt {

class LayoutStore;

/// What windows need from the program around them. All may be left empty.
struct WindowOptions {
  /// 0 simplified, 1 traditional Chinese; asked when a window is built.
  std::function<int()> language;
  /// Keeps column widths and window places per user; null keeps none.
  LayoutStore* layouts = nullptr;
};

/// A native window that shows a form. It builds itself from the form's controls, whatever form it
/// is, and follows them until the form goes away (Detach).
class FormWindow : public QWidget, private ui::FormObserver {
 public:
  FormWindow(ui::Form& form, const WindowOptions& options, QWidget* parent = nullptr);
  ~FormWindow() override;

  /// The form has been unloaded: lets go of it. The window may be deleted any time later.
  void Detach();
  /// False after Detach.
  bool Live() const { return pump_.Live(); }
  ui::Form& GetForm() const { return pump_.GetForm(); }
  const WindowOptions& Options() const { return options_; }

  /// Runs a user's act on the form, then brings the window in step with it. False when the act was
  /// refused or the form has gone meanwhile.
  bool Act(const std::function<bool()>& act) { return pump_.Act(act); }
  view::ActPump& Pump() { return pump_; }
  /// Shows now what was put off until the end of an act (grid contents, the focus).
  void Flush() { pump_.Flush(); }
  /// True while the window itself moves the native focus.
  bool Following() const { return following_; }
  /// The view of a control, made now when it was never seen so far; null for menu entries.
  ControlView* ViewOf(ui::Control& control);
  /// The views of all controls, in the form's order.
  std::vector<ControlView*> Views();
  /// True when the module speaks traditional Chinese.
  bool Traditional() const;
  bool Resizable() const;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void ControlChanged(ui::Control& control, ui::Aspect aspect) override;
  void FormChanged(ui::Form& form, ui::Aspect aspect) override;
  void PopUpMenu(ui::Form& form, ui::MenuItem& menu, int32_t left, int32_t top) override;
  void KeyRefused(ui::Control& control) override;

  /// Makes the views of what is on the screen. The rest waits until it is first seen: most of a
  /// form lies on other tab pages and in hidden panels.
  void MakeSeen();
  ControlView* MadeView(const ui::Control& control) const;
  ControlView* Make(ui::Control& control);
  void PutInTurn(const ui::Control& control, QWidget& widget);
  void ApplyTheme();
  void TakeInitialSize();
  void SyncFocus();
  void SetHourglass(bool on);
  void ReportSize();
  void FillMenu(QMenu& native, ui::MenuItem& menu);
  QWidget* ParentFor(ui::Control& control);

  view::PumpHooks Hooks();

  view::ActPump pump_;
  WindowOptions options_;
  std::unordered_map<const ui::Control*, std::unique_ptr<ControlView>> views_;
  bool hourglass_ = false;
  bool following_ = false;
};

}  // namespace qvzj::qt
