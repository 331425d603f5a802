#include "adapters/odbc/odbc_fetch.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

#include "adapters/icu/utf16.h"

namespace qvzj {
namespace {

using basic::Column;
using dialect::ColumnType;

constexpr size_t kBlockRows = 512;
/// Characters that a text has room for in a block; longer ones are read on their own.
constexpr size_t kBlockText = 128;
/// A column declared no longer than this is bound whole.
constexpr SQLULEN kWholeText = 1024;

OdbcColumn Described(std::string name, SQLSMALLINT type, SQLULEN size) {
  switch (type) {
    case SQL_BIT:
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT:
      return {std::move(name), ColumnType::Number, true, size};
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
    case SQL_NUMERIC:
    case SQL_DECIMAL:
      return {std::move(name), ColumnType::Number, false, size};
    case SQL_TYPE_DATE:
    case SQL_TYPE_TIMESTAMP:
      return {std::move(name), ColumnType::Date, false, size};
    default:
      return {std::move(name), ColumnType::Text, false, size};
  }
}

/// One column of the answer: its place in the block and the values read so far.
class BoundColumn {
 public:
  BoundColumn(OdbcColumn described, SQLUSMALLINT number)
      : column_(std::move(described)), number_(number) {
    if (IsText()) {
      may_be_long_ = column_.size == 0 || column_.size > kWholeText;
      width_ = ((may_be_long_ ? kBlockText : column_.size) + 1) * sizeof(char16_t);
    } else {
      width_ = column_.type == ColumnType::Date ? sizeof(SQL_DATE_STRUCT) : sizeof(int64_t);
    }
  }

  const std::string& Name() const { return column_.name; }
  bool MayBeLong() const { return may_be_long_; }
  Column TakeValues() {
    values_.Fit();
    return std::move(values_);
  }

  void Bind(const OdbcStatement& statement, size_t rows) {
    block_ = std::make_unique<std::byte[]>(rows * width_);
    lengths_.resize(rows);
    statement.Check(SQLBindCol(statement.Get(), number_, TargetType(), block_.get(),
                               static_cast<SQLLEN>(width_), lengths_.data()));
  }

  /// Takes the value of a row of the block; false when it was longer than its place.
  bool Take(size_t row) {
    const SQLLEN length = lengths_[row];
    if (length == SQL_NULL_DATA) {
      values_.AppendNull();
      return true;
    }
    const std::byte* place = block_.get() + row * width_;
    if (IsText()) {
      const bool fits = length >= 0 && static_cast<size_t>(length) <= width_ - sizeof(char16_t);
      if (fits) {
        AppendText({reinterpret_cast<const char16_t*>(place),
                    static_cast<size_t>(length) / sizeof(char16_t)});
      }
      return fits;
    }
    if (column_.type == ColumnType::Date) {
      const auto date = Read<SQL_DATE_STRUCT>(place);
      values_.AppendDate(basic::Date::FromYmd(date.year, date.month, date.day));
    } else if (column_.whole) {
      values_.AppendInteger(Read<int64_t>(place));
    } else {
      values_.AppendReal(Read<double>(place));
    }
    return true;
  }

  /// Reads the whole value of the row that the cursor stands on, piece by piece.
  void TakeLong(const OdbcStatement& statement) {
    std::u16string text;
    std::array<char16_t, 8192> piece{};
    while (true) {
      SQLLEN length = 0;
      const SQLRETURN result =
          SQLGetData(statement.Get(), number_, SQL_C_WCHAR, piece.data(), sizeof piece, &length);
      if (result == SQL_NO_DATA) break;
      statement.Check(result);
      if (length == SQL_NULL_DATA) return values_.AppendNull();
      const size_t room = piece.size() - 1;
      const bool more = length == SQL_NO_TOTAL || static_cast<size_t>(length) / 2 > room;
      text.append(piece.data(), more ? room : static_cast<size_t>(length) / 2);
      if (!more) break;
    }
    AppendText(text);
  }

 private:
  bool IsText() const { return column_.type == ColumnType::Text; }
  SQLSMALLINT TargetType() const {
    if (IsText()) return SQL_C_WCHAR;
    if (column_.type == ColumnType::Date) return SQL_C_TYPE_DATE;
    return column_.whole ? SQLSMALLINT{SQL_C_SBIGINT} : SQLSMALLINT{SQL_C_DOUBLE};
  }
  template <class T>
  static T Read(const std::byte* place) {
    T value;
    std::memcpy(&value, place, sizeof value);
    return value;
  }
  void AppendText(std::u16string_view text) {
    ToUtf8(text, utf8_);
    values_.AppendText(utf8_);
  }

