#include "frontends/script/settings_file.h"

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "adapters/system/private_files.h"
#include "frontends/script/script_error.h"
#include "platform/basic/text.h"

namespace qvzj::script {
namespace {

using Json = nlohmann::ordered_json;

Json ReadObject(const std::string& file) {
  if (!std::filesystem::exists(file)) return Json::object();
  std::ifstream in(file, std::ios::binary);
  if (!in) throw ScriptError("cannot read " + file);
  Json json = Json::parse(in, nullptr, false);
  if (!json.is_object()) throw ScriptError(file + " holds no JSON object");
  return json;
}

/// The member of that name, ASCII case ignored; added when there is none.
Json& Member(Json& object, const std::string& name) {
  if (!object.is_object()) object = Json::object();
  for (auto& [key, value] : object.items()) {
    if (basic::EqualIgnoringCase(key, name)) return value;
  }
  return object[name];
}

}  // namespace

void LoadSettings(const std::string& file, Settings& settings) {
  const Json applications = ReadObject(file);
  for (const auto& [application, sections] : applications.items()) {
    for (const auto& [section, keys] : sections.items()) {
      for (const auto& [key, value] : keys.items()) {
        if (!value.is_string()) throw ScriptError(file + ": " + key + " is not a text");
        settings.Set(application, section, key, value.get<std::string>());
      }
    }
  }
}

void StoreSetting(const std::string& file, const std::string& application,
                  const std::string& section, const std::string& key, const std::string& value) {
  Json json = ReadObject(file);
  Member(Member(Member(json, application), section), key) = value;
  MakePrivateFile(file);  // it may hold passwords
  std::ofstream out(file, std::ios::binary);
  out << json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
  if (!out.flush()) throw ScriptError("cannot write " + file);
}

}  // namespace qvzj::script
