#include "frontends/script/members.h"

#include <array>
#include <optional>

#include "frontends/script/json.h"
#include "frontends/script/script_error.h"
#include "platform/basic/date.h"
#include "platform/ui/grid.h"
#include "platform/ui/widgets.h"

namespace qvzj::script {
namespace {

using Value = std::optional<std::string>;

template <class T>
const T* As(const ui::Control& control) {
  return dynamic_cast<const T*>(&control);
}

std::string Flag(bool flag) { return flag ? "1" : "0"; }

Value Text(const ui::Control& control) {
  if (const auto* box = As<ui::TextBox>(control)) return JsonText(box->Text());
  if (const auto* combo = As<ui::ComboBox>(control)) return JsonText(combo->Text());
  if (const auto* list = As<ui::ListBox>(control)) return JsonText(list->Text());
  return std::nullopt;
}

Value Caption(const ui::Control& control) {
  if (const auto* tabs = As<ui::Tabs>(control)) return JsonText(tabs->TabCaption(tabs->Tab()));
  return JsonText(control.Caption());
}

Value Tag(const ui::Control& control) { return JsonText(control.Tag()); }

Value Visible(const ui::Control& control) { return Flag(control.Visible()); }

Value Enabled(const ui::Control& control) { return Flag(control.Enabled()); }

Value Locked(const ui::Control& control) {
  if (const auto* box = As<ui::TextBox>(control)) return Flag(box->Locked());
  if (const auto* combo = As<ui::ComboBox>(control)) return Flag(combo->Locked());
  return std::nullopt;
}

Value Ticked(const ui::Control& control) {
  if (const auto* check = As<ui::CheckBox>(control)) return std::to_string(check->Value());
  if (const auto* option = As<ui::OptionButton>(control)) return Flag(option->Selected());
  return std::nullopt;
}

Value Date(const ui::Control& control) {
  if (const auto* picker = As<ui::DatePicker>(control)) {
    return JsonText(basic::FormatIso(picker->Value()));
  }
  return std::nullopt;
}

Value ListIndex(const ui::Control& control) {
  if (const auto* combo = As<ui::ComboBox>(control)) return std::to_string(combo->ListIndex());
  if (const auto* list = As<ui::ListBox>(control)) return std::to_string(list->ListIndex());
  return std::nullopt;
}

std::optional<std::vector<std::string>> ItemTexts(const ui::Control& control) {
  if (const auto* combo = As<ui::ComboBox>(control)) return combo->Items();
  if (const auto* list = As<ui::ListBox>(control)) return list->Items();
  if (const auto* tabs = As<ui::Tabs>(control)) {
    std::vector<std::string> captions;
    for (int tab = 0; tab < tabs->Count(); ++tab) captions.push_back(tabs->TabCaption(tab));
    return captions;
  }
  return std::nullopt;
}

Value Items(const ui::Control& control) {
  const auto items = ItemTexts(control);
  return items ? Value(JsonTexts(*items)) : std::nullopt;
}

Value Count(const ui::Control& control) {
  const auto items = ItemTexts(control);
  return items ? Value(std::to_string(items->size())) : std::nullopt;
}

Value Tab(const ui::Control& control) {
  if (const auto* tabs = As<ui::Tabs>(control)) return std::to_string(tabs->Tab());
  return std::nullopt;
}

Value Columns(const ui::Control& control) {
  if (const auto* grid = As<ui::Grid>(control)) return std::to_string(grid->ColumnCount());
  return std::nullopt;
}

Value Rows(const ui::Control& control) {
  if (const auto* grid = As<ui::Grid>(control)) return std::to_string(grid->RowCount());
  return std::nullopt;
}

Value Row(const ui::Control& control) {
  if (const auto* grid = As<ui::Grid>(control)) return std::to_string(grid->ActiveRow());
  return std::nullopt;
}

template <int32_t ui::Bounds::*side>
Value Side(const ui::Control& control) {
  return std::to_string(control.GetBounds().*side);
}

Value MaxLength(const ui::Control& control) {
  if (const auto* box = As<ui::TextBox>(control)) return std::to_string(box->MaxLength());
  if (const auto* combo = As<ui::ComboBox>(control)) return std::to_string(combo->MaxLength());
  return std::nullopt;
}

struct Member {
  std::string_view name;
  Value (*read)(const ui::Control&);
};

constexpr std::array kMembers = {
    Member{"text", Text},
    Member{"caption", Caption},
    Member{"tag", Tag},
    Member{"visible", Visible},
    Member{"enabled", Enabled},
    Member{"locked", Locked},
    Member{"value", Ticked},
    Member{"date", Date},
    Member{"index", ListIndex},
    Member{"items", Items},
    Member{"count", Count},
    Member{"tab", Tab},
    Member{"columns", Columns},
    Member{"rows", Rows},
    Member{"row", Row},
    Member{"left", Side<&ui::Bounds::left>},
    Member{"top", Side<&ui::Bounds::top>},
    Member{"width", Side<&ui::Bounds::width>},
    Member{"height", Side<&ui::Bounds::height>},
    Member{"maxlength", MaxLength},
};

}  // namespace

std::string MainMember(const ui::Control& control) {
  switch (control.GetKind()) {
    case ui::Kind::TextBox:
    case ui::Kind::ComboBox:
    case ui::Kind::ListBox:
      return "text";
    case ui::Kind::CheckBox:
    case ui::Kind::OptionButton:
      return "value";
    case ui::Kind::DatePicker:
      return "date";
    case ui::Kind::Tabs:
      return "tab";
    case ui::Kind::Grid:
      return "rows";
    case ui::Kind::Label:
    case ui::Kind::Button:
    case ui::Kind::Frame:
    case ui::Kind::Menu:
      return "caption";
  }
  return "caption";
}

std::string MemberValue(const ui::Control& control, std::string_view member) {
  for (const Member& known : kMembers) {
    if (known.name != member) continue;
    const Value value = known.read(control);
    if (value) return *value;
    throw ScriptError(control.FullName() + " has no " + std::string(member));
  }
  throw ScriptError("there is no member " + std::string(member));
}

std::string MemberValue(const ui::Form& form, std::string_view member) {
  if (member == "caption") return JsonText(form.Caption());
  if (member == "width") return std::to_string(form.Width());
  if (member == "height") return std::to_string(form.Height());
  if (member == "visible") return Flag(form.Loaded());
  throw ScriptError(form.Name() + " has no " + std::string(member));
}

}  // namespace qvzj::script
