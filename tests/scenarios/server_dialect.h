#pragma once

#include <regex>
#include <string>

namespace qvzj::test {

/// A statement of the desktop dialect, or a line that holds one, as the module builds it for a
/// server.
inline std::string OfServerDialect(std::string line) {
  static const std::regex date("#([0-9]{2}/[0-9]{2}/[0-9]{4})#");
  static const std::regex numeric(R"(IsNumeric\(Mid\(([^)]*)\)\))");
  static const std::regex middle(R"(max\(mid\()");
  static const std::regex checked(" And '' & fInvSHR<>''");
  line = std::regex_replace(line, date, "'$1'");
  line = std::regex_replace(line, numeric, "IsNumeric(SUBSTRING($1))=1");
  line = std::regex_replace(line, middle, "max(SUBSTRING(");
  return std::regex_replace(line, checked, " And (not fInvSHR is null) And fInvSHR<>''");
}

}  // namespace qvzj::test
