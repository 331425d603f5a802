#include "frontends/view/file_answer.h"

#include <algorithm>

#include "platform/basic/text.h"

namespace qvzj::view {
namespace {

/// What stands behind the last dot of the file's name; "" when there is none.
std::string SuffixOf(const std::string& path) {
  const size_t slash = path.find_last_of("/\\");
  const size_t dot = path.rfind('.');
  const bool has = dot != std::string::npos && (slash == std::string::npos || dot > slash);
  return has ? path.substr(dot + 1) : std::string();
}

}  // namespace

std::string FilterText(const FileType& type) { return type.label + " (*." + type.ending + ")"; }

std::string WithEnding(const std::string& path, const FileQuestion& question, size_t chosen) {
  const std::string suffix = SuffixOf(path);
  const auto typed = [typed = basic::Lower(suffix)](const FileType& type) {
    return typed == basic::Lower(type.ending);
  };
  const FileType& wanted = question.types[chosen];
  if (typed(wanted)) return path;
  const bool other = std::any_of(question.types.begin(), question.types.end(), typed);
  return (other ? path.substr(0, path.size() - suffix.size() - 1) : path) + '.' + wanted.ending;
}

std::optional<size_t> OtherTypeTyped(const std::string& given, const FileQuestion& question,
                                     size_t chosen) {
  const std::string suffix = basic::Lower(SuffixOf(given));
  if (suffix == basic::Lower(question.types[chosen].ending)) return std::nullopt;
  for (size_t type = 0; type < question.types.size(); ++type) {
    if (suffix == basic::Lower(question.types[type].ending)) return type;
  }
  return std::nullopt;
}

std::string OtherTypeQuestion(const FileQuestion& question, size_t typed, size_t chosen,
                              const Texts& texts) {
  const FileType& by_name = question.types[typed];
  const FileType& by_choice = question.types[chosen];
  return Fill(texts.other_type, {by_name.ending, by_choice.label, by_name.label});
}

bool MustAskAgain(const std::string& given, const std::string& whole,
                  const std::function<bool(const std::string&)>& exists) {
  return whole != given && exists(whole);
}

}  // namespace qvzj::view
