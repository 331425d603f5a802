#pragma once

#include <functional>
#include <vector>

#include "adapters/dialect/schema.h"
#include "adapters/odbc/odbc_handle.h"
#include "platform/data/recordset.h"

namespace qvzj {

/// A column of an answer as the driver describes it.
struct OdbcColumn {
  std::string name;
  dialect::ColumnType type;  ///< never Unknown
  bool whole;                ///< a number without decimals
  SQLULEN size;              ///< characters of a text; 0 when the driver sets no limit
};

/// The columns of an executed statement, none when it answers no rows.
std::vector<OdbcColumn> DescribeColumns(const OdbcStatement& statement);

/// Reads all rows of an executed statement, a block of rows a call. Whole numbers, reals and dates
/// are bound as such, everything else as wide text. `long_values_in_blocks`: the driver can read
/// on in a value that was longer than its place in a block; otherwise an answer with such columns
/// is read row by row. `cancelled` is asked between two blocks; when it says so the rest is not
/// read, and OdbcError says that it was cancelled.
data::Recordset FetchAll(const OdbcStatement& statement, bool long_values_in_blocks,
                         const std::function<bool()>& cancelled);

}  // namespace qvzj
