#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qvzj::script {

/// One word of a script line. `quoted` tells `"1"` (a text) from `1` (a number).
struct Word {
  std::string text;
  bool quoted = false;

  friend bool operator==(const Word&, const Word&) = default;
};

/// The words of a line, separated by blanks and tabs; one that begins with a quote is a JSON
/// string. Throws ScriptError for a string without its end or with something glued to it.
std::vector<Word> SplitWords(std::string_view line);

/// A text that fills the rest of a line: one JSON string, or the rest as it is written without
/// trailing blanks.
std::string RestText(std::string_view rest);

/// A line cut at its first ` => ` outside JSON strings.
struct Expectation {
  std::string_view command;
  std::string_view text;  ///< everything behind the arrow and one blank
};
/// Empty when the line has no arrow.
std::optional<Expectation> SplitExpectation(std::string_view line);

/// The word as a whole decimal number. Throws ScriptError when it is none or leaves 32 bits.
int32_t ToNumber(const Word& word);

}  // namespace qvzj::script
