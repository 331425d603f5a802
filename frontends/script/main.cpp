#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>

#include "adapters/system/ask_password.h"
#include "frontends/script/options.h"
#include "frontends/script/script.h"
#include "frontends/script/script_error.h"
#include "frontends/script/settings_file.h"
#ifdef QV_WITH_WINDOW
#include "hosts/pictures/qt_pictures.h"
#endif
#include "services/context.h"
#include "suite/store/connections.h"
#include "suite/users/user.h"
#include "suite/visits/task.h"

namespace qvzj::script {
namespace {

#ifdef QV_WITH_WINDOW
constexpr bool kDraws = true;
#else
constexpr bool kDraws = false;
#endif
constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

/// The connection of a script's own, opened where the module's data lies at the time.
class OwnConnection {
 public:
  data::Recordset Run(std::string_view statement) {
    const Context& context = Shared();
    const uint8_t kind = context.SQLData == 0 ? 0 : 1;
    store::ServerLogin login{context.UserPath, context.UserID, context.Password, context.Default};
    if (!run_ || kind_ != kind || login_ != login) {
      run_ = store::OpenNative(kind, login, {});
      kind_ = kind;
      login_ = std::move(login);
    }
    return run_(statement);
  }

 private:
  store::NativeStatements run_;
  uint8_t kind_ = 0;
  store::ServerLogin login_;
};

/// What the host presets before a script begins; a script may overwrite each.
void Preset(qvJxc_Zj& control, const Options& options) {
  control.InitProperties();
  control.setMyModel("11111111111");
  control.setUserName("admin");
  control.setZgName("admin");
  if (!options.data.empty()) control.setUserPath(options.data);
  if (!options.server.empty()) {
    control.setUserPath(options.server);
    control.setSQLData(1);
  }
  if (!options.user.empty()) control.setUserID(options.user);
  if (!options.password.empty()) control.setPassword(options.password);
  if (!options.database.empty()) control.setDefault(options.database);
}

int Play(const Options& options, std::istream& in) {
  Headless headless;
  store::SuiteConnections connections(store::WithLimitsOfEnvironment(
      {.language = [] { return static_cast<int>(Shared().Language); }}));
  headless.Install(connections);
  users::BoxLogin dialogue;
  const users::SystemTryClock clock;
  users::SuiteUser user(dialogue, clock);
  visits::BoxTask task;
  headless.user.inner = &user;
  headless.task.inner = &task;
  if (options.today) headless.clock.Set(*options.today);
  if (!options.settings.empty()) LoadSettings(options.settings, headless.settings);
  OwnConnection own;
  bool failed = false;
  {
    qvJxc_Zj control;
    Preset(control, options);
    Script script(
        control, headless, [&own](std::string_view statement) { return own.Run(statement); },
        [](std::string_view line) {
          std::fwrite(line.data(), 1, line.size(), stdout);
          std::fputc('\n', stdout);
        });
    script.SetSettingsFile(options.settings);
#ifdef QV_WITH_WINDOW
    QtPictures pictures;
    script.SetPictures(&pictures);
#endif
    script.Run(in, [] { std::fflush(stdout); });
    failed = script.Failed();
    if (frmZj* form = control.Form()) form->Close();
  }
  ResetShared();
  Around() = {};
  return failed ? kFailed : 0;
}

int Main(const std::vector<std::string>& arguments) {
  try {
    Options options = ParseOptions(arguments);
    if (options.help) {
      std::fputs(Usage(kDraws).c_str(), stdout);
      return 0;
    }
    options.password = PasswordOf(options, AskPassword);
    if (options.script.empty()) return Play(options, std::cin);
    std::ifstream file(options.script, std::ios::binary);
    if (!file || std::filesystem::is_directory(options.script)) {
      throw ScriptError("cannot read " + options.script);
    }
    return Play(options, file);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "qvzj-script: %s\nTry qvzj-script --help\n", error.what());
    return kWrongUsage;
  }
}

}  // namespace
}  // namespace qvzj::script

int main(int argc, char** argv) {
  return qvzj::script::Main(std::vector<std::string>(argv + 1, argv + argc));
}
