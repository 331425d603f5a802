#include <algorithm>
#include <array>
#include <cstdio>

#include "frontends/script/command.h"
#include "frontends/script/component_texts.h"
#include "frontends/script/json.h"
#include "frontends/script/members.h"
#include "frontends/script/script.h"
#include "frontends/script/script_error.h"
#include "platform/ui/grid.h"

/// What a user, the host or a tester looks at.
namespace qvzj::script {
namespace {

/// "Grid2.rows" into "Grid2" and "rows"; the second is empty for a bare control. A leading form
/// name stays with the control.
std::pair<std::string, std::string> SplitMember(Script& script, const std::string& name) {
  size_t dot = name.find('.');
  if (dot != std::string::npos && script.FindForm(name.substr(0, dot))) {
    const size_t second = name.find('.', dot + 1);
    const bool control = script.FindForm(name.substr(0, dot))
                             ->FindFullName(name.substr(dot + 1, second - dot - 1)) != nullptr;
    if (control) dot = second;
  }
  if (dot == std::string::npos) return {name, ""};
  return {name.substr(0, dot), name.substr(dot + 1)};
}

void Show(Script& script, const Arguments& arguments) {
  for (const Word& word : arguments.words) {
    const auto [name, member] = SplitMember(script, word.text);
    if (const ui::Form* form = script.FindForm(name)) {
      const std::string known = member.empty() ? "caption" : member;
      script.Print(form->Name() + "." + known + "=" + MemberValue(*form, known));
      continue;
    }
    const Target target = script.Find(name);
    const std::string known = member.empty() ? MainMember(target.control) : member;
    script.Print(target.name + "." + known + "=" + MemberValue(target.control, known));
  }
}

struct GridTarget {
  const ui::Grid& grid;
  std::string name;
};

GridTarget GridNamed(Script& script, const Word& word) {
  const Target target = script.Find(word.text);
  const auto* grid = dynamic_cast<const ui::Grid*>(&target.control);
  if (!grid) throw ScriptError(target.name + " is no grid");
  return {*grid, target.name};
}

void PrintGrid(Script& script, const Arguments& arguments) {
  const GridTarget target = GridNamed(script, arguments[0]);
  const int32_t first = arguments.Count() > 1 ? std::max(ToNumber(arguments[1]), 0) : 0;
  const int32_t rows = target.grid.RowCount();
  const int32_t last = arguments.Count() > 2 ? std::min(ToNumber(arguments[2]), rows) : rows;
  for (int32_t row = first; row <= last; ++row) {
    std::string line = target.name + " " + std::to_string(row) + ":";
    for (int32_t column = 1; column <= target.grid.ColumnCount(); ++column) {
      line += '\t';
      line += LineField(target.grid.CellText(column, row));
    }
    script.Print(line);
  }
}

void Color(Script& script, const Arguments& arguments) {
  const GridTarget target = GridNamed(script, arguments[0]);
  const int32_t row = ToNumber(arguments[1]);
  if (row < 1 || row > target.grid.RowCount()) {
    throw ScriptError(target.name + " has no row " + arguments[1].text);
  }
  const auto color = target.grid.RowColor(row);
  char text[16] = "none";
  if (color) std::snprintf(text, sizeof text, "#%06X", *color & 0xFFFFFFu);
  script.Print(target.name + " " + std::to_string(row) + " color=" + text);
}

std::string BoxText(const ShownBox& box) {
  const std::string texts = JsonText(box.title) + " " + JsonText(box.text);
  if (box.error) return "error " + texts;
  if (box.input) {
    return "input " + texts + " -> " + (box.cancelled ? "cancel" : JsonText(box.answer));
  }
  return "message " + std::to_string(box.style) + " " + texts + " -> " + box.answer;
}

void Messages(Script& script, const Arguments& arguments) {
  QueuedBoxes& boxes = script.Around().boxes;
  if (arguments.Count() == 0) {
    for (const ShownBox& box : boxes.TakeShown()) script.Print(BoxText(box));
    return;
  }
  if (arguments[0].text != "details") throw ScriptError("usage: messages [details]");
  for (const ShownBox& box : boxes.TakeShownAndErrors()) {
    script.Print(BoxText(box) + (box.detail.empty() ? "" : " detail " + JsonText(box.detail)));
  }
}

void Statements(Script& script, const Arguments&) {
  for (const RanStatement& statement : std::exchange(script.Around().statements, {})) {
    const bool open = statement.kind == data::StatementKind::Open;
    script.Print((open ? "open " : "exec ") + JsonText(statement.text));
  }
}

void Prints(Script& script, const Arguments&) {
  for (const RecordedJob& job : std::exchange(script.Around().print.jobs, {})) {
    script.Print(PrintText(job));
  }
}

void Components(Script& script, const Arguments&) {
  Headless& around = script.Around();
  for (const UserCall& call : std::exchange(around.user.calls, {})) script.Print(UserText(call));
  for (const TaskCall& call : std::exchange(around.task.calls, {})) script.Print(TaskText(call));
}

void Expect(Script& script, const Arguments& arguments) { script.Expect(arguments.rest); }

void ExpectError(Script& script, const Arguments& arguments) {
  script.ExpectError(RestText(arguments.rest));
}

constexpr std::array kCommands = {
    Command{"show", "CONTROL[.MEMBER] ...", 1, kAnyNumber, Show},
    Command{"grid", "GRID [FIRST [LAST]]", 1, 3, PrintGrid},
    Command{"color", "GRID ROW", 2, 2, Color},
    Command{"messages", "[details]", 0, 1, Messages},
    Command{"statements", "", 0, 0, Statements},
    Command{"prints", "", 0, 0, Prints},
    Command{"components", "", 0, 0, Components},
    Command{"expect", "COMMAND => TEXT", 1, 1, Expect, Takes::Rest},
    Command{"expect-error", "TEXT", 1, 1, ExpectError, Takes::Rest},
};

}  // namespace

std::span<const Command> LookCommands() { return kCommands; }

}  // namespace qvzj::script
