#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/basic/date.h"
#include "platform/basic/errors.h"
#include "platform/data/connection.h"

/// What the tools that fill and move whole databases need of an engine beyond the module's own
/// statements. The module itself works on data::Session alone.
namespace qvzj::data {

/// Engines by the language that they speak.
enum class Engine { Sqlite, PostgreSql, TransactSql };

/// One value to be stored; a text is read before the call that takes it returns.
using Cell = std::variant<std::monostate, int64_t, double, std::string_view, basic::Date>;

/// A value that its column cannot hold.
class CellError : public DataError {
 public:
  using DataError::DataError;
};

/// Inserts many rows into one table with bound values. Rows may be gathered and stored together.
class RowWriter {
 public:
  virtual ~RowWriter() = default;
  /// Takes one row, its values in the order of the columns. Throws CellError when one of them
  /// cannot stand in its column, and the row is not taken; DataError when the engine refuses this
  /// row or one taken before.
  virtual void AddRow(std::span<const Cell> cells) = 0;
  /// The same for values that are written out.
  void Add(std::initializer_list<Cell> cells) { AddRow({cells.begin(), cells.size()}); }
  /// Stores every row taken so far. Throws DataError.
  virtual void Flush() = 0;
};

/// A session with what bulk work needs. Every failure is a DataError with the engine's text.
class Store : public Session {
 public:
  /// The language of Native().
  virtual Engine Speaks() const = 0;
  /// Runs one statement in the engine's own language and reads its rows.
  virtual Recordset Native(std::string_view sql) = 0;

  /// Rows to be inserted into `table`; throws DataError when it or a column is missing. Ends before
  /// the transaction does; see Transaction::Into.
  virtual std::unique_ptr<RowWriter> Writer(std::string_view table,
                                            const std::vector<std::string_view>& columns) = 0;
  /// Statements from here on take effect together at Commit, or not at all; see Transaction.
  virtual void Begin() = 0;
  /// Makes what was done since Begin take effect. Throws DataError; its text says when a server was
  /// lost in the midst of it, so that nobody knows what became of it.
  virtual void Commit() = 0;
  /// Undoes what was done since Begin; also when the connection is lost.
  virtual void Rollback() noexcept = 0;

  /// The highest id that the engine ever gave or took in for a table whose ids it gives; 0 when it
  /// gave none.
  virtual int64_t LastGivenId(const std::string& table) = 0;
  /// Makes the engine give ids above `id` from now on; one that is there already is no step back.
  virtual void GiveIdsAbove(const std::string& table, int64_t id) = 0;
  /// "" when everything that the engine keeps is sound, or when it watches over that itself; else
  /// what is wrong, line by line.
  virtual std::string CheckIntegrity() = 0;
};

/// Groups statements and rows so that all of them or none take effect; undone unless committed.
class Transaction {
 public:
  /// Begins; the store must outlive it.
  explicit Transaction(Store& store);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  /// The store, for statements that belong to the transaction.
  Store& Within() { return store_; }
  /// Rows to be inserted into a table as part of the transaction; valid until its end.
  RowWriter& Into(std::string_view table, const std::vector<std::string_view>& columns);
  /// Stores the rows that the writers have gathered, so that statements see them.
  void Flush();
  /// Stores what the writers have gathered and makes everything take effect; they are no longer
  /// valid. Throws DataError.
  void Commit();

 private:
  Store& store_;
  std::vector<std::unique_ptr<RowWriter>> writers_;
  bool open_ = true;
};

/// "insert into table (columns) values (?,?),(?,?)…" with places for `rows` rows.
std::string InsertStatement(std::string_view table, const std::vector<std::string_view>& columns,
                            size_t rows);

/// Rows of a table.
int64_t CountOf(Store& store, const std::string& table);

/// True when the engine has a table of that name, ASCII case ignored.
bool HasTable(Store& store, const std::string& table);

}  // namespace qvzj::data
