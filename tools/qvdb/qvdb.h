#pragma once

#include <string>
#include <vector>

#include "tools/qvdb/streams.h"

namespace qvzj::qvdb {

/// Runs one command of the tool that maintains databases; `words` is its command line without the
/// program's name. Answers the exit status: 0 done, 1 done but rows were refused or faults found,
/// 2 not done (the reason is on `err`).
int Run(const std::vector<std::string>& words, const Streams& streams);

}  // namespace qvzj::qvdb
