#pragma once

#include <string>

#include "platform/services.h"

namespace qvzj::demo_data {

/// Summary of a counter-entry: what the entry came in from, "挂入-" and the customer's name, cut to
/// what the summary's field holds.
std::string CounterBrief(const AnsiCodec& codec, const std::string& customer);

}  // namespace qvzj::demo_data
