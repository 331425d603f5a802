#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/services.h"

namespace qvzj::script {

/// A host's property store that is kept in a JSON file: one object whose members stand in the
/// order in which they were written. Keys compare without regard to case; a key that is written
/// again keeps its place and spelling. Nothing is omitted, so that the file shows all there is.
class PropertyStore : public PropertyBag {
 public:
  /// Reads `file`. Throws ScriptError when it cannot be read or is not such an object.
  static PropertyStore Load(const std::string& file);
  /// Throws ScriptError when the file cannot be written.
  void Store(const std::string& file) const;

  std::string ReadText(const std::string& key, const std::string& preset) const override;
  int16_t ReadInteger(const std::string& key, int16_t preset) const override;
  void WriteText(const std::string& key, const std::string& value,
                 const std::string& preset) override;
  void WriteInteger(const std::string& key, int16_t value, int16_t preset) override;
  void WriteEmpty(const std::string& key) override;

 private:
  /// Nothing (an empty value), a text or a number.
  using Value = std::variant<std::monostate, std::string, double>;

  const Value* Find(const std::string& key) const;
  void Put(const std::string& key, Value value);

  std::vector<std::pair<std::string, Value>> entries_;
};

}  // namespace qvzj::script
