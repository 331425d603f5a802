#include "frontends/script/json.h"

#include <nlohmann/json.hpp>

#include "frontends/script/script_error.h"

namespace qvzj::script {

std::string JsonText(std::string_view text) {
  return nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

std::string JsonTexts(const std::vector<std::string>& texts) {
  return nlohmann::json(texts).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

std::string LineField(std::string_view text) {
  std::string field;
  for (const char c : text) {
    switch (c) {
      case '\n':
        field += "\\n";
        break;
      case '\r':
        field += "\\r";
        break;
      case '\t':
        field += "\\t";
        break;
      default:
        field += c;
    }
  }
  return field;
}

std::string ReadJsonText(std::string_view json) {
  const auto value = nlohmann::json::parse(json, nullptr, false);
  if (!value.is_string()) throw ScriptError("not a JSON string: " + std::string(json));
  return value.get<std::string>();
}

}  // namespace qvzj::script
