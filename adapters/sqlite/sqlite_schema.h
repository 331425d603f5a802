#pragma once

#include <map>
#include <string>

#include "adapters/dialect/schema.h"

struct sqlite3;

namespace qvzj {

/// Column types as the data file declares them, asked once a table.
class SqliteSchema : public dialect::Schema {
 public:
  /// The connection must outlive it.
  explicit SqliteSchema(sqlite3* database) : database_(database) {}
  dialect::ColumnType TypeOf(std::string_view table, std::string_view column) const override;
  /// Asks again from now on; to be called when a statement has changed the schema.
  void Forget() { tables_.clear(); }

 private:
  using Columns = std::map<std::string, dialect::ColumnType>;  // by name in lower case
  Columns Read(const std::string& table) const;

  sqlite3* database_;
  mutable std::map<std::string, Columns> tables_;  // by name in lower case
};

}  // namespace qvzj