  OdbcColumn column_;
  SQLUSMALLINT number_;
  bool may_be_long_ = false;
  size_t width_ = 0;
  std::unique_ptr<std::byte[]> block_;
  std::vector<SQLLEN> lengths_;
  Column values_;
  std::string utf8_;
};

void SetAttribute(const OdbcStatement& statement, SQLINTEGER attribute, const void* value) {
  statement.Check(SQLSetStmtAttr(statement.Get(), attribute, const_cast<void*>(value), 0));
}

class Fetcher {
 public:
  Fetcher(const OdbcStatement& statement, bool long_values_in_blocks) : statement_(statement) {
    bool any_long = false;
    SQLUSMALLINT number = 0;
    for (OdbcColumn& column : DescribeColumns(statement)) {
      columns_.emplace_back(std::move(column), ++number);
      any_long = any_long || columns_.back().MayBeLong();
    }
    // Without help for long values the row itself is the block, and they are read unbound.
    long_unbound_ = any_long && !long_values_in_blocks;
    rows_ = long_unbound_ ? 1 : kBlockRows;
  }

  data::Recordset Run(const std::function<bool()>& cancelled) {
    if (!columns_.empty()) {
      SetAttribute(statement_, SQL_ATTR_ROW_ARRAY_SIZE,
                   reinterpret_cast<const void*>(static_cast<SQLULEN>(rows_)));
      SetAttribute(statement_, SQL_ATTR_ROWS_FETCHED_PTR, &fetched_);
      for (BoundColumn& column : columns_) {
        if (!(long_unbound_ && column.MayBeLong())) column.Bind(statement_, rows_);
      }
      while (FetchBlock()) {
        if (cancelled()) throw OdbcError("HY008", 0, "The answer was not read to its end");
        TakeBlock();
      }
    }
    std::vector<std::string> names;
    std::vector<Column> values;
    for (BoundColumn& column : columns_) {
      names.push_back(column.Name());
      values.push_back(column.TakeValues());
    }
    return {std::move(names), std::move(values)};
  }

 private:
  bool FetchBlock() {
    const SQLRETURN result = SQLFetchScroll(statement_.Get(), SQL_FETCH_NEXT, 0);
    if (result == SQL_NO_DATA) return false;
    statement_.Check(result);
    return true;
  }

  void TakeBlock() {
    for (size_t row = 0; row < fetched_; ++row) {
      bool stands_here = long_unbound_;
      for (BoundColumn& column : columns_) {
        const bool unbound = long_unbound_ && column.MayBeLong();
        if (!unbound && column.Take(row)) continue;
        if (!stands_here) {
          statement_.Check(SQLSetPos(statement_.Get(), static_cast<SQLSETPOSIROW>(row + 1),
                                     SQL_POSITION, SQL_LOCK_NO_CHANGE));
          stands_here = true;
        }
        column.TakeLong(statement_);
      }
    }
  }

  const OdbcStatement& statement_;
  std::vector<BoundColumn> columns_;
  bool long_unbound_ = false;
  size_t rows_ = 1;
  SQLULEN fetched_ = 0;
};

}  // namespace

std::vector<OdbcColumn> DescribeColumns(const OdbcStatement& statement) {
  SQLSMALLINT count = 0;
  statement.Check(SQLNumResultCols(statement.Get(), &count));
  std::vector<OdbcColumn> columns;
  for (SQLSMALLINT i = 1; i <= count; ++i) {
    std::array<char16_t, 256> name{};
    SQLSMALLINT name_length = 0;
    SQLSMALLINT type = 0;
    SQLULEN size = 0;
    SQLSMALLINT decimals = 0;
    SQLSMALLINT nullable = 0;
    statement.Check(SQLDescribeColW(
        statement.Get(), static_cast<SQLUSMALLINT>(i), reinterpret_cast<SQLWCHAR*>(name.data()),
        static_cast<SQLSMALLINT>(name.size()), &name_length, &type, &size, &decimals, &nullable));
    std::string utf8;
    ToUtf8({name.data(), static_cast<size_t>(name_length)}, utf8);
    columns.push_back(Described(std::move(utf8), type, size));
  }
  return columns;
}

data::Recordset FetchAll(const OdbcStatement& statement, bool long_values_in_blocks,
                         const std::function<bool()>& cancelled) {
  return Fetcher(statement, long_values_in_blocks).Run(cancelled);
}

}  // namespace qvzj
