#pragma once

#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/ui/control.h"
#include "platform/ui/grid.h"
#include "platform/ui/key.h"
#include "platform/ui/widgets.h"

namespace qvzj::ui {

class Form;

/// A front end's view of a form: it is told what changed and mirrors it. It is told nothing when a
/// setter left everything as it was.
class FormObserver {
 public:
  virtual ~FormObserver() = default;
  virtual void ControlChanged(Control& control, Aspect aspect) = 0;
  virtual void FormChanged(Form& form, Aspect aspect) = 0;
  /// The form wants `menu` popped up at a place in form coordinates (twips).
  virtual void PopUpMenu(Form& form, MenuItem& menu, int32_t left, int32_t top) = 0;
  /// A key of the user's did nothing at `control`, though keys of its kind are its business: a
  /// character that the field cannot hold, an access key of a button that is disabled. It should be
  /// heard or seen; where the control is disabled, its DisabledReason() says why.
  virtual void KeyRefused(Control& control) { static_cast<void>(control); }
};

enum class WindowState { Normal = 0, Minimised = 1, Maximised = 2 };
enum class MousePointer { Default = 0, Hourglass = 11 };

/// A screen: its controls by name, the focus, and the one door through which the user's acts come
/// in. Every User… call runs behind the guard: an error that escapes the behaviour goes to
/// `onError` and never to the caller. A call answers false when the act was not possible (control
/// hidden, disabled or absent from the screen), was stopped by a field that failed validation, or
/// ended in an error.
///
/// A handler may unload the form, and the owner may destroy it from onUnload: the act that was
/// under way then ends at once. A form that a shared pointer owns may be let go of at any time,
/// also by the host while a handler shows a box: it lives on until the act has ended.
class Form : public std::enable_shared_from_this<Form> {
 public:
  explicit Form(std::string name) : name_(std::move(name)) {}
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name_; }
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);
  /// Inner size in twips.
  int32_t Width() const { return width_; }
  int32_t Height() const { return height_; }
  /// The program sets the inner size, before the form is shown; raises no event.
  void SetSize(int32_t width, int32_t height);
  WindowState GetWindowState() const { return window_state_; }
  MousePointer GetMousePointer() const { return mouse_pointer_; }
  void SetMousePointer(MousePointer pointer);

  /// All controls in the order of their creation (containers before what they hold).
  const std::vector<Control*>& Controls() const { return controls_; }
  /// The control of that name and index (-1: single); null when there is none.
  Control* Find(std::string_view name, int index = -1) const;
  /// The control of a full name such as "cmdAction(1)"; null when there is none.
  Control* FindFullName(std::string_view full_name) const;

  void AddObserver(FormObserver* observer);
  void RemoveObserver(FormObserver* observer);

  /// The control that has the focus; null when none has.
  Control* Focused() const { return focused_; }
  /// The program moves the focus: nothing is validated; ignored when the control cannot take it.
  void SetFocus(Control& control);
  /// Moves the focus as the Tab key does: validates the field that is left, goes to the next
  /// control in tab order, around at the end. Of an option group the selected one is the stop.
  bool SendTab(bool backwards = false);
  /// Asks the front end to pop up a menu.
  void PopUp(MenuItem& menu, int32_t left, int32_t top);
  /// Closes the form: raises onUnload once. A closed form takes no user acts until it is loaded
  /// again.
  void Unload();
  bool Loaded() const { return loaded_; }
  void SetLoaded(bool loaded);
  /// True while a user's act runs. What the act hides and shows again keeps the focus, so a front
  /// end follows the focus only by Aspect::Focus.
  bool Acting() const { return depth_ > 0; }

  // What the user does.
  bool UserFocus(Control& control);
  /// A click: on a button, check box, option, menu entry or list. Takes the focus first.
  bool UserClick(Control& control);
  /// The mouse goes down on a button at x, y (twips inside it): focus, onMouseDown, then onClick.
  bool UserPress(Button& button, int32_t x, int32_t y);
  bool UserDoubleClick(Control& control);
  /// Sends one key to the focused control; see form_keys.cpp for what each key does. False also for
  /// a key that nothing on the form uses.
  bool UserKey(const Key& key);
  /// The user replaces the selection of a text or editable combo box (an input method's commit,
  /// or a native edit that a front end reports).
  bool UserInsert(Control& control, std::string_view text);
  /// A native editor changed the whole text to `text` with the caret at `caret`: the change is
  /// found, run through the same filter as pasting (onEdit), and the result mirrored back.
  bool UserEdited(Control& control, std::string_view text, int32_t caret);
  /// The user moved the selection inside a box.
  void UserSelect(Control& control, int32_t start, int32_t length);
  /// Chooses an item; -1 clears the choice where the box allows that.
  bool UserChoose(ComboBox& combo, int32_t index);
  bool UserChoose(ListBox& list, int32_t index);
  bool UserTab(Tabs& tabs, int tab);
  bool UserDate(DatePicker& picker, basic::Date date);
  /// The user points at a part of a date, which the next digit goes to.
  bool UserDatePart(DatePicker& picker, DatePart part);
  /// The user moves the active cell of a grid: onLeaveCell, the move, then onClick.
  bool UserCell(Grid& grid, int32_t column, int32_t row);
  bool UserHeader(Grid& grid, int32_t column);
  bool UserCellDoubleClick(Grid& grid, int32_t column, int32_t row);
  bool UserRowHeight(Grid& grid, int32_t first, int32_t last, int32_t height);
  bool UserResize(int32_t width, int32_t height, WindowState state);
  /// The user closes the form, by its window or a button; works whatever field has the focus,
  /// unless onQueryClose objects.
  void UserClose();
  /// The host closes the form: nobody is asked.
  void Close();

  /// Runs `act` behind the guard. False when an error escaped and was reported. Inside another act
  /// it just runs: the outermost one catches and reports.
  bool Guard(const std::function<void()>& act);

  /// Ends the act that is running, if any, when its form has been closed meanwhile. For whatever
  /// lets the host act (boxes, other components' windows): what a handler would do next belongs to
  /// a screen that is no more. Throws what only the act itself catches.
  static void EndActOfClosedForm();
  /// Runs what the host asked for, possibly from within an act of a form that it is no part of.
  static void ApartFromActs(const std::function<void()>& step);

  /// An error escaped a user's act or the load; what() is the engine's or the module's text.
  std::function<void(const std::exception& error)> onError;
  std::function<void()> onResize;
  /// The user wants to close the form; `cancel` keeps it open.
  std::function<void(bool& cancel)> onQueryClose;
  std::function<void()> onUnload;
  /// Clipboard access for Ctrl+C, Ctrl+X and Ctrl+V in text boxes.
  std::function<std::string()> readClipboard;
  std::function<void(const std::string&)> writeClipboard;

 private:
  friend class Control;

  /// Thrown inside an act to end it when a handler has closed the form.
  struct Closed {};
  enum class Life { Open, Unloading, Unloaded, Destroyed };
  /// The form whose act runs, innermost first; null outside of acts.
  static std::shared_ptr<Life>& Running();

  void Join(Control& control);
  void Notify(Control& control, Aspect aspect);
  void Notify(Aspect aspect);
  /// Tells the front ends of a key that did nothing; answers true, for the key is used up.
  bool Refuse(Control& control);
  void Report(const std::exception& error) const;

  /// Raises an event. The handler runs from a copy, so that it may replace or destroy itself.
  template <class Handler, class... Args>
  void Raise(const Handler& handler, Args&&... args) {
    if (!handler) return;
    const std::shared_ptr<Life> life = life_;
    const Handler running = handler;
    running(std::forward<Args>(args)...);
    if (*life != Life::Open) throw Closed{};
  }
  /// Runs a user's act behind the guard; false also when the form is closed.
  bool Act(const std::function<bool()>& act);
  /// Runs what the program asked for; ends quietly when a handler closed the form.
  void Run(const std::function<void()>& step) const;

  // Focus (form_focus.cpp).
  bool MayLeave();
  void MoveFocus(Control* control);
  bool Enter(Control& control);
  bool Step(bool backwards);
  std::vector<Control*> TabOrder() const;
  Control* NextStop(const Control* from, bool backwards) const;
  void CheckFocus();
  void SettleFocus();

  // Acts (form_acts.cpp).
  bool Click(Control& control);
  bool Press(Button& button);
  bool Choose(ComboBox& combo, int32_t index);
  bool Choose(ListBox& list, int32_t index);
  bool PickTab(Tabs& tabs, int tab);
  bool PickDate(DatePicker& picker, basic::Date date);
  bool MoveCell(Grid& grid, int32_t column, int32_t row);

  // Editing (form_edit.cpp).
  bool EditKey(EditBox& box, const Key& key, int code);
  bool Paste(EditBox& box);
  bool Copy(EditBox& box, bool cut);
  void ReplaceSelection(EditBox& box, std::string inserted);
  void EditSelection(EditBox& box, const std::function<void(EditText&)>& edit);
  bool Revert(EditBox& box);
  void TextEdited(EditBox& box);

  // Dates (form_dates.cpp).
  bool DateKey(DatePicker& picker, const Key& key, int code);
  bool DateClipboard(DatePicker& picker, char32_t letter);
  bool KeyDate(DatePicker& picker, const std::function<bool(DateKeys&)>& key);
  bool StepDate(DatePicker& picker, Key::Name name);
  void TakeKeyedDate(Control* control);
  static void DropKeyedDate(Control* control);

  // Keys (form_keys.cpp).
  bool HandleKey(const Key& key);
  bool ControlKey(Control& control, const Key& key, int code);
  bool OptionKey(OptionButton& option, const Key& key);
  bool ComboKey(ComboBox& combo, const Key& key, int code);
  bool ListKey(ListBox& list, const Key& key, int code);
  bool TabsKey(Tabs& tabs, const Key& key);
  bool GridKey(Grid& grid, const Key& key);
  bool AltKey(char32_t letter);
  Control* BearerOf(char32_t letter) const;
  Control* PrintButton() const;
  bool TurnTabs(bool backwards);
  bool Escape();

  std::string name_;
  std::string caption_;
  int32_t width_ = 0;
  int32_t height_ = 0;
  WindowState window_state_ = WindowState::Normal;
  MousePointer mouse_pointer_ = MousePointer::Default;
  std::vector<Control*> controls_;
  std::unordered_map<std::string, Control*> by_full_name_;
  std::vector<FormObserver*> observers_;
  Control* focused_ = nullptr;
  Grid* last_list_ = nullptr;  // the grid that has the focus or had it last
  std::shared_ptr<Life> life_ = std::make_shared<Life>(Life::Open);
  int depth_ = 0;
  bool validating_ = false;
  bool loaded_ = false;
};

}  // namespace qvzj::ui
