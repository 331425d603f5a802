#include "tests/endurance/monkey_acts.h"

#include "frontends/script/json.h"

namespace qvzj::endurance {
namespace {

using script::JsonText;
using Moves = std::vector<std::string>;

std::string Number(Dice& dice, int from, int to) {
  return std::to_string(from + dice.Roll(to - from + 1));
}

/// What somebody may type into a field: plain texts, numbers, and all that hurts.
std::string WildText(Dice& dice) {
  static const std::vector<std::string> texts = {
      "",
      " ",
      "0",
      "1",
      "12.5",
      "-3.333",
      "1e3",
      "1,000",
      "99999999999",
      "0.005",
      "abc",
      "中文",
      "货款",
      "O'Neil",
      "say \"so\"",
      "*",
      "#",
      "%",
      "_",
      "a*b",
      "20*",
      "#02403PZ00003",
      "CK0001",
      "CK0003",
      "张三",
      "😀",
      "a\tb",
      "一二三四五六七八九十一二三四五六七八九十一二三四五六七八九十",
      "0123456789012345678901234567890123456789012345678901234567890",
      "--",
      ";",
      "\\",
      "&",
      "]",
      "["};
  return dice.Pick(texts);
}

std::string WildDate(Dice& dice) {
  static const std::vector<std::string> dates = {"0100-01-01", "1899-12-30", "1900-01-01",
                                                 "2000-02-29", "2023-12-31", "9999-12-31"};
  if (dice.OneIn(4)) return dice.Pick(dates);
  const std::string month = Number(dice, 10, 12);
  return Number(dice, 2023, 2025) + "-" + month + "-" + Number(dice, 10, 28);
}

std::string WildKey(Dice& dice) {
  static const std::vector<std::string> keys = {
      "Enter",     "Enter",  "Tab",    "Tab",    "Shift+Tab", "Esc",      "Up",    "Down",
      "Left",      "Right",  "Home",   "End",    "PageUp",    "PageDown", "Space", "Delete",
      "Backspace", "Ctrl+A", "Ctrl+C", "Ctrl+V", "Ctrl+X",    "Alt+N",    "Alt+E", "Alt+D",
      "Alt+K",     "Alt+V",  "Alt+S",  "Alt+R",  "Alt+M",     "Alt+P",    "Alt+A", "F2",
      "F5",        "1",      "5",      ".",      "-",         "'",        "a",     "中"};
  return dice.Pick(keys);
}

std::string Answers(Dice& dice) {
  std::string line = "answer";
  const int count = 1 + dice.Roll(3);
  for (int i = 0; i < count; ++i) line += dice.OneIn(4) ? " cancel" : " ok";
  return line;
}

/// An act that suits the control's kind, though perhaps not its state.
std::string ActOn(Dice& dice, const ui::Control& control) {
  const std::string name = control.FullName();
  switch (control.GetKind()) {
    case ui::Kind::Button:
    case ui::Kind::Menu:
    case ui::Kind::OptionButton:
      return "click " + name;
    case ui::Kind::CheckBox:
      return dice.OneIn(2) ? "click " + name : "check " + name + " " + Number(dice, 0, 1);
    case ui::Kind::TextBox:
      return "type " + name + " " + JsonText(WildText(dice));
    case ui::Kind::ComboBox:
      if (dice.OneIn(3)) return "type " + name + " " + JsonText(WildText(dice));
      return "choose " + name + " " + Number(dice, -1, 3);
    case ui::Kind::ListBox:
      return "choose " + name + " " + Number(dice, -1, 3);
    case ui::Kind::DatePicker:
      return "date " + name + " " + WildDate(dice);
    case ui::Kind::Tabs:
      return "tab " + name + " " + Number(dice, 0, 2);
    case ui::Kind::Grid: {
      const auto& grid = static_cast<const ui::Grid&>(control);
      const std::string column = Number(dice, 1, grid.ColumnCount());
      if (dice.OneIn(5)) return "header " + name + " " + column;
      const std::string row = Number(dice, 0, std::min(grid.RowCount() + 1, 30));
      return (dice.OneIn(6) ? "doubleclick " : "cell ") + name + " " + column + " " + row;
    }
    case ui::Kind::Label:
    case ui::Kind::Frame:
      return "focus " + name;
  }
  return "focus " + name;
}

std::string WildAct(Dice& dice, const frmZj& form) {
  switch (dice.Roll(20)) {
    case 0:
      return "resize " + Number(dice, 1000, 30000) + " " + Number(dice, 1000, 20000) +
             (dice.OneIn(3)   ? " maximised"
              : dice.OneIn(3) ? " minimised"
                              : "");
    case 1:
      return "clipboard " + JsonText(WildText(dice));
    case 2:
    case 3:
    case 4: {
      std::string line = "key";
      const int count = 1 + dice.Roll(5);
      for (int i = 0; i < count; ++i) line += " " + WildKey(dice);
      return line;
    }
    default:
      break;
  }
  // The buttons that end the work are pressed less often than the others.
  const ui::Control* control = dice.Pick(form.Controls());
  const bool ends = control == &form.cmdExit || control == &form.cmdTitleClose;
  if (ends && !dice.OneIn(8)) control = &form.cmdAcntSave;
  return ActOn(dice, *control);
}

/// What is typed and not saved is given up, where the next act asks for it.
const std::string kGiveUp = "answer ok";

/// A new entry for the customer or account that happens to be current.
Moves KeyAnEntry(Dice& dice) {
  Moves moves = {kGiveUp, "click cmdAction(1)", "date dtpAcntDate " + WildDate(dice)};
  moves.push_back("type txtAcnt2(3) " +
                  JsonText(Number(dice, 0, 5000) + "." + Number(dice, 0, 99)));
  moves.push_back("type txtAcnt2(4) " + JsonText(Number(dice, 0, 5000)));
  moves.push_back("click optType2(" + Number(dice, 1, 2) + ")");
  if (dice.OneIn(2)) moves.push_back("choose cboAcntName " + Number(dice, -1, 2));
  if (dice.OneIn(2)) moves.push_back("choose cboHb " + Number(dice, 0, 2));
  if (dice.OneIn(3)) moves.push_back("click chkAcntInit");
  moves.push_back("type txtAcnt2(6) " + JsonText("摘要" + Number(dice, 1, 999)));
  moves.push_back("click cmdAcntSave");
  return moves;
}

/// Changes, deletes, checks or unchecks some entry of the ledger.
Moves ActOnAnEntry(Dice& dice, const frmZj& form) {
  Moves moves;
  moves.push_back("click OptSelect(" + Number(dice, 0, 2) + ")");
  moves.push_back(kGiveUp);
  moves.push_back("cell Grid2 1 " +
                  Number(dice, 1, std::max(1, std::min(form.Grid2.RowCount(), 40))));
  moves.push_back(kGiveUp);
  moves.push_back("click cmdAction(" + Number(dice, 2, 4) + ")");
  if (dice.OneIn(3)) moves.push_back("type txtAcnt2(6) " + JsonText(WildText(dice)));
  moves.push_back(Answers(dice));
  moves.push_back("click cmdAcntSave");
  return moves;
}

/// Adds, changes or deletes a register record.
Moves EditTheRegister(Dice& dice, const frmZj& form) {
  Moves moves;
  moves.push_back("tab SSTab1 0");
  moves.push_back(kGiveUp);
  moves.push_back("cell Grid1 1 " + Number(dice, 1, std::max(1, form.Grid1.RowCount())));
  moves.push_back(kGiveUp);
  moves.push_back("click mnuKhManage(" + Number(dice, 1, 3) + ")");
  moves.push_back("type txtAcnt(0) " + JsonText("K" + Number(dice, 1, 999)));
  moves.push_back("type txtAcnt(1) " + JsonText("单位" + Number(dice, 1, 999)));
  moves.push_back("click optKhType(" + Number(dice, 0, 3) + ")");
  moves.push_back(Answers(dice));
  moves.push_back("click cmdKhSave");
  if (dice.OneIn(2)) moves.push_back("click cmdKhCancel");
  return moves;
}

/// Looks for something in the register or sets the ledger's filter.
Moves Search(Dice& dice) {
  const std::string i = Number(dice, 0, 6);
  const std::string k = Number(dice, 0, 2);
  if (dice.OneIn(2)) {
    return {"tab SSTab1 2", "click chkSeek(" + i + ")",
            "type txtSeek(" + i + ") " + JsonText(WildText(dice)),
            "click optSeek(" + Number(dice, 0, 3) + ")", "click cmdKhSeek"};
  }
  return {"click chkID(" + k + ")", "type txtID(" + k + ") " + JsonText(WildText(dice)),
          "click chkDate(" + Number(dice, 0, 1) + ")", "click cmdAcntRefresh"};
}

/// Another user's statement on the same data.
std::string OthersWork(Dice& dice) {
  const std::string id = Number(dice, 1, 60);
  switch (dice.Roll(4)) {
    case 0:
      return "sql delete from tAccountDetail where fID=" + id;
    case 1:
      return "sql update tAccountDetail set fChecker='别人' where fID=" + id;
    case 2:
      return "sql update tAccountDetail set fChecker='' where fID=" + id;
    default:
      return "sql delete from cards where fID=" + id;
  }
}

Moves OpenAgain(Dice& dice) {
  static const std::vector<std::string> modes = {"0", "0", "0", "1", "1", "9", "10", "11", "5"};
  Moves moves;
  moves.push_back("property Language " + Number(dice, 0, 1));
  moves.push_back(dice.OneIn(3) ? "property UserName 张三" : "property UserName admin");
  moves.push_back("property myTaskID " + Number(dice, 0, 8));
  moves.push_back("property myName " + JsonText(dice.OneIn(2) ? "" : "公司"));
  moves.push_back("refresh " + dice.Pick(modes) + " " + Number(dice, 0, 1));
  return moves;
}

Moves PickFromTheList(Dice& dice) {
  return {"list " + Number(dice, 0, 6), "choose frmList.List1 " + Number(dice, -1, 4),
          dice.OneIn(2) ? "click frmList.cmdLogOK" : "click frmList.cmdCancel"};
}

Moves Visits(Dice& dice) {
  return {"answer \"+" + Number(dice, 1, 99) + "\" \"-1\" ok \"1=x\" " +
              (dice.OneIn(2) ? "\"\"" : "\"?\""),
          "click mnuKhContact"};
}

}  // namespace

std::vector<std::string> NextMoves(Dice& dice, frmZj* form) {
  if (!form) return OpenAgain(dice);
  switch (dice.Roll(24)) {
    case 0:
    case 1:
    case 2:
      return KeyAnEntry(dice);
    case 3:
    case 4:
      return ActOnAnEntry(dice, *form);
    case 5:
      return EditTheRegister(dice, *form);
    case 6:
      return Search(dice);
    case 7:
      return {OthersWork(dice)};
    case 8:
      if (dice.OneIn(4)) return {"close"};
      return dice.OneIn(2) ? OpenAgain(dice) : PickFromTheList(dice);
    case 9:
      return dice.OneIn(2) ? Visits(dice) : Moves{Answers(dice), WildAct(dice, *form)};
    default:
      return {WildAct(dice, *form)};
  }
}

}  // namespace qvzj::endurance
