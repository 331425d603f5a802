#pragma once

#include "adapters/sqlite/sqlite_statement.h"
#include "platform/data/store.h"

namespace qvzj {

/// Inserts rows through one prepared statement, each at once: the engine is in the process, so
/// nothing is won by gathering them.
class SqliteRowWriter : public data::RowWriter {
 public:
  /// An insert statement with a parameter for each column, in their order.
  explicit SqliteRowWriter(SqliteStatement statement) : statement_(std::move(statement)) {}
  void AddRow(std::span<const data::Cell> cells) override;
  void Flush() override {}

 private:
  SqliteStatement statement_;
};

}  // namespace qvzj
