#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/basic/date.h"
#include "platform/data/recordset.h"

struct sqlite3;
struct sqlite3_stmt;

namespace qvzj {

/// Throws DataError with what the engine said last, data::ConstraintError when a row broke a rule.
[[noreturn]] void ThrowSqlite(sqlite3* database);

/// One prepared statement in SQLite's own language, with bound values for bulk work. Parameters
/// are numbered from 1, columns from 0. Every failure is a DataError with the engine's text.
class SqliteStatement {
 public:
  /// Prepares the first statement of `sql`. Throws DataError when something follows it.
  SqliteStatement(sqlite3* database, std::string_view sql);
  /// Prepares the first statement of `sql` and cuts it off; the statement is empty (see Empty)
  /// when only blanks and comments were left.
  static SqliteStatement TakeFrom(sqlite3* database, std::string_view& sql);

  /// True when there was nothing but blanks and comments to prepare; it must not be run then.
  bool Empty() const { return !statement_; }
  /// False when running it may change the file.
  bool ReadOnly() const;
  /// Number of parameters.
  int ParameterCount() const;
  /// Gives a parameter its value for the next run; dates are stored as yyyy-mm-dd. A text is
  /// copied.
  void BindNull(int parameter);
  void Bind(int parameter, int64_t value);
  void Bind(int parameter, double value);
  void Bind(int parameter, std::string_view value);
  void Bind(int parameter, basic::Date value);

  /// Runs to the next row; false at the end.
  bool Step();
  /// Runs to the end and makes ready for the next values.
  void Run();
  /// Gives up the rows that were not read; bound values stay.
  void Reset();

  /// Values of the current row, converted as the engine converts them: null reads 0 or "".
  int64_t Integer(int column) const;
  double Real(int column) const;
  std::string Text(int column) const;
  bool IsNull(int column) const;

  /// Reads all rows from here on. Columns declared as a date come as dates where they hold one.
  data::Recordset ReadAll();

 private:
  SqliteStatement(sqlite3* database, sqlite3_stmt* statement);
  void Check(int result);

  struct Finalizer {
    void operator()(sqlite3_stmt* statement) const;
  };
  sqlite3* database_;
  std::unique_ptr<sqlite3_stmt, Finalizer> statement_;
};

}  // namespace qvzj
