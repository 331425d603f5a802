#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frontends/script/words.h"

namespace qvzj::script {

class Script;

/// What stands behind a command's name.
struct Arguments {
  std::vector<Word> words;
  std::string_view rest;  ///< the same, as it was written

  size_t Count() const { return words.size(); }
  const Word& operator[](size_t index) const { return words[index]; }
};

/// How a command takes what stands behind its name.
enum class Takes {
  Words,  ///< cut into words
  Rest    ///< as it is written, to the end of the line; `words` stays empty
};

struct Command {
  std::string_view name;
  std::string_view usage;  ///< the arguments, as --help prints them
  size_t least = 0;        ///< fewest words; of a rest, 1 = it may not be empty
  size_t most = 0;         ///< most words
  void (*run)(Script& script, const Arguments& arguments) = nullptr;
  Takes takes = Takes::Words;
};

inline constexpr size_t kAnyNumber = static_cast<size_t>(-1);

/// The commands by group: the host's, the user's, those that look, and those that draw.
std::span<const Command> HostCommands();
std::span<const Command> UserCommands();
std::span<const Command> LookCommands();
std::span<const Command> PictureCommands();

/// The command of that name; null when there is none.
const Command* FindCommand(std::string_view name);

}  // namespace qvzj::script
