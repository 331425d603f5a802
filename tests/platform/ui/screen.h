#pragma once

#include <string>
#include <vector>

#include "platform/ui/array.h"
#include "platform/ui/form.h"

namespace qvzj::ui {

/// A small screen with one control of every kind, and a record of what it raised and told.
struct Screen : Form, FormObserver {
  Screen() : Form("Screen") {
    AddObserver(this);
    onError = [this](const std::exception& error) { errors.push_back(error.what()); };
    readClipboard = [this] { return clipboard; };
    writeClipboard = [this](const std::string& text) { clipboard = text; };
    check.SetCaption("审核(&K)");
    button.SetCaption("存盘(&S)");
    inner_button.SetCaption("保存(&S)");
    label.SetCaption("票号(&N)");
    changes.clear();
  }

  void ControlChanged(Control& control, Aspect aspect) override {
    changes.push_back({&control, aspect});
  }
  void FormChanged(Form&, Aspect aspect) override { form_changes.push_back(aspect); }
  void KeyRefused(Control& control) override { refused.push_back(&control); }
  void PopUpMenu(Form&, MenuItem& menu, int32_t, int32_t) override { popped_up = &menu; }

  struct Change {
    Control* control;
    Aspect aspect;
  };
  /// How often `aspect` of `control` was told.
  int Told(const Control& control, Aspect aspect) const {
    int count = 0;
    for (const Change& change : changes) {
      if (change.control == &control && change.aspect == aspect) ++count;
    }
    return count;
  }
  /// Sends the keys one after another: "A", "Enter", "Ctrl+V".
  void Keys(const std::vector<std::string>& keys) {
    for (const std::string& key : keys) UserKey(ParseKey(key).value());
  }
  /// Types a text character by character.
  void Type(const std::u32string& text) {
    for (char32_t code : text) UserKey(Key::Character(code));
  }

  std::vector<Change> changes;
  std::vector<Aspect> form_changes;
  std::vector<Control*> refused;
  std::vector<std::string> errors;
  MenuItem* popped_up = nullptr;
  std::string clipboard;

  Label label{*this, "label"};
  TextBox text{*this, "text"};
  TextBox memo{*this, "memo"};
  ComboBox combo{*this, "combo"};
  CheckBox check{*this, "check"};
  Array<OptionButton> option{*this, "option", 0, 2};
  Button button{*this, "button"};
  Frame frame{*this, "frame"};
  TextBox inner_text{*this, "inner_text", -1, &frame};
  Button inner_button{*this, "inner_button", -1, &frame};
  Tabs tabs{*this, "tabs", 3};
  Grid grid{*this, "grid", -1, &tabs, 0};
  DatePicker date{*this, "date", -1, &tabs, 1};
  ListBox list{*this, "list", -1, &tabs, 2};
  MenuItem menu{*this, "menu"};
  MenuItem entry{*this, "entry", 1, &menu};
};

}  // namespace qvzj::ui
