#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "adapters/dialect/schema.h"
#include "adapters/dialect/token.h"

namespace qvzj::dialect {

/// A column as a statement names it: `[alias.]column` at the tokens [first, last).
struct ColumnRef {
  size_t first;
  size_t last;
  std::string alias;  ///< empty when none is written
  std::string column;
};

/// The column reference that begins at `at`; empty when there is none (a function call is none).
std::optional<ColumnRef> ColumnAt(const Tokens& tokens, size_t at);

/// The tables a statement works on, with their aliases.
class Scope {
 public:
  /// Reads the tables from the statement's tokens; the schema must outlive it.
  Scope(const Tokens& tokens, const Schema& schema);
  /// Type of the column, looked up in the aliased table or, without an alias, in all of them.
  ColumnType TypeOf(const ColumnRef& ref) const;
  /// Type of a table's column, whether the statement works on that table or not.
  ColumnType TypeOf(const std::string& table, const std::string& column) const {
    return schema_.TypeOf(table, column);
  }

 private:
  void ReadTables(const Tokens& tokens, size_t at);
  size_t ReadTable(const Tokens& tokens, size_t at);

  const Schema& schema_;
  std::vector<std::pair<std::string, std::string>> tables_;  // alias, table
};

}  // namespace qvzj::dialect
