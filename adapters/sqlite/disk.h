#pragma once

#include <string>

namespace qvzj {

/// True when the file lies on a disk of this machine, where its memory can be shared between
/// processes and locks are reliable. False for network and user-space file systems and when it
/// cannot be told.
bool OnLocalDisk(const std::string& file);

}  // namespace qvzj
