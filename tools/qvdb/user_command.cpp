#include "tools/qvdb/user_command.h"

#include <algorithm>
#include <filesystem>

#include "suite/users/password.h"
#include "suite/users/user_rights.h"

namespace qvzj {
namespace {

constexpr const char* kUsage =
    "usage: user add FILE NAME [RIGHTS] | passwd FILE NAME | rights FILE NAME RIGHTS |\n"
    "       disable FILE NAME | enable FILE NAME | remove FILE NAME |\n"
    "       unit FILE [TEXT] | exempt FILE [NAME] | list FILE | log FILE\n";

struct Call {
  RightsDatabase& rights;
  std::vector<std::string> words;  ///< after FILE
  const AskPassword& ask;
  std::ostream& out;
};

// Asks twice, since nobody sees what is typed.
std::string NewPassword(const AskPassword& ask) {
  std::string first = ask("Password: ");
  std::string second = ask("Again: ");
  const bool same = first == second;
  Forget(second);
  if (!same) throw RightsError("the two passwords differ");
  return first;
}

void Add(const Call& call) {
  const std::string rights =
      call.words.size() > 1 ? call.words[1] : std::string(kRightsLength, '1');
  std::string password = NewPassword(call.ask);
  call.rights.Add(call.words[0], password, rights);
  Forget(password);
}

void SetPassword(const Call& call) {
  std::string password = NewPassword(call.ask);
  call.rights.SetPassword(call.words[0], password);
  Forget(password);
}

void List(const Call& call) {
  for (const SuiteUserInfo& user : call.rights.Users()) {
    const auto denied = std::count(user.power.begin(), user.power.end(), '0');
    call.out << user.name << (user.disabled ? "\tdisabled" : "\t") << "\t"
             << static_cast<long>(user.power.size()) - denied << "\n";
  }
}

void Log(const Call& call) {
  for (const AccessInfo& access : call.rights.Record()) {
    call.out << access.time << "\t" << access.user << "\t" << access.function << "\n";
  }
}

void Unit(const Call& call) {
  if (call.words.empty()) {
    call.out << call.rights.Unit() << "\n";
  } else {
    call.rights.SetUnit(call.words[0]);
  }
}

void Exempt(const Call& call) {
  if (call.words.empty()) {
    call.out << call.rights.Exempt() << "\n";
  } else {
    call.rights.SetExempt(call.words[0]);
  }
}

struct Command {
  const char* name;
  size_t least;  ///< words after FILE
  size_t most;
  void (*run)(const Call&);
};

constexpr Command kCommands[] = {
    {"add", 1, 2, Add},
    {"passwd", 1, 1, SetPassword},
    {"rights", 2, 2, [](const Call& c) { c.rights.SetPower(c.words[0], c.words[1]); }},
    {"disable", 1, 1, [](const Call& c) { c.rights.SetDisabled(c.words[0], true); }},
    {"enable", 1, 1, [](const Call& c) { c.rights.SetDisabled(c.words[0], false); }},
    {"remove", 1, 1, [](const Call& c) { c.rights.Remove(c.words[0]); }},
    {"unit", 0, 1, Unit},
    {"exempt", 0, 1, Exempt},
    {"list", 0, 0, List},
    {"log", 0, 0, Log},
};

const Command* Find(const std::vector<std::string>& args) {
  if (args.size() < 2) return nullptr;
  const size_t words = args.size() - 2;
  for (const Command& command : kCommands) {
    if (args[0] == command.name && words >= command.least && words <= command.most) {
      return &command;
    }
  }
  return nullptr;
}

std::string FileOf(const std::string& path) {
  std::error_code ignored;
  if (!std::filesystem::is_directory(path, ignored)) return path;
  return (std::filesystem::path(path) / kRightsFile).string();
}

}  // namespace

int RunUserCommand(const std::vector<std::string>& args, const AskPassword& ask, std::ostream& out,
                   std::ostream& err) {
  const Command* command = Find(args);
  if (!command) {
    err << kUsage;
    return 2;
  }
  try {
    using Missing = RightsDatabase::Missing;
    RightsDatabase rights(FileOf(args[1]), args[0] == "add" ? Missing::Create : Missing::Fail);
    command->run({rights, {args.begin() + 2, args.end()}, ask, out});
    return 0;
  } catch (const Error& error) {
    err << error.what() << "\n";
    return 1;
  }
}

}  // namespace qvzj
