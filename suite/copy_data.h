#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "suite/demo.h"
#include "suite/place.h"

namespace qvzj {

/// What was copied of one table.
struct CopiedTable {
  std::string table;
  int64_t rows;
};

/// Copies the rows of all tables of the module from one place to another, whose tables must be
/// there and empty. A copy that was broken off goes on where it stopped when it is started again;
/// at the end counts and sums of every column are compared. Record ids stay as they are, and the
/// target never gives an id that the source has given. Nothing is changed in the source.
/// Throws DataError when the target holds rows of its own, when a column is missing there, or when
/// the ends differ afterwards.
std::vector<CopiedTable> CopyData(const OpenPlace& source, const OpenPlace& target,
                                  const RowProgress& progress);

}  // namespace qvzj
