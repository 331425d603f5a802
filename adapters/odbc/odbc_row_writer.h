#pragma once

#include <functional>
#include <string>
#include <vector>

#include "adapters/odbc/odbc_fetch.h"
#include "adapters/odbc/odbc_handle.h"
#include "platform/data/store.h"

namespace qvzj {

/// Inserts rows through prepared statements of many rows each with bound values, so that a batch
/// costs one way to the server and back. Values are brought into the types of their columns here:
/// a row with one that does not fit is refused before the server sees it.
class OdbcRowWriter : public data::RowWriter {
 public:
  /// Throws of an error one that may be shown.
  using Refusal = std::function<void(const OdbcError&)>;

  /// Throws OdbcError when the table or a column is missing. The connection must outlive it.
  OdbcRowWriter(const OdbcConnection& connection, std::string_view table,
                const std::vector<std::string_view>& columns, Refusal refuse);
  void AddRow(std::span<const data::Cell> cells) override;
  void Flush() override;

 private:
  /// A value that waits for its batch; which member holds it is the column's type.
  struct Value {
    SQLLEN length = 0;  ///< bytes of a text, SQL_NULL_DATA for null
    int64_t whole = 0;
    double real = 0;
    SQL_DATE_STRUCT date{};
    size_t text = 0;  ///< place in texts_
  };

  Value Converted(const OdbcColumn& column, const data::Cell& cell);
  Value WithText(const OdbcColumn& column, std::string_view text);
  void Prepare(size_t rows);
  void BindAll();
  void Bind(SQLUSMALLINT parameter, const OdbcColumn& column, Value& value);

  std::string table_;
  std::vector<std::string> names_;
  Refusal refuse_;
  OdbcStatement statement_;
  std::vector<OdbcColumn> columns_;
  size_t batch_rows_;
  size_t prepared_rows_ = 0;
  std::vector<Value> values_;  // row by row
  std::u16string texts_;
};

}  // namespace qvzj
