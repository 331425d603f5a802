#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "platform/data/store.h"
#include "suite/store/progress.h"

namespace qvzj::copy {

struct Options {
  /// What the source is called. An unfinished copy goes on only from the same one.
  std::string source_name;
  /// Empties a target that holds an unfinished copy and begins again.
  bool anew = false;
  /// Rows that are read and stored together; after each lot a copy can be broken off and resumed.
  int32_t lot = 20000;
};

/// A table that arrived whole.
struct CopiedTable {
  std::string name;
  int64_t rows = 0;
  std::vector<std::pair<std::string, std::string>> sums;  ///< amount columns and their totals
};

struct Report {
  bool resumed = false;
  std::vector<CopiedTable> tables;
};

/// Copies every row of the suite's tables, ids kept, into a target that has the tables but no rows
/// in them; afterwards the target's engine gives ids above all that the source ever gave. Each lot
/// is stored together with a note of how far the copy is, so that a copy that broke off goes on
/// where it stood, without a row too few or twice. At the end both sides are read again and
/// compared row by row and value by value, and rows and amounts are counted. The note is dropped
/// only when they agree; until then the target counts as unfinished. The source must not be worked
/// on meanwhile.
///
/// Throws Error when the target holds rows of its own or an unfinished copy of something else,
/// when it lacks a column, when a value does not fit its column there (the row is named), or when
/// the two sides differ; DataError when an engine refuses or fails.
Report CopyData(data::Store& source, data::Store& target, const Options& options,
                const store::RowProgress& progress);

}  // namespace qvzj::copy
