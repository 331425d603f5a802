#include "frontends/script/words.h"

#include <charconv>

#include "frontends/script/json.h"
#include "frontends/script/script_error.h"

namespace qvzj::script {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

/// Position behind the closing quote of the JSON string that begins at `begin`; npos without one.
size_t EndOfString(std::string_view line, size_t begin) {
  for (size_t i = begin + 1; i < line.size(); ++i) {
    if (line[i] == '\\') {
      ++i;
    } else if (line[i] == '"') {
      return i + 1;
    }
  }
  return std::string_view::npos;
}

Word ReadString(std::string_view line, size_t& at) {
  const size_t end = EndOfString(line, at);
  if (end == std::string_view::npos) {
    throw ScriptError("a text without its closing quote: " + std::string(line.substr(at)));
  }
  if (end < line.size() && !IsBlank(line[end])) {
    throw ScriptError("no blank after the text " + std::string(line.substr(at, end - at)));
  }
  Word word{ReadJsonText(line.substr(at, end - at)), true};
  at = end;
  return word;
}

}  // namespace

std::vector<Word> SplitWords(std::string_view line) {
  std::vector<Word> words;
  size_t at = 0;
  while (true) {
    while (at < line.size() && IsBlank(line[at])) ++at;
    if (at == line.size()) return words;
    if (line[at] == '"') {
      words.push_back(ReadString(line, at));
      continue;
    }
    const size_t begin = at;
    while (at < line.size() && !IsBlank(line[at])) ++at;
    words.push_back({std::string(line.substr(begin, at - begin)), false});
  }
}

std::string RestText(std::string_view rest) {
  const size_t end = rest.find_last_not_of(" \t");
  rest = rest.substr(0, end == std::string_view::npos ? 0 : end + 1);
  if (rest.starts_with('"') && EndOfString(rest, 0) == rest.size()) return ReadJsonText(rest);
  return std::string(rest);
}

std::optional<Expectation> SplitExpectation(std::string_view line) {
  constexpr std::string_view kArrow = " =>";
  for (size_t i = 0; i < line.size(); ++i) {
    if (line[i] == '"') {
      const size_t end = EndOfString(line, i);
      if (end == std::string_view::npos) return std::nullopt;
      i = end - 1;
      continue;
    }
    const std::string_view rest = line.substr(i);
    if (!rest.starts_with(kArrow)) continue;
    if (rest.size() == kArrow.size()) return Expectation{line.substr(0, i), {}};
    if (rest[kArrow.size()] == ' ') {
      return Expectation{line.substr(0, i), rest.substr(kArrow.size() + 1)};
    }
  }
  return std::nullopt;
}

int32_t ToNumber(const Word& word) {
  int32_t number = 0;
  const char* end = word.text.data() + word.text.size();
  const auto [stop, error] = std::from_chars(word.text.data(), end, number);
  if (word.text.empty() || error != std::errc() || stop != end) {
    throw ScriptError("not a whole number: " + JsonText(word.text));
  }
  return number;
}

}  // namespace qvzj::script
