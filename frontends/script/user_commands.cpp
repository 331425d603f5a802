#include <array>

#include "frontends/script/command.h"
#include "frontends/script/json.h"
#include "frontends/script/script.h"
#include "frontends/script/script_error.h"
#include "platform/basic/date.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "platform/ui/widgets.h"

/// What the user does. A control that is hidden or disabled is an error; an act that a field
/// stopped by failing its check is none: the user sees the box and the focus staying there.
namespace qvzj::script {
namespace {

/// The control of that name, on the form that takes the user's acts, and able to take one.
Target Act(Script& script, const Word& name) {
  Target target = script.Find(name.text);
  const ui::Form& active = script.ActiveForm();
  if (&target.form != &active) throw ScriptError(active.Name() + " is open in front");
  ui::Control& control = target.control;
  const bool menu = control.GetKind() == ui::Kind::Menu;
  if (menu ? !control.Visible() : !control.OnScreen())
    throw ScriptError(target.name + " is hidden");
  if (menu ? !control.Enabled() : !control.Usable()) {
    throw ScriptError(target.name + " is disabled");
  }
  return target;
}

template <class T>
T& Kind(const Target& target, const char* what) {
  auto* control = dynamic_cast<T*>(&target.control);
  if (!control) throw ScriptError(target.name + " is no " + what);
  return *control;
}

ui::Grid& GridOf(const Target& target) { return Kind<ui::Grid>(target, "grid"); }

void Press(const Target& target) {
  switch (target.control.GetKind()) {
    case ui::Kind::Button:
    case ui::Kind::CheckBox:
    case ui::Kind::OptionButton:
    case ui::Kind::Menu:
      target.form.UserClick(target.control);
      return;
    default:
      throw ScriptError(target.name + " cannot be pressed");
  }
}

void Click(Script& script, const Arguments& arguments) { Press(Act(script, arguments[0])); }

void Check(Script& script, const Arguments& arguments) {
  const Target target = Act(script, arguments[0]);
  const int wanted = ToNumber(arguments[1]);
  if (wanted != 0 && wanted != 1) throw ScriptError("usage: check CONTROL 0|1");
  if (const auto* option = dynamic_cast<ui::OptionButton*>(&target.control)) {
    if (wanted == 0 && option->Selected()) {
      throw ScriptError(target.name + " is cleared by choosing another option");
    }
    if (wanted == 1 && !option->Selected()) Press(target);
    return;
  }
  if (Kind<ui::CheckBox>(target, "check box").Value() != wanted) Press(target);
}

ui::Key KeyFor(char32_t code) {
  if (code == U'\n') return ui::Key::Named(ui::Key::Name::Enter);
  ui::Key key = ui::Key::Character(code);
  if (code == U' ') key.name = ui::Key::Name::Space;
  return key;
}

/// What stands in a field for text. Throws ScriptError for any other control.
const std::string& TextOf(const Target& target) {
  if (const auto* box = dynamic_cast<ui::TextBox*>(&target.control)) return box->Text();
  return Kind<ui::ComboBox>(target, "field for text").Text();
}

/// Replaces the whole text of a field by typing, unless the focus cannot get there. Leaving another
/// field may fill this one, so its text is looked at when the focus is in it.
void TypeInto(const Target& target, const std::string& text) {
  TextOf(target);
  if (!target.form.UserFocus(target.control)) return;
  if (target.form.Focused() != &target.control) return;
  target.form.UserSelect(target.control, 0, basic::Len(TextOf(target)));
  if (text.empty()) target.form.UserKey(ui::Key::Named(ui::Key::Name::Delete));
  for (const char32_t code : basic::CodePoints(text)) target.form.UserKey(KeyFor(code));
}

void Type(Script& script, const Arguments& arguments) {
  TypeInto(Act(script, arguments[0]), arguments[1].text);
}

/// Index of the item that a script names by number or text.
int32_t ItemIndex(const Word& word, const std::vector<std::string>& items,
                  const std::function<std::string(const std::string&)>& shown) {
  const auto count = static_cast<int32_t>(items.size());
  if (!word.quoted && (basic::IsNumeric(word.text))) {
    const int32_t index = ToNumber(word);
    if (index < -1 || index >= count) throw ScriptError("there is no item " + word.text);
    return index;
  }
  for (int32_t i = 0; i < count; ++i) {
    const std::string& item = items[static_cast<size_t>(i)];
    if (item == word.text || shown(item) == word.text) return i;
  }
  throw ScriptError("there is no item " + JsonText(word.text));
}

void Choose(Script& script, const Arguments& arguments) {
  const Target target = Act(script, arguments[0]);
  if (auto* list = dynamic_cast<ui::ListBox*>(&target.control)) {
    const auto same = [](const std::string& item) { return item; };
    target.form.UserChoose(*list, ItemIndex(arguments[1], list->Items(), same));
    return;
  }
  auto& combo = Kind<ui::ComboBox>(target, "list");
  if (combo.Locked()) throw ScriptError(target.name + " is locked");
  const auto shown = [&combo](const std::string& item) { return combo.Shown(item); };
  const int32_t index = ItemIndex(arguments[1], combo.Items(), shown);
  if (index >= 0 || combo.Clearable()) {
    target.form.UserChoose(combo, index);
  } else if (combo.Editable()) {
    TypeInto(target, "");
  } else {
    throw ScriptError(target.name + " cannot be cleared");
  }
}

void Tab(Script& script, const Arguments& arguments) {
  const Target target = Act(script, arguments[0]);
  auto& tabs = Kind<ui::Tabs>(target, "tab strip");
  const int32_t tab = ToNumber(arguments[1]);
  if (tab < 0 || tab >= tabs.Count()) throw ScriptError("there is no tab " + arguments[1].text);
  target.form.UserTab(tabs, tab);
}

void Keys(Script& script, const Arguments& arguments) {
  for (const Word& word : arguments.words) {
    const auto key = ui::ParseKey(word.text);
    if (!key) throw ScriptError("there is no key " + JsonText(word.text));
    script.ActiveForm().UserKey(*key);
  }
}

void Clipboard(Script& script, const Arguments& arguments) {
  script.Around().clipboard.SetText(arguments[0].text);
}

void Focus(Script& script, const Arguments& arguments) {
  if (arguments.Count() == 0) {
    const ui::Control* focused = script.ActiveForm().Focused();
    script.Print("focus=" + (focused ? script.NameOf(*focused) : std::string()));
    return;
  }
  const Target target = Act(script, arguments[0]);
  if (!target.control.CanFocus()) throw ScriptError(target.name + " takes no focus");
  target.form.UserFocus(target.control);
}

void Date(Script& script, const Arguments& arguments) {
  const Target target = Act(script, arguments[0]);
  const auto date = basic::ParseIso(arguments[1].text);
  if (!date) throw ScriptError("no such day: " + arguments[1].text);
  target.form.UserDate(Kind<ui::DatePicker>(target, "date picker"), *date);
}

void RequireColumn(const ui::Grid& grid, const std::string& name, int32_t column) {
  if (column < 1 || column > grid.ColumnCount()) {
    throw ScriptError(name + " has no column " + std::to_string(column));
  }
}

/// Row 0 is the header, where `header` allows it.
void RequireRow(const ui::Grid& grid, const std::string& name, int32_t row, bool header) {
  if (row < (header ? 0 : 1) || row > grid.RowCount()) {
    throw ScriptError(name + " has no row " + std::to_string(row));
  }
}

void Cell(Script& script, const Arguments& arguments) {
  const Target target = Act(script, arguments[0]);
  ui::Grid& grid = GridOf(target);
  const int32_t column = ToNumber(arguments[1]);
  const int32_t row = ToNumber(arguments[2]);
  RequireColumn(grid, target.name, column);
  RequireRow(grid, target.name, row, false);
  target.form.UserCell(grid, column, row);
}

void Header(Script& script, const Arguments& arguments) {
  const Target target = Act(script, arguments[0]);
  ui::Grid& grid = GridOf(target);
  const int32_t column = ToNumber(arguments[1]);
  RequireColumn(grid, target.name, column);
  target.form.UserHeader(grid, column);
}

void DoubleClick(Script& script, const Arguments& arguments) {
  const Target target = Act(script, arguments[0]);
  ui::Grid& grid = GridOf(target);
  const int32_t column = ToNumber(arguments[1]);
  const int32_t row = ToNumber(arguments[2]);
  RequireColumn(grid, target.name, column);
  RequireRow(grid, target.name, row, true);
  target.form.UserCellDoubleClick(grid, column, row);
}

ui::WindowState StateOf(const std::string& word) {
  if (word == "normal") return ui::WindowState::Normal;
  if (word == "minimised") return ui::WindowState::Minimised;
  if (word == "maximised") return ui::WindowState::Maximised;
  throw ScriptError("there is no window state " + word);
}

void Resize(Script& script, const Arguments& arguments) {
  const std::string state = arguments.Count() > 2 ? arguments[2].text : "normal";
  script.ActiveForm().UserResize(ToNumber(arguments[0]), ToNumber(arguments[1]), StateOf(state));
}

void AnswerBoxes(Script& script, const Arguments& arguments) {
  for (const Word& word : arguments.words) {
    const bool known =
        word.text == "ok" || word.text == "cancel" || word.text == "yes" || word.text == "no";
    if (!word.quoted && !known) throw ScriptError("there is no answer " + word.text);
    script.Around().boxes.Queue({word.text, word.quoted});
  }
}

void List(Script& script, const Arguments& arguments) {
  script.OpenList(basic::ToInt16(ToNumber(arguments[0])));
}

constexpr std::array kCommands = {
    Command{"click", "CONTROL", 1, 1, Click},
    Command{"check", "CONTROL 0|1", 2, 2, Check},
    Command{"choose", "CONTROL INDEX|\"text\"", 2, 2, Choose},
    Command{"tab", "CONTROL INDEX", 2, 2, Tab},
    Command{"type", "CONTROL \"text\"", 2, 2, Type},
    Command{"key", "KEY ...", 1, kAnyNumber, Keys},
    Command{"clipboard", "\"text\"", 1, 1, Clipboard},
    Command{"focus", "[CONTROL]", 0, 1, Focus},
    Command{"date", "CONTROL YYYY-MM-DD", 2, 2, Date},
    Command{"cell", "GRID COL ROW", 3, 3, Cell},
    Command{"header", "GRID COL", 2, 2, Header},
    Command{"doubleclick", "GRID COL ROW", 3, 3, DoubleClick},
    Command{"resize", "WIDTH HEIGHT [normal|minimised|maximised]", 2, 3, Resize},
    Command{"answer", "ok|cancel|yes|no|\"text\" ...", 1, kAnyNumber, AnswerBoxes},
    Command{"list", "KIND", 1, 1, List},
};

}  // namespace

std::span<const Command> UserCommands() { return kCommands; }

}  // namespace qvzj::script
