#include "tools/qvdb/arguments.h"

#include <algorithm>

#include "suite/import/field_values.h"

namespace qvzj::qvdb {

Arguments::Arguments(const std::vector<std::string>& words,
                     const std::vector<std::string_view>& options,
                     const std::vector<std::string_view>& switches) {
  const auto listed = [](const std::vector<std::string_view>& list, const std::string& name) {
    return std::find(list.begin(), list.end(), name) != list.end();
  };
  for (size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (word == "--") {
      words_.insert(words_.end(), words.begin() + static_cast<std::ptrdiff_t>(i) + 1, words.end());
      return;
    }
    if (!word.starts_with("--")) {
      words_.push_back(word);
      continue;
    }
    const size_t equals = word.find('=');
    const std::string name = word.substr(0, equals);
    if (equals == std::string::npos && listed(switches, name)) {
      given_.emplace_back(name, "");
    } else if (!listed(options, name)) {
      throw UsageError("unknown option " + word);
    } else if (equals != std::string::npos) {
      given_.emplace_back(name, word.substr(equals + 1));
    } else if (i + 1 < words.size()) {
      given_.emplace_back(name, words[++i]);
    } else {
      throw UsageError(name + " needs a value");
    }
  }
}

bool Arguments::Has(std::string_view option) const {
  return std::any_of(given_.begin(), given_.end(),
                     [&](const auto& given) { return given.first == option; });
}

std::string Arguments::Text(std::string_view option, const std::string& preset) const {
  const std::vector<std::string> texts = Texts(option);
  return texts.empty() ? preset : texts.back();
}

std::vector<std::string> Arguments::Texts(std::string_view option) const {
  std::vector<std::string> texts;
  for (const auto& [name, value] : given_) {
    if (name == option) texts.push_back(value);
  }
  return texts;
}

std::vector<std::pair<std::string, std::string>> Arguments::Pairs(std::string_view option) const {
  std::vector<std::pair<std::string, std::string>> pairs;
  for (const std::string& text : Texts(option)) {
    const size_t equals = text.find('=');
    if (equals == std::string::npos) {
      throw UsageError(std::string(option) + " needs COLUMN=VALUE, not " + text);
    }
    pairs.emplace_back(text.substr(0, equals), text.substr(equals + 1));
  }
  return pairs;
}

int32_t Arguments::Number(std::string_view option, int32_t preset) const {
  if (!Has(option)) return preset;
  const auto number = imports::ReadWholeNumber(Text(option));
  if (!number) throw UsageError(std::string(option) + " needs a whole number, not " + Text(option));
  return *number;
}

}  // namespace qvzj::qvdb
