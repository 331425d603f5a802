#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qvzj::script {

/// `text` as a JSON string: quotes, backslashes and control characters escaped, every other
/// character as it is. Bytes that are not UTF-8 become U+FFFD.
std::string JsonText(std::string_view text);

/// `text` as one field of a line whose fields are parted by tabs: line feeds, carriage returns and
/// tabs as in a JSON string, every other character as it is.
std::string LineField(std::string_view text);

/// `texts` as a JSON array without blanks.
std::string JsonTexts(const std::vector<std::string>& texts);

/// The text of one JSON string, quotes included. Throws ScriptError when it is none.
std::string ReadJsonText(std::string_view json);

}  // namespace qvzj::script
