#pragma once

#include <functional>
#include <map>
#include <string>

#include "adapters/dialect/schema.h"

namespace qvzj {

/// Column types as the server describes them, asked once a table.
class OdbcSchema : public dialect::Schema {
 public:
  using Columns = std::map<std::string, dialect::ColumnType>;  ///< by name in lower case
  /// Answers the columns of a table, none when there is no such table.
  using Reader = std::function<Columns(const std::string& table)>;

  /// `read` is asked the first time a table is named.
  explicit OdbcSchema(Reader read) : read_(std::move(read)) {}
  dialect::ColumnType TypeOf(std::string_view table, std::string_view column) const override;
  /// Asks again from now on; to be called when a statement has changed the schema.
  void Forget() { tables_.clear(); }

 private:
  Reader read_;
  mutable std::map<std::string, Columns> tables_;  // by name in lower case
};

}  // namespace qvzj
