#pragma once

#include <string>

#include "platform/basic/column.h"

namespace qvzj {

/// Looks at ids that were read from a table and will enter statements, which take them unquoted: a
/// damaged or crafted file may hold any text in their place, and "2 or 1=1" would change or delete
/// every row. Nulls pass. Throws Error that names `column` and the first value that is
/// no whole number of 32 bits.
void RequireIds(const basic::Column& values, const std::string& column);

}  // namespace qvzj
