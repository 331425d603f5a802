#include "frontends/script/property_store.h"

#include <fstream>
#include <nlohmann/json.hpp>

#include "adapters/system/private_files.h"
#include "frontends/script/script_error.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"

namespace qvzj::script {

PropertyStore PropertyStore::Load(const std::string& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) throw ScriptError("cannot read " + file);
  const auto json = nlohmann::ordered_json::parse(in, nullptr, false);
  if (!json.is_object()) throw ScriptError(file + " holds no JSON object");
  PropertyStore store;
  for (const auto& [key, value] : json.items()) {
    if (value.is_null()) {
      store.Put(key, std::monostate());
    } else if (value.is_string()) {
      store.Put(key, value.get<std::string>());
    } else if (value.is_number()) {
      store.Put(key, value.get<double>());
    } else {
      throw ScriptError(file + ": " + key + " is neither a text nor a number");
    }
  }
  return store;
}

void PropertyStore::Store(const std::string& file) const {
  nlohmann::ordered_json json = nlohmann::ordered_json::object();
  for (const auto& [key, value] : entries_) {
    if (const auto* text = std::get_if<std::string>(&value)) {
      json[key] = *text;
    } else if (const auto* number = std::get_if<double>(&value)) {
      json[key] = basic::ToInt16(*number);
    } else {
      json[key] = nullptr;
    }
  }
  MakePrivateFile(file);  // it may hold passwords
  std::ofstream out(file, std::ios::binary);
  out << json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
  if (!out.flush()) throw ScriptError("cannot write " + file);
}

std::string PropertyStore::ReadText(const std::string& key, const std::string& preset) const {
  const Value* value = Find(key);
  if (!value) return preset;
  if (const auto* number = std::get_if<double>(value)) return basic::NumberText(*number);
  const auto* text = std::get_if<std::string>(value);
  return text ? *text : std::string();
}

int16_t PropertyStore::ReadInteger(const std::string& key, int16_t preset) const {
  const Value* value = Find(key);
  if (!value) return preset;
  if (const auto* number = std::get_if<double>(value)) return basic::ToInt16(*number);
  const auto* text = std::get_if<std::string>(value);
  if (!text) return 0;
  if (!basic::IsNumeric(*text)) throw TypeMismatchError(key + " is no number: " + *text);
  return basic::ToInt16(basic::Val(*text));
}

void PropertyStore::WriteText(const std::string& key, const std::string& value,
                              const std::string&) {
  Put(key, value);
}

void PropertyStore::WriteInteger(const std::string& key, int16_t value, int16_t) {
  Put(key, static_cast<double>(value));
}

void PropertyStore::WriteEmpty(const std::string& key) { Put(key, std::monostate()); }

const PropertyStore::Value* PropertyStore::Find(const std::string& key) const {
  for (const auto& [name, value] : entries_) {
    if (basic::EqualIgnoringCase(name, key)) return &value;
  }
  return nullptr;
}

void PropertyStore::Put(const std::string& key, Value value) {
  for (auto& [name, kept] : entries_) {
    if (basic::EqualIgnoringCase(name, key)) {
      kept = std::move(value);
      return;
    }
  }
  entries_.emplace_back(key, std::move(value));
}

}  // namespace qvzj::script
