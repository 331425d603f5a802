#include <algorithm>
#include <filesystem>
#include <ostream>

#include "suite/users/password.h"
#include "suite/users/user_rights.h"
#include "tools/qvdb/commands.h"

namespace qvzj::qvdb {
namespace {

constexpr const char* kUsage =
    "usage: user add FILE NAME [RIGHTS] | passwd FILE NAME | rights FILE NAME RIGHTS |\n"
    "       disable FILE NAME | enable FILE NAME | remove FILE NAME |\n"
    "       unit FILE [TEXT] | exempt FILE [NAME] | list FILE | log FILE\n";

struct Call {
  users::RightsDatabase& rights;
  std::vector<std::string> words;  ///< after FILE
  const AskPassword& ask;
  std::ostream& out;
};

// Asks twice, since nobody sees what is typed.
std::string NewPassword(const AskPassword& ask) {
  std::string first = ask("Password: ");
  std::string second = ask("Again: ");
  const bool same = first == second;
  users::Forget(second);
  if (!same) throw users::RightsError("the two passwords differ");
  return first;
}

void Add(const Call& call) {
  const std::string rights =
      call.words.size() > 1 ? call.words[1] : std::string(users::kRightsLength, '1');
  std::string password = NewPassword(call.ask);
  call.rights.Add(call.words[0], password, rights);
  users::Forget(password);
}

void SetPassword(const Call& call) {
  std::string password = NewPassword(call.ask);
  call.rights.SetPassword(call.words[0], password);
  users::Forget(password);
}

void List(const Call& call) {
  for (const users::SuiteUserInfo& user : call.rights.Users()) {
    const auto denied = std::count(user.power.begin(), user.power.end(), '0');
    call.out << user.name << (user.disabled ? "\tdisabled" : "\t") << "\t"
             << static_cast<long>(user.power.size()) - denied << "\n";
  }
}

void Log(const Call& call) {
  for (const users::AccessInfo& access : call.rights.Record()) {
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

const Command* Find(const Words& args) {
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
  return (std::filesystem::path(path) / users::kRightsFile).string();
}

}  // namespace

int User(const Words& words, const Streams& streams) {
  const Command* command = Find(words);
  if (!command) {
    streams.err << kUsage;
    return 2;
  }
  try {
    using Missing = users::RightsDatabase::Missing;
    users::RightsDatabase rights(FileOf(words[1]),
                                 words[0] == "add" ? Missing::Create : Missing::Fail);
    command->run({rights, {words.begin() + 2, words.end()}, streams.ask_password, streams.out});
    return 0;
  } catch (const Error& error) {
    streams.err << error.what() << "\n";
    return 1;
  }
}

}  // namespace qvzj::qvdb
