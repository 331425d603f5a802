#pragma once

#include <string>

#include "control/qvJxc_Zj.h"

namespace qvzj::script {

/// Writes the host property `name` (ASCII case ignored) from a text, converted to the property's
/// type: numbers must be numbers in range, a date is "yyyy-mm-dd" or a day number. Throws
/// ScriptError for a name that is none, TypeMismatchError and OverflowError for the value.
void WriteProperty(qvJxc_Zj& control, const std::string& name, const std::string& value);

/// A property as `NAME="value"`, the name as the control spells it. Throws ScriptError for a name
/// that is none or a property that only the host may write.
std::string ReadProperty(const qvJxc_Zj& control, const std::string& name);

}  // namespace qvzj::script
