#pragma once

#include <string>

#include "platform/services.h"

namespace qvzj::script {

/// Lays the per-user settings kept in `file` into `settings`. The file is a JSON object of
/// applications, each an object of sections, each an object of keys and texts. A file that is not
/// there holds none. Throws ScriptError when it cannot be read as such.
void LoadSettings(const std::string& file, Settings& settings);

/// Adds one setting to `file`, creating it. Names that differ only in case are the same. Throws
/// ScriptError when the file cannot be written.
void StoreSetting(const std::string& file, const std::string& application,
                  const std::string& section, const std::string& key, const std::string& value);

}  // namespace qvzj::script
