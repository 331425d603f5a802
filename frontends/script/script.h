#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "control/qvJxc_Zj.h"
#include "forms/frmList.h"
#include "frontends/headless/headless.h"
#include "frontends/script/words.h"

namespace qvzj::script {

class Pictures;

/// A control that a script names, and the form it stands on.
struct Target {
  ui::Form& form;
  ui::Control& control;
  /// As it is printed: "Grid2", "frmList.List1".
  std::string name;
};

/// Plays a script: each line a command that does what a user or the host does, or looks at what
/// they would see. Commands print lines and report errors; a script has failed when an error was
/// reported that it did not announce or an expectation was not met.
class Script {
 public:
  /// Takes one printed line, without its line feed.
  using Output = std::function<void(std::string_view line)>;
  /// Runs a statement in the engine's own language on a connection apart from the module's.
  using NativeSql = std::function<data::Recordset(std::string_view statement)>;

  Script(qvJxc_Zj& control, Headless& headless, NativeSql native, Output output);
  ~Script();
  Script(const Script&) = delete;
  Script& operator=(const Script&) = delete;

  /// Plays all lines of `in`, calling `after_line` after each. Ends with Finish.
  void Run(std::istream& in, const std::function<void()>& after_line = {});
  /// Plays one line. Never throws; what goes wrong is reported.
  void Execute(std::string_view line);
  /// The script is over; an announced error that never came fails it.
  void Finish();
  bool Failed() const { return failed_; }

  /// Keeps settings that the script writes in a file as well.
  void SetSettingsFile(std::string file) { settings_file_ = std::move(file); }

  /// What draws, where the program is built with the window; null else. Not owned.
  void SetPictures(Pictures* pictures) { pictures_ = pictures; }

  // For the commands.
  qvJxc_Zj& Control() { return control_; }
  Headless& Around() { return headless_; }
  Pictures* GetPictures() { return pictures_; }
  data::Recordset Native(std::string_view statement) { return native_(statement); }
  const std::string& SettingsFile() const { return settings_file_; }
  void Print(std::string_view line);
  /// The form that takes the user's acts: the pick list while it is open, else the main form.
  /// Throws ScriptError when none is open.
  ui::Form& ActiveForm();
  /// An open form by name; null when there is none.
  ui::Form* FindForm(std::string_view name);
  /// "Grid2", "txtAcnt2(4)" or "frmList.List1". Throws ScriptError when there is none.
  Target Find(const std::string& name);
  /// "focus=CONTROL" names it as Find would find it.
  std::string NameOf(const ui::Control& control) const;
  void OpenList(int16_t kind);
  void Expect(std::string_view rest);
  void ExpectError(std::string text);

 private:
  void Dispatch(std::string_view line);
  void Report(const std::string& text);
  void CheckAnnounced(const std::string& announced);
  void FinishList();

  qvJxc_Zj& control_;
  Headless& headless_;
  NativeSql native_;
  Output output_;
  Pictures* pictures_ = nullptr;
  std::string settings_file_;
  std::unique_ptr<frmList> list_;
  std::optional<std::string> announced_;  // text of the error that the next command must report
  std::vector<std::string> errors_;       // of the command that runs
  int line_ = 0;
  bool failed_ = false;
};

}  // namespace qvzj::script
