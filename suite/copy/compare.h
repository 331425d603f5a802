#pragma once

#include "suite/copy/copy.h"
#include "suite/store/tables.h"

namespace qvzj::copy {

/// Reads a table on both sides, `lot` rows at a time, compares every value, and counts and sums
/// what both have. Throws Error that names the first difference.
CopiedTable CompareTables(data::Store& source, data::Store& target, const store::Table& table,
                          const std::vector<std::string>& columns, int32_t lot);

}  // namespace qvzj::copy
