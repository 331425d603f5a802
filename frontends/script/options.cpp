#include "frontends/script/options.h"

#include <cstdlib>

#include "frontends/script/command.h"
#include "frontends/script/script_error.h"

namespace qvzj::script {
namespace {

basic::Date DayOf(const std::string& text) {
  const auto day = basic::ParseIso(text);
  if (!day) throw ScriptError("no such day: " + text);
  return *day;
}

/// The option's place for its value; null when there is no such option.
std::string* PlaceFor(Options& options, const std::string& name) {
  if (name == "--data") return &options.data;
  if (name == "--server") return &options.server;
  if (name == "--user") return &options.user;
  if (name == "--password") return &options.password;
  if (name == "--database") return &options.database;
  if (name == "--settings") return &options.settings;
  return nullptr;
}

void AddCommands(std::string& text, const char* title, std::span<const Command> commands) {
  text += "\n";
  text += title;
  text += "\n";
  for (const Command& command : commands) {
    text += "  " + std::string(command.name);
    if (!command.usage.empty()) text += " " + std::string(command.usage);
    text += "\n";
  }
}

}  // namespace

Options ParseOptions(const std::vector<std::string>& arguments) {
  Options options;
  bool script_named = false;
  for (size_t i = 0; i < arguments.size(); ++i) {
    const std::string& name = arguments[i];
    if (name == "--help" || name == "-h") {
      options.help = true;
      return options;
    }
    if (!name.starts_with("-") || name == "-") {
      if (script_named) throw ScriptError("more than one script: " + name);
      script_named = true;
      options.script = name == "-" ? std::string() : name;
      continue;
    }
    std::string* place = PlaceFor(options, name);
    if (!place && name != "--today") throw ScriptError("unknown option " + name);
    if (++i == arguments.size()) throw ScriptError(name + " needs a value");
    if (place) {
      *place = arguments[i];
    } else {
      options.today = DayOf(arguments[i]);
    }
  }
  if (!options.data.empty() && !options.server.empty()) {
    throw ScriptError("--data and --server exclude each other");
  }
  return options;
}

std::string PasswordOf(const Options& options,
                       const std::function<std::string(const std::string&)>& ask) {
  if (options.password == "-") return ask("Password: ");
  if (!options.password.empty() || options.server.empty()) return options.password;
  const char* const set = std::getenv("QVDB_PASSWORD");
  return set ? set : "";
}

std::string Usage(bool draws) {
  std::string text =
      "usage: qvzj-script [OPTION...] [SCRIPT]\n"
      "\n"
      "Plays the commands of SCRIPT, a text file, or of standard input (also for \"-\"), and\n"
      "prints what a user would see. The exit status is 0 when every command went well, 1\n"
      "when one did not, 2 for wrong usage or a script that cannot be read.\n"
      "\n"
      "  --data DIR           folder of the desktop database (UserPath, SQLData 0)\n"
      "  --server TEXT        details of a database server (UserPath, SQLData 1)\n"
      "  --user USER          database user (UserID)\n"
      "  --password PASSWORD  database password (Password); \"-\" asks for it (default, with\n"
      "                       --server: the variable QVDB_PASSWORD, which other users of the\n"
      "                       machine cannot read)\n"
      "  --database NAME      default database on the server (Default)\n"
      "  --settings FILE      per-user settings, a JSON file; without it there are none\n"
      "  --today YYYY-MM-DD   sets the clock\n"
      "  --help               prints this\n"
      "\n"
      "Words are separated by blanks; one with blanks or quotes is a JSON string. Lines that\n"
      "begin with # are remarks.\n";
  AddCommands(text, "The host:", HostCommands());
  AddCommands(text, "The user:", UserCommands());
  AddCommands(text, "Looking:", LookCommands());
  AddCommands(text, draws ? "Drawing:" : "Drawing (this program is built without the window):",
              PictureCommands());
  return text;
}

}  // namespace qvzj::script
