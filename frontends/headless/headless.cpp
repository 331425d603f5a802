#include "frontends/headless/headless.h"

#include <algorithm>

#include "platform/basic/text.h"
#include "platform/ui/form.h"
#include "platform/ui/grid.h"

namespace qvzj {
namespace {

constexpr int kOkOnly = 0;
constexpr int kOkCancel = 1;
constexpr int kYesNo = 4;

/// The answer that a queued word gives to a box with these buttons; empty when it gives none.
std::optional<Answer> AnswerFor(const QueuedAnswer& queued, int buttons) {
  if (queued.is_text) return std::nullopt;
  if (buttons == kOkCancel && queued.text == "ok") return Answer::Ok;
  if (buttons == kOkCancel && queued.text == "cancel") return Answer::Cancel;
  if (buttons == kYesNo && queued.text == "yes") return Answer::Yes;
  if (buttons == kYesNo && queued.text == "no") return Answer::No;
  return std::nullopt;
}

}  // namespace

std::optional<QueuedAnswer> QueuedBoxes::Next() {
  if (queue_.empty()) return std::nullopt;
  QueuedAnswer next = std::move(queue_.front());
  queue_.pop_front();
  return next;
}

void QueuedBoxes::Problem(const std::string& text) {
  errors_.push_back(text);
  if (on_error) on_error(text);
}

Answer QueuedBoxes::Show(const std::string& text, int style, const std::string& title,
                         const std::string& detail) {
  ShownBox shown{false, style, title, text, "ok"};
  shown.detail = detail;
  if (on_box) on_box(shown);
  Answer answer = Answer::Ok;
  const int buttons = style & box::kButtonsMask;
  if (buttons != kOkOnly) {
    const auto queued = Next();
    const auto chosen = queued ? AnswerFor(*queued, buttons) : std::nullopt;
    answer = chosen.value_or(buttons == kYesNo ? Answer::No : Answer::Cancel);
    shown.answer = chosen ? queued->text : "cancel";
    if (!queued) Problem("no answer is queued for the question: " + text);
    if (queued && !chosen) Problem("the answer " + queued->text + " does not fit: " + text);
  }
  shown_.push_back(std::move(shown));
  return answer;
}

std::optional<std::string> QueuedBoxes::Input(const std::string& prompt, const std::string& title,
                                              const std::string& preset) {
  ShownBox shown{true, 0, title, prompt, "cancel"};
  if (on_box) on_box(shown);
  const auto queued = Next();
  std::optional<std::string> answer;
  if (!queued) {
    Problem("no answer is queued for the question: " + prompt);
  } else if (queued->is_text) {
    answer = queued->text;
  } else if (queued->text == "ok") {
    answer = preset;
  } else if (queued->text != "cancel") {
    Problem("the answer " + queued->text + " does not fit: " + prompt);
  }
  shown.cancelled = !answer;
  if (answer) shown.answer = *answer;
  shown_.push_back(std::move(shown));
  return answer;
}

void QueuedBoxes::Error(const std::string& text, const std::string& title,
                        const std::string& detail) {
  ShownBox shown{false, box::kCritical, title, text, "ok"};
  shown.detail = detail;
  shown.error = true;
  shown_.push_back(std::move(shown));
  Problem(text);
}

std::vector<ShownBox> QueuedBoxes::Shown() const {
  std::vector<ShownBox> boxes = shown_;
  std::erase_if(boxes, [](const ShownBox& shown) { return shown.error; });
  return boxes;
}

std::vector<ShownBox> QueuedBoxes::TakeShown() {
  std::vector<ShownBox> boxes = Shown();
  shown_.clear();
  return boxes;
}

std::vector<ShownBox> QueuedBoxes::TakeShownAndErrors() { return std::exchange(shown_, {}); }

std::vector<std::string> QueuedBoxes::TakeErrors() { return std::exchange(errors_, {}); }

std::string MemorySettings::Get(const std::string& application, const std::string& section,
                                const std::string& key, const std::string& preset) const {
  const auto found =
      entries_.find({basic::Lower(application), basic::Lower(section), basic::Lower(key)});
  return found == entries_.end() ? preset : found->second;
}

void MemorySettings::Set(const std::string& application, const std::string& section,
                         const std::string& key, const std::string& value) {
  entries_[{basic::Lower(application), basic::Lower(section), basic::Lower(key)}] = value;
}

void HeadlessPresenter::Show(ui::Form& form, bool modal) {
  last_modal_ = modal;
  if (std::find(open_.begin(), open_.end(), &form) == open_.end()) open_.push_back(&form);
  if (modal && run_modal) run_modal(form);
}

void HeadlessPresenter::Closed(ui::Form& form) { std::erase(open_, &form); }

ui::Form* HeadlessPresenter::Find(std::string_view name) const {
  for (ui::Form* form : open_) {
    if (basic::EqualIgnoringCase(form->Name(), name)) return form;
  }
  return nullptr;
}

void RecordingPrint::Print(const PrintJob& job) {
  jobs.push_back({job, job.grid ? job.grid->FullName() : std::string()});
  if (inner) inner->Print(job);
}

void RecordingUser::Run(UserCall& call) {
  if (inner) inner->Run(call);
  calls.push_back(call);
}

void RecordingTask::Open(const TaskCall& call) {
  calls.push_back(call);
  if (inner) inner->Open(call);
}

Headless::Headless() : pinyin(IcuTextOrder::Pinyin()), stroke(IcuTextOrder::Stroke()) {}

void Headless::Install(data::ConnectionComponent& connections) {
  Surroundings& around = Around();
  around = {};
  around.boxes = &boxes;
  around.settings = &settings;
  around.clipboard = &clipboard;
  around.clock = &clock;
  around.ansi = &ansi;
  around.files = &files;
  around.presenter = &presenter;
  around.connections = &connections;
  around.print = &print;
  around.user = &user;
  around.task = &task;
  around.text_order[0] = &pinyin;
  around.text_order[1] = &stroke;
  around.statement_watcher = [this](data::StatementKind kind, std::string_view text) {
    statements.push_back({kind, std::string(text)});
  };
}

}  // namespace qvzj
