#include "adapters/system/files.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "platform/basic/text.h"

namespace qvzj {
namespace fs = std::filesystem;
namespace {

bool MatchesLower(std::string_view name, std::string_view pattern) {
  size_t n = 0;
  size_t p = 0;
  size_t star = std::string_view::npos;
  size_t star_name = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      star_name = n;
    } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[n])) {
      ++p;
      ++n;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      n = ++star_name;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == '*') ++p;
  return p == pattern.size();
}

}  // namespace

bool MatchesPattern(std::string_view name, std::string_view pattern) {
  return MatchesLower(basic::Lower(name), basic::Lower(pattern));
}

bool SystemFiles::AnyNormalFile(const std::string& pattern) const {
  std::string path = pattern;
  std::replace(path.begin(), path.end(), '\\', '/');
  const size_t slash = path.rfind('/');
  const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
  std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
  if (name.empty()) name = "*";
  std::error_code failure;
  for (fs::directory_iterator it(folder, failure), end; !failure && it != end;
       it.increment(failure)) {
    std::error_code ignored;
    if (it->is_regular_file(ignored) && MatchesPattern(it->path().filename().string(), name)) {
      return true;
    }
  }
  return false;
}

}  // namespace qvzj
