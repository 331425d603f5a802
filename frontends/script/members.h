#pragma once

#include <string>
#include <string_view>

#include "platform/ui/control.h"
#include "platform/ui/form.h"

namespace qvzj::script {

/// The member that `show CONTROL` means: text, caption, value, date, tab or rows by kind.
std::string MainMember(const ui::Control& control);

/// A member of a control as a script prints it: texts and dates as JSON strings, booleans as 0 or
/// 1, lists as JSON arrays. Throws ScriptError when the control has no such member.
std::string MemberValue(const ui::Control& control, std::string_view member);

/// The same for a form: caption, width, height, visible.
std::string MemberValue(const ui::Form& form, std::string_view member);

}  // namespace qvzj::script
