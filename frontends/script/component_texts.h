#pragma once

#include <string>

#include "frontends/headless/headless.h"

namespace qvzj::script {

/// One line for what the print component was given: `print 1=… 20=…`, in the order set.
std::string PrintText(const RecordedJob& job);
/// One line for a call of the user component, as it came back: `user ACTION {JSON}`.
std::string UserText(const UserCall& call);
/// One line for a call of the task component: `task {JSON}`.
std::string TaskText(const TaskCall& call);

}  // namespace qvzj::script
