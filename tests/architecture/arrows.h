#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

/// The allowed #include lines of the tree, and the check of one line against them.
/// docs/ARCHITECTURE.md draws the same arrows.
namespace qvzj::architecture {

/// One directory, the directories it may include from beside itself, and the beginnings of the
/// names of library headers it may include beside the standard library's.
struct Rule {
  std::string_view directory;
  std::vector<std::string_view> may_include;
  std::vector<std::string_view> libraries;
};

/// Every directory of the module. Programs (main.cpp anywhere, hosts/, tools/, tests/ and
/// benchmarks/) wire everything together and are free; tools/qvdb is a library with a main beside
/// it.
inline const std::vector<Rule>& Rules() {
  static const std::vector<Rule> rules = {
      {"platform/basic", {}, {}},
      {"platform/ui", {"platform/basic"}, {}},
      {"platform/data", {"platform/basic"}, {}},
      {"platform", {"platform/basic", "platform/ui", "platform/data"}, {}},
      {"services", {"platform"}, {}},
      {"screen", {"platform"}, {}},
      {"ledger", {"screen", "services", "platform"}, {}},
      {"register", {"ledger", "screen", "services", "platform"}, {}},
      {"forms", {"register", "ledger", "screen", "services", "platform"}, {}},
      {"control", {"forms", "register", "ledger", "screen", "services", "platform"}, {}},
      {"adapters/dialect", {"platform"}, {}},
      {"adapters/icu", {"platform"}, {"unicode/"}},
      {"adapters/system", {"platform"}, {"sys/", "termios.h", "unistd.h"}},
      {"adapters/sqlite",
       {"adapters/dialect", "adapters/icu", "adapters/system", "platform"},
       {"sqlite3.h", "sys/", "fcntl.h", "unistd.h"}},
      {"adapters/odbc", {"adapters/dialect", "adapters/icu", "platform"}, {"sql"}},
      {"suite/dialogues", {"platform"}, {}},
      {"suite/store", {"adapters", "platform"}, {}},
      {"suite/users",
       {"suite/dialogues", "adapters/icu", "adapters/sqlite", "platform"},
       {"sodium.h"}},
      {"suite/visits", {"suite/dialogues", "platform"}, {}},
      {"suite/print", {"platform"}, {}},
      {"suite/export", {"adapters/icu", "platform"}, {"xlsxwriter.h"}},
      {"suite/check", {"platform"}, {}},
      {"suite/copy", {"suite/store", "platform"}, {}},
      {"suite/demo", {"suite/store", "adapters/icu", "platform"}, {}},
      {"suite/import", {"suite/store", "adapters/icu", "platform"}, {}},
      {"tools/qvdb", {"suite", "platform"}, {}},
      {"frontends/headless", {"adapters", "platform"}, {}},
      {"frontends/script",
       {"frontends/headless", "control", "forms", "screen", "services", "platform", "adapters"},
       {"nlohmann/"}},
      {"frontends/view", {"platform"}, {}},
      {"frontends/qt",
       {"frontends/view", "control", "forms", "screen", "services", "platform", "adapters"},
       {"Q"}},
  };
  return rules;
}

inline bool IsUnder(std::string_view path, std::string_view directory) {
  return path.starts_with(directory) && path.size() > directory.size() &&
         path[directory.size()] == '/';
}

/// The rule of the innermost listed directory around `file` (a path from the root); null when the
/// file is part of a program.
inline const Rule* RuleOf(std::string_view file) {
  if (file.ends_with("/main.cpp")) return nullptr;
  const Rule* found = nullptr;
  for (const Rule& rule : Rules()) {
    if (!IsUnder(file, rule.directory)) continue;
    if (!found || rule.directory.size() > found->directory.size()) found = &rule;
  }
  return found;
}

/// What is wrong with the line `line` of `file`; "" when it is no #include or an allowed one.
inline std::string Fault(std::string_view file, std::string_view line) {
  const size_t hash = line.find_first_not_of(" \t");
  if (hash == std::string_view::npos || line[hash] != '#') return {};
  const size_t word = line.find_first_not_of(" \t", hash + 1);
  if (word == std::string_view::npos || !line.substr(word).starts_with("include")) return {};
  const size_t open = line.find_first_of("<\"", word);
  if (open == std::string_view::npos) return {};
  const size_t close = line.find_first_of(">\"", open + 1);
  const std::string_view name = line.substr(open + 1, close - open - 1);
  const Rule* rule = RuleOf(file);
  if (!rule) return {};

  const std::string place = std::string(file) + " includes " + std::string(name);
  if (line[open] == '<') {
    const bool standard =
        name.find_first_of("./") == std::string_view::npos && !name.starts_with('Q');
    const bool listed = std::any_of(rule->libraries.begin(), rule->libraries.end(),
                                    [&](auto library) { return name.starts_with(library); });
    return standard || listed ? std::string{} : place + ", a library it may not use";
  }
  if (name.ends_with(".moc")) return {};
  if (name.find('/') == std::string_view::npos) return place + " without the path from the root";
  if (IsUnder(name, rule->directory) && RuleOf(name) == rule) return {};
  const bool allowed = std::any_of(rule->may_include.begin(), rule->may_include.end(),
                                   [&](auto directory) { return IsUnder(name, directory); });
  return allowed ? std::string{} : place + ", which is no allowed arrow";
}

}  // namespace qvzj::architecture
