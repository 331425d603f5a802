#include "frontends/script/script.h"

#include <istream>

#include "frontends/script/command.h"
#include "frontends/script/json.h"
#include "frontends/script/script_error.h"
#include "platform/basic/text.h"

namespace qvzj::script {
namespace {

constexpr std::string_view kBlanks = " \t";

std::string_view WithoutLeadingBlanks(std::string_view text) {
  const size_t begin = text.find_first_not_of(kBlanks);
  return begin == std::string_view::npos ? std::string_view() : text.substr(begin);
}

/// One line of a text that may have several: engines break theirs.
std::string OneLine(std::string_view text) {
  std::string line;
  for (const char c : text) {
    if (c != '\n' && c != '\r') {
      line += c;
    } else if (!line.empty() && line.back() != ' ') {
      line += ' ';
    }
  }
  return line;
}

std::string JoinLines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) {
    if (!text.empty()) text += '\n';
    text += line;
  }
  return text;
}

/// True when `expected` is a JSON string that stands for `printed`: the way to expect several
/// lines.
bool StandsFor(std::string_view expected, const std::string& printed) {
  if (!expected.starts_with('"')) return false;
  try {
    return ReadJsonText(expected) == printed;
  } catch (const ScriptError&) {
    return false;
  }
}

}  // namespace

Script::Script(qvJxc_Zj& control, Headless& headless, NativeSql native, Output output)
    : control_(control),
      headless_(headless),
      native_(std::move(native)),
      output_(std::move(output)) {
  headless_.boxes.on_error = [this](const std::string& text) { Report(text); };
}

Script::~Script() { headless_.boxes.on_error = {}; }

void Script::Run(std::istream& in, const std::function<void()>& after_line) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  for (std::string line; std::getline(in, line);) {
    std::string_view text = line;
    ++line_;
    if (line_ == 1 && text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
    if (text.ends_with('\r')) text.remove_suffix(1);
    Execute(text);
    if (after_line) after_line();
  }
  Finish();
}

void Script::Execute(std::string_view line) {
  const std::string_view command = WithoutLeadingBlanks(line);
  if (command.empty() || command.starts_with('#')) return;
  const auto announced = std::exchange(announced_, std::nullopt);
  errors_.clear();
  try {
    Dispatch(command);
    FinishList();
  } catch (const std::exception& error) {
    Report(error.what());
  }
  if (announced) {
    CheckAnnounced(*announced);
  } else if (!errors_.empty()) {
    failed_ = true;
  }
}

void Script::Finish() {
  if (!announced_) return;
  errors_.clear();
  CheckAnnounced(*std::exchange(announced_, std::nullopt));
}

void Script::Dispatch(std::string_view line) {
  const size_t end = std::min(line.find_first_of(kBlanks), line.size());
  const std::string_view name = line.substr(0, end);
  const Command* command = FindCommand(name);
  if (!command) throw ScriptError("unknown command " + std::string(name));
  Arguments arguments;
  arguments.rest = WithoutLeadingBlanks(line.substr(end));
  const bool words = command->takes == Takes::Words;
  if (words) arguments.words = SplitWords(arguments.rest);
  const size_t count = words ? arguments.Count() : (arguments.rest.empty() ? 0 : 1);
  if (count < command->least || count > command->most) {
    throw ScriptError("usage: " + std::string(name) + " " + std::string(command->usage));
  }
  command->run(*this, arguments);
}

void Script::Print(std::string_view line) { output_(line); }

void Script::Report(const std::string& text) {
  errors_.push_back(text);
  Print("error: " + OneLine(text));
}

void Script::CheckAnnounced(const std::string& announced) {
  bool came = false;
  bool others = false;
  for (const std::string& error : errors_) {
    const bool it = OneLine(error).find(announced) != std::string::npos;
    came = came || it;
    others = others || !it;
  }
  if (!came) Print("expected an error with " + JsonText(announced));
  if (!came || others) failed_ = true;
}

void Script::ExpectError(std::string text) { announced_ = std::move(text); }

void Script::Expect(std::string_view rest) {
  const auto expectation = SplitExpectation(rest);
  if (!expectation) throw ScriptError("usage: expect COMMAND => TEXT");
  std::vector<std::string> lines;
  const Output output =
      std::exchange(output_, [&lines](std::string_view line) { lines.emplace_back(line); });
  try {
    Dispatch(expectation->command);
  } catch (const std::exception& error) {
    lines.push_back("error: " + OneLine(error.what()));
    errors_.emplace_back(error.what());
  }
  output_ = output;
  const std::string printed = JoinLines(lines);
  if (printed == expectation->text || StandsFor(expectation->text, printed)) return;
  failed_ = true;
  const std::string place = line_ > 0 ? "line " + std::to_string(line_) + ": " : std::string();
  Print("not met: " + place + std::string(expectation->command));
  Print("expected: " + std::string(expectation->text));
  Print("printed: " + (lines.size() > 1 ? JsonText(printed) : printed));
}

ui::Form& Script::ActiveForm() {
  if (list_) return *list_;
  if (frmZj* form = control_.Form()) return *form;
  throw ScriptError("no form is open");
}

ui::Form* Script::FindForm(std::string_view name) {
  if (list_ && basic::EqualIgnoringCase(name, list_->Name())) return list_.get();
  ui::Form* form = control_.Form();
  return form && basic::EqualIgnoringCase(name, form->Name()) ? form : nullptr;
}

Target Script::Find(const std::string& name) {
  const size_t dot = name.find('.');
  ui::Form* form = nullptr;
  std::string_view control_name = name;
  if (dot != std::string::npos) {
    form = FindForm(std::string_view(name).substr(0, dot));
    if (!form) throw ScriptError("no form " + name.substr(0, dot) + " is open");
    control_name.remove_prefix(dot + 1);
  } else {
    form = control_.Form();
    if (!form) throw ScriptError("no form is open");
  }
  ui::Control* control = form->FindFullName(control_name);
  if (!control) throw ScriptError("there is no control " + name);
  return {*form, *control, NameOf(*control)};
}

std::string Script::NameOf(const ui::Control& control) const {
  const ui::Form& form = control.GetForm();
  if (&form == list_.get()) return form.Name() + "." + control.FullName();
  return control.FullName();
}

void Script::OpenList(int16_t kind) {
  if (list_) throw ScriptError("the pick list is open already");
  auto list = std::make_unique<frmList>();
  list->Kind(kind);
  list->Load();
  headless_.presenter.Show(*list, true);
  list_ = std::move(list);
}

void Script::FinishList() {
  if (!list_ || list_->Loaded()) return;
  list_.reset();
  Print("myName=" + JsonText(control_.myName()));
}

}  // namespace qvzj::script
