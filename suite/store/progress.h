#pragma once

#include <cstdint>
#include <functional>

namespace qvzj::store {

/// Work that writes many rows tells it now and then how many of all are written.
using RowProgress = std::function<void(int64_t done, int64_t all)>;

}  // namespace qvzj::store
