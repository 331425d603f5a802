#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>

#include "adapters/sqlite/sqlite_session.h"
#include "platform/basic/date.h"

namespace qvzj {

/// One value to be stored; a text is read before Add returns.
using Cell = std::variant<std::monostate, int64_t, double, std::string_view, basic::Date>;

/// Inserts many rows into one table through one prepared statement with bound values.
class RowWriter {
 public:
  /// Throws DataError when the table or a column is missing. The session must outlive the writer.
  RowWriter(SqliteSession& session, std::string_view table,
            std::initializer_list<std::string_view> columns);
  /// Inserts one row, its values in the order of the columns. Throws DataError.
  void Add(std::initializer_list<Cell> cells);

 private:
  SqliteStatement statement_;
};

/// Rows of a table.
int64_t CountOf(SqliteSession& session, const std::string& table);

}  // namespace qvzj
