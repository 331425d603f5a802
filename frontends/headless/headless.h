#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "adapters/icu/ansi_codec.h"
#include "adapters/icu/text_order.h"
#include "adapters/system/clock.h"
#include "adapters/system/files.h"
#include "platform/surroundings.h"

/// Surroundings without a window: boxes answered from a queue, settings and clipboard in memory, a
/// clock that can be set, and recorders of what the module asked of the suite's components. The
/// script runner and the tests share them.
namespace qvzj {

/// A box that was shown, and what was answered.
struct ShownBox {
  bool input = false;  ///< else a message, or an error that was reported
  int style = 0;       ///< message boxes only
  std::string title;
  std::string text;        ///< message text, or prompt
  std::string answer;      ///< "ok", "cancel", "yes", "no", or the text put in
  bool cancelled = false;  ///< an input box without an answer
  std::string detail{};    ///< what the box tells besides; messages and errors only
  bool error = false;
};

/// An answer waiting for its box: one of "ok", "cancel", "yes", "no", or a text to put in.
struct QueuedAnswer {
  std::string text;
  bool is_text = false;
};

class QueuedBoxes : public Boxes {
 public:
  using Boxes::Error;
  using Boxes::Show;
  Answer Show(const std::string& text, int style, const std::string& title,
              const std::string& detail) override;
  std::optional<std::string> Input(const std::string& prompt, const std::string& title,
                                   const std::string& preset) override;
  void Error(const std::string& text, const std::string& title, const std::string& detail) override;

  void Queue(QueuedAnswer answer) { queue_.push_back(std::move(answer)); }
  size_t Waiting() const { return queue_.size(); }
  void ClearQueue() { queue_.clear(); }
  /// Every box but reported errors since the last call of a Take…, oldest first.
  std::vector<ShownBox> TakeShown();
  /// The same, reported errors among them.
  std::vector<ShownBox> TakeShownAndErrors();
  /// What TakeShown would answer.
  std::vector<ShownBox> Shown() const;
  /// The text of every reported error since the last call.
  std::vector<std::string> TakeErrors();

  /// A box came up; called before it is answered.
  std::function<void(const ShownBox&)> on_box;
  /// An error was reported, or a question had no queued answer (it was then answered Cancel).
  std::function<void(const std::string&)> on_error;

 private:
  std::optional<QueuedAnswer> Next();
  void Problem(const std::string& text);

  std::deque<QueuedAnswer> queue_;
  std::vector<ShownBox> shown_;
  std::vector<std::string> errors_;
};

class MemorySettings : public Settings {
 public:
  std::string Get(const std::string& application, const std::string& section,
                  const std::string& key, const std::string& preset) const override;
  void Set(const std::string& application, const std::string& section, const std::string& key,
           const std::string& value) override;

  /// Application, section and key (lower case) to value.
  using Entries = std::map<std::tuple<std::string, std::string, std::string>, std::string>;
  const Entries& All() const { return entries_; }

 private:
  Entries entries_;
};

class MemoryClipboard : public Clipboard {
 public:
  std::string Text() const override { return text_; }
  void SetText(const std::string& text) override { text_ = text; }

 private:
  std::string text_;
};

/// The machine's day until a day is set.
class SettableClock : public Clock {
 public:
  basic::Date Today() const override { return fixed_ ? *fixed_ : system_.Today(); }
  void Set(basic::Date day) { fixed_ = day; }

 private:
  SystemClock system_;
  std::optional<basic::Date> fixed_;
};

/// Keeps track of the forms that would be on the screen, oldest first.
class HeadlessPresenter : public Presenter {
 public:
  void Show(ui::Form& form, bool modal) override;
  void Closed(ui::Form& form) override;
  const std::vector<ui::Form*>& Open() const { return open_; }
  /// The open form of that name; null when there is none.
  ui::Form* Find(std::string_view name) const;
  bool LastModal() const { return last_modal_; }
  /// Called when a modal form is shown; returns when the form is done. A program without one
  /// leaves the form open and goes on.
  std::function<void(ui::Form&)> run_modal;

 private:
  std::vector<ui::Form*> open_;
  bool last_modal_ = false;
};

/// A print job as it was given, and what its grid was called: the form may be gone by the time the
/// job is looked at, and its grid with it.
struct RecordedJob : PrintJob {
  std::string grid_name;
};

/// Records what a component was asked and passes it on to the real one, where there is one.
class RecordingPrint : public PrintComponent {
 public:
  void Print(const PrintJob& job) override;
  PrintComponent* inner = nullptr;
  std::vector<RecordedJob> jobs;
};

class RecordingUser : public UserComponent {
 public:
  void Run(UserCall& call) override;
  UserComponent* inner = nullptr;
  std::vector<UserCall> calls;  ///< as they were when they came back
};

class RecordingTask : public TaskComponent {
 public:
  void Open(const TaskCall& call) override;
  TaskComponent* inner = nullptr;
  std::vector<TaskCall> calls;
};

/// One statement the module ran, as it built it.
struct RanStatement {
  data::StatementKind kind;
  std::string text;
};

/// All of the above together.
class Headless {
 public:
  Headless();
  /// Puts these surroundings in force. The connection component is the program's to add.
  void Install(data::ConnectionComponent& connections);

  QueuedBoxes boxes;
  MemorySettings settings;
  MemoryClipboard clipboard;
  SettableClock clock;
  IcuAnsiCodec ansi;
  SystemFiles files;
  HeadlessPresenter presenter;
  RecordingPrint print;
  RecordingUser user;
  RecordingTask task;
  IcuTextOrder pinyin;
  IcuTextOrder stroke;
  std::vector<RanStatement> statements;
};

}  // namespace qvzj
