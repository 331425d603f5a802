#include "platform/ui/form.h"

/// What the user does with the mouse or a list, on each kind of control.
namespace qvzj::ui {
namespace {

bool IsSeparator(const Control& control) { return control.Caption() == "-"; }

}  // namespace

bool Form::UserClick(Control& control) {
  return Act([&] { return Click(control); });
}

bool Form::Click(Control& control) {
  if (control.GetKind() == Kind::Menu) {
    if (!control.OnScreen() || !control.Usable() || IsSeparator(control)) return false;
    // The entry takes no focus, but what it does may move it away from a field that must not be
    // left as it is.
    if (!MayLeave()) return false;
    Raise(static_cast<MenuItem&>(control).onClick);
    return true;
  }
  if (!Enter(control)) return false;
  switch (control.GetKind()) {
    case Kind::Button:
      return Press(static_cast<Button&>(control));
    case Kind::CheckBox: {
      auto& check = static_cast<CheckBox&>(control);
      check.SetValue(check.Value() == 0 ? 1 : 0);
      Raise(check.onClick);
      break;
    }
    case Kind::OptionButton: {
      auto& option = static_cast<OptionButton&>(control);
      option.Select();
      Raise(option.onClick);
      break;
    }
    case Kind::ListBox: {
      auto& list = static_cast<ListBox&>(control);
      if (list.ListIndex() >= 0) Raise(list.onClick);
      break;
    }
    default:
      break;
  }
  return true;
}

bool Form::Press(Button& button) {
  if (button.onClick) {
    Raise(button.onClick);
  } else {
    Raise(button.onMouseDown, 0, 0);
  }
  return true;
}

bool Form::UserPress(Button& button, int32_t x, int32_t y) {
  return Act([&] {
    if (!Enter(button)) return false;
    Raise(button.onMouseDown, x, y);
    if (button.CanFocus()) Raise(button.onClick);
    return true;
  });
}

bool Form::UserDoubleClick(Control& control) {
  if (control.GetKind() == Kind::Grid) {
    auto& grid = static_cast<Grid&>(control);
    return UserCellDoubleClick(grid, grid.ActiveColumn(), grid.ActiveRow());
  }
  return Act([&] {
    if (control.GetKind() != Kind::ListBox) return Click(control);
    auto& list = static_cast<ListBox&>(control);
    if (!Enter(list) || list.ListIndex() < 0) return false;
    Raise(list.onDblClick);
    return true;
  });
}

bool Form::UserChoose(ComboBox& combo, int32_t index) {
  return Act([&] { return Enter(combo) && Choose(combo, index); });
}

bool Form::Choose(ComboBox& combo, int32_t index) {
  const auto count = static_cast<int64_t>(combo.Items().size());
  const int32_t lowest = combo.Clearable() ? -1 : 0;
  if (combo.Locked() || index < lowest || index >= count) return false;
  bool cancel = false;
  Raise(combo.onChoosing, index, cancel);
  if (cancel) {
    Notify(combo, Aspect::Value);  // a native list may show the other choice already
    return false;
  }
  combo.SetListIndex(index);
  Raise(combo.onClick);
  return true;
}

bool Form::UserChoose(ListBox& list, int32_t index) {
  return Act([&] { return Enter(list) && Choose(list, index); });
}

bool Form::Choose(ListBox& list, int32_t index) {
  if (index < 0 || index >= static_cast<int64_t>(list.Items().size())) return false;
  list.SetListIndex(index);
  Raise(list.onClick);
  return true;
}

bool Form::UserTab(Tabs& tabs, int tab) {
  return Act([&] { return PickTab(tabs, tab); });
}

bool Form::PickTab(Tabs& tabs, int tab) {
  if (tab < 0 || tab >= tabs.Count() || !Enter(tabs)) return false;
  const int previous = tabs.Tab();
  if (tab == previous) return true;
  tabs.SetTab(tab);
  Raise(tabs.onClick, previous);
  return true;
}

bool Form::UserDate(DatePicker& picker, basic::Date date) {
  return Act([&] { return Enter(picker) && PickDate(picker, date); });
}

bool Form::PickDate(DatePicker& picker, basic::Date date) {
  if (date < basic::Date::FromYmd(100, 1, 1) || date > basic::Date::FromYmd(9999, 12, 31)) {
    return false;
  }
  const bool changed = date != picker.Value();
  picker.SetValue(date);
  if (changed) Raise(picker.onChange);
  return true;
}

bool Form::UserCell(Grid& grid, int32_t column, int32_t row) {
  return Act([&] {
    if (!Enter(grid) || !MoveCell(grid, column, row)) return false;
    Raise(grid.onClick, column, row);
    return true;
  });
}

/// Moves the active cell unless the handler cancels. The handler may refill the grid, so the place
/// is looked at again before the move.
bool Form::MoveCell(Grid& grid, int32_t column, int32_t row) {
  const auto there = [&] {
    return column >= 1 && column <= grid.ColumnCount() && row >= 1 && row <= grid.RowCount();
  };
  if (!there()) return false;
  if (column == grid.ActiveColumn() && row == grid.ActiveRow()) return true;
  bool cancel = false;
  Raise(grid.onLeaveCell, grid.ActiveColumn(), grid.ActiveRow(), column, row, cancel);
  if (cancel || !there()) return false;
  grid.SetActive(column, row);
  return true;
}

bool Form::UserHeader(Grid& grid, int32_t column) {
  return Act([&] {
    if (column < 1 || column > grid.ColumnCount() || !Enter(grid)) return false;
    Raise(grid.onClick, column, 0);
    return true;
  });
}

bool Form::UserCellDoubleClick(Grid& grid, int32_t column, int32_t row) {
  return Act([&] {
    if (column < 1 || column > grid.ColumnCount() || row < 0 || row > grid.RowCount()) return false;
    if (!Enter(grid)) return false;
    if (row > 0 && !MoveCell(grid, column, row)) return false;
    Raise(grid.onDblClick, column, row);
    return true;
  });
}

bool Form::UserRowHeight(Grid& grid, int32_t first, int32_t last, int32_t height) {
  return Act([&] {
    if (!grid.OnScreen() || !grid.Usable() || height < 1) return false;
    Raise(grid.onRowHeight, first, last, height);
    return true;
  });
}

bool Form::UserResize(int32_t width, int32_t height, WindowState state) {
  return Act([&] {
    const bool resized = width != width_ || height != height_;
    const bool restated = state != window_state_;
    width_ = width;
    height_ = height;
    window_state_ = state;
    if (resized) Notify(Aspect::Bounds);
    if (restated) Notify(Aspect::WindowState);
    if (resized || restated) Raise(onResize);
    return true;
  });
}

void Form::UserClose() {
  Guard([this] {
    bool cancel = false;
    Raise(onQueryClose, cancel);
    if (!cancel) Unload();
  });
}

void Form::Close() {
  Guard([this] { Unload(); });
}

}  // namespace qvzj::ui
