#pragma once

#include <cstddef>
#include <string>

namespace qvzj::data {

/// Place behind the value that begins at `start` in the details of a server ("KEY=value;…"). A
/// value in braces may hold any character; two closing braces in it stand for one.
size_t EndOfValue(const std::string& details, size_t start);

}  // namespace qvzj::data
