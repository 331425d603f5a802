#include "adapters/odbc/odbc_row_writer.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "adapters/icu/utf16.h"

namespace qvzj {
namespace {

using data::Cell;
using data::CellError;
using dialect::ColumnType;

/// Parameters of one statement that every engine takes (SQL Server: 2100).
constexpr size_t kMaxParameters = 2000;
/// Rows of one statement that every engine takes are 1000; more than this wins nothing.
constexpr size_t kMaxRows = 500;
/// Bytes of a text above which engines want it declared as a long one.
constexpr SQLULEN kShortText = 4000 * sizeof(char16_t);
/// Whole numbers up to here are exact as reals.
constexpr double kExactWhole = 9007199254740992.0;

void Start(const OdbcStatement& statement, const std::string& sql, decltype(SQLPrepareW)* run) {
  std::u16string wide = ToUtf16(sql);
  statement.Check(run(statement.Get(), reinterpret_cast<SQLWCHAR*>(wide.data()),
                      static_cast<SQLINTEGER>(wide.size())));
}

std::vector<OdbcColumn> Describe(const OdbcConnection& connection, const std::string& select) {
  const OdbcStatement statement(connection.Get());
  Start(statement, select, SQLExecDirectW);
  return DescribeColumns(statement);
}

std::string Joined(const std::vector<std::string_view>& names) {
  std::string text;
  for (const std::string_view name : names) {
    if (!text.empty()) text += ',';
    text += name;
  }
  return text;
}

[[noreturn]] void Refuse(const OdbcColumn& column, const std::string& value) {
  throw CellError(column.name + " cannot hold " + value);
}

double NumberOf(const OdbcColumn& column, std::string_view text) {
  double number = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (failure != std::errc() || end != text.data() + text.size() || !std::isfinite(number)) {
    Refuse(column, "the text \"" + std::string(text) + "\"");
  }
  return number;
}

int64_t WholeOf(const OdbcColumn& column, double number) {
  if (number != std::trunc(number) || std::abs(number) > kExactWhole) {
    Refuse(column, "the number " + std::to_string(number));
  }
  return static_cast<int64_t>(number);
}

SQL_DATE_STRUCT DateOf(basic::Date date) {
  return {static_cast<SQLSMALLINT>(date.Year()), static_cast<SQLUSMALLINT>(date.Month()),
          static_cast<SQLUSMALLINT>(date.Day())};
}

}  // namespace

OdbcRowWriter::OdbcRowWriter(const OdbcConnection& connection, std::string_view table,
                             const std::vector<std::string_view>& columns, Refusal refuse)
    : table_(table),
      names_(columns.begin(), columns.end()),
      refuse_(std::move(refuse)),
      statement_(connection.Get()),
      columns_(
          Describe(connection, "select " + Joined(columns) + " from " + table_ + " where 1=0")),
      batch_rows_(std::clamp<size_t>(kMaxParameters / columns.size(), 1, kMaxRows)) {
  values_.reserve(batch_rows_ * columns_.size());
}

void OdbcRowWriter::AddRow(std::span<const Cell> cells) {
  if (cells.size() != columns_.size()) {
    throw DataError("Number of query values and destination fields are not the same");
  }
  const size_t before = values_.size();
  const size_t texts_before = texts_.size();
  try {
    for (size_t i = 0; i < cells.size(); ++i) values_.push_back(Converted(columns_[i], cells[i]));
  } catch (const CellError&) {
    values_.resize(before);
    texts_.resize(texts_before);
    throw;
  }
  if (values_.size() == batch_rows_ * columns_.size()) Flush();
}

OdbcRowWriter::Value OdbcRowWriter::WithText(const OdbcColumn& column, std::string_view text) {
  if (text.find('\0') != std::string_view::npos) Refuse(column, "a text with a zero character");
  Value value;
  value.text = texts_.size();
  texts_ += ToUtf16(text);
  value.length = static_cast<SQLLEN>((texts_.size() - value.text) * sizeof(char16_t));
  return value;
}

OdbcRowWriter::Value OdbcRowWriter::Converted(const OdbcColumn& column, const Cell& cell) {
  Value value;
  if (std::holds_alternative<std::monostate>(cell)) {
    value.length = SQL_NULL_DATA;
    return value;
  }
  const auto* text = std::get_if<std::string_view>(&cell);
  const auto* date = std::get_if<basic::Date>(&cell);
  const auto* whole = std::get_if<int64_t>(&cell);
  if (column.type == ColumnType::Text) {
    if (text) return WithText(column, *text);
    if (date) return WithText(column, basic::FormatIso(*date));
    if (whole) return WithText(column, std::to_string(*whole));
    Refuse(column, "the number " + std::to_string(std::get<double>(cell)));
  }
  if (column.type == ColumnType::Date) {
    if (!text && !date) Refuse(column, "a number");
    const auto day = date ? *date : basic::ParseIso(*text);
    if (!day) Refuse(column, "the text \"" + std::string(*text) + "\"");
    value.date = DateOf(*day);
    return value;
  }
  if (date) Refuse(column, "the day " + basic::FormatIso(*date));
  if (whole) {
    value.whole = *whole;
    value.real = static_cast<double>(*whole);
    return value;
  }
  value.real = text ? NumberOf(column, *text) : std::get<double>(cell);
  if (column.whole) value.whole = WholeOf(column, value.real);
  return value;
}

void OdbcRowWriter::Flush() {
  if (values_.empty()) return;
  try {
    Prepare(values_.size() / columns_.size());
    BindAll();
    statement_.Check(SQLExecute(statement_.Get()));
  } catch (const OdbcError& error) {
    refuse_(error);
  }
  values_.clear();
  texts_.clear();
}

void OdbcRowWriter::Prepare(size_t rows) {
  if (rows == prepared_rows_) return;
  SQLFreeStmt(statement_.Get(), SQL_RESET_PARAMS);
  const std::vector<std::string_view> names(names_.begin(), names_.end());
  Start(statement_, data::InsertStatement(table_, names, rows), SQLPrepareW);
  prepared_rows_ = rows;
}

void OdbcRowWriter::BindAll() {
  for (size_t i = 0; i < values_.size(); ++i) {
    Bind(static_cast<SQLUSMALLINT>(i + 1), columns_[i % columns_.size()], values_[i]);
  }
}

void OdbcRowWriter::Bind(SQLUSMALLINT parameter, const OdbcColumn& column, Value& value) {
  SQLSMALLINT from = SQL_C_WCHAR;
  SQLSMALLINT to = SQL_WVARCHAR;
  SQLULEN size = 0;
  SQLPOINTER place = texts_.data() + value.text;
  if (column.type == ColumnType::Date) {
    from = SQL_C_TYPE_DATE;
    to = SQL_TYPE_DATE;
    size = 10;
    place = &value.date;
  } else if (column.type == ColumnType::Number) {
    from = column.whole ? SQLSMALLINT{SQL_C_SBIGINT} : SQLSMALLINT{SQL_C_DOUBLE};
    to = column.whole ? SQLSMALLINT{SQL_BIGINT} : SQLSMALLINT{SQL_DOUBLE};
    place = column.whole ? static_cast<SQLPOINTER>(&value.whole) : &value.real;
  } else {
    const bool is_long = value.length > static_cast<SQLLEN>(kShortText);
    if (is_long) to = SQL_WLONGVARCHAR;
    size = is_long ? static_cast<SQLULEN>(value.length) / sizeof(char16_t)
                   : kShortText / sizeof(char16_t);
  }
  statement_.Check(SQLBindParameter(statement_.Get(), parameter, SQL_PARAM_INPUT, from, to, size, 0,
                                    place, 0, &value.length));
}

}  // namespace qvzj
