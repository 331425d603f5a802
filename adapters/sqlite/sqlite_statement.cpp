#include "adapters/sqlite/sqlite_statement.h"

#include <sqlite3.h>

#include "platform/basic/errors.h"
#include "platform/basic/text.h"

namespace qvzj {
namespace {

using basic::Column;

sqlite3_stmt* Prepare(sqlite3* database, std::string_view sql, std::string_view& rest) {
  sqlite3_stmt* statement = nullptr;
  const char* tail = nullptr;
  const int result =
      sqlite3_prepare_v2(database, sql.data(), static_cast<int>(sql.size()), &statement, &tail);
  if (result != SQLITE_OK) ThrowSqlite(database);
  rest = sql.substr(static_cast<size_t>(tail - sql.data()));
  return statement;
}

bool DeclaredAsDate(const char* declared) {
  return declared && basic::Lower(declared).find("date") != std::string::npos;
}

/// The day of ten bytes yyyy-mm-dd at the start of `text`; the general reader takes every other
/// form. Ledgers hold a date in every row, so the common form is read without a detour.
std::optional<basic::Date> ReadDate(std::string_view text) {
  const auto digits = [&text](size_t first, size_t count) {
    int value = 0;
    for (size_t i = first; i < first + count; ++i) {
      if (text[i] < '0' || text[i] > '9') return -1;
      value = value * 10 + (text[i] - '0');
    }
    return value;
  };
  if (text.size() == 10 && text[4] == '-' && text[7] == '-') {
    const int year = digits(0, 4);
    const int month = digits(5, 2);
    const int day = digits(8, 2);
    // The days that every month has need no calendar check.
    if (year >= 100 && month >= 1 && month <= 12 && day >= 1 && day <= 28) {
      return basic::Date::FromYmd(year, month, day);
    }
  }
  return basic::ParseIso(text);
}

std::string_view TextView(sqlite3_stmt* statement, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  return {text, static_cast<size_t>(sqlite3_column_bytes(statement, column))};
}

/// Appends a value of the current row. It is read through its handle, which is looked up once; that
/// is allowed because the connection is used by one thread alone.
void AppendValue(sqlite3_value* value, bool is_date, Column& column) {
  switch (sqlite3_value_type(value)) {
    case SQLITE_NULL:
      return column.AppendNull();
    case SQLITE_INTEGER:
      return column.AppendInteger(sqlite3_value_int64(value));
    case SQLITE_FLOAT:
      return column.AppendReal(sqlite3_value_double(value));
    default:
      break;
  }
  const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(value));
  const std::string_view text(bytes, static_cast<size_t>(sqlite3_value_bytes(value)));
  if (is_date) {
    if (const auto date = ReadDate(text)) return column.AppendDate(*date);
  }
  column.AppendText(text);
}

}  // namespace

void SqliteStatement::Finalizer::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

SqliteStatement::SqliteStatement(sqlite3* database, sqlite3_stmt* statement)
    : database_(database), statement_(statement) {}

SqliteStatement::SqliteStatement(sqlite3* database, std::string_view sql) : database_(database) {
  std::string_view rest;
  statement_.reset(Prepare(database, sql, rest));
  if (!statement_) throw DataError("Command text was not set for the command object");
  if (!TakeFrom(database, rest).Empty()) {
    throw DataError("Characters found after end of SQL statement");
  }
}

SqliteStatement SqliteStatement::TakeFrom(sqlite3* database, std::string_view& sql) {
  while (!sql.empty()) {
    sqlite3_stmt* statement = Prepare(database, sql, sql);
    if (statement) return {database, statement};
  }
  return {database, nullptr};
}

void SqliteStatement::Check(int result) {
  if (result != SQLITE_OK) ThrowSqlite(database_);
}

bool SqliteStatement::ReadOnly() const { return sqlite3_stmt_readonly(statement_.get()) != 0; }

int SqliteStatement::ParameterCount() const {
  return sqlite3_bind_parameter_count(statement_.get());
}

void SqliteStatement::BindNull(int parameter) {
  Check(sqlite3_bind_null(statement_.get(), parameter));
}

void SqliteStatement::Bind(int parameter, int64_t value) {
  Check(sqlite3_bind_int64(statement_.get(), parameter, value));
}

void SqliteStatement::Bind(int parameter, double value) {
  Check(sqlite3_bind_double(statement_.get(), parameter, value));
}

void SqliteStatement::Bind(int parameter, std::string_view value) {
  // The engine takes a null pointer for null, and that is what an empty view may hold.
  const char* const bytes = value.data() ? value.data() : "";
  Check(sqlite3_bind_text(statement_.get(), parameter, bytes, static_cast<int>(value.size()),
                          SQLITE_TRANSIENT));
}

void SqliteStatement::Bind(int parameter, basic::Date value) {
  Bind(parameter, std::string_view(basic::FormatIso(value)));
}

bool SqliteStatement::Step() {
  const int result = sqlite3_step(statement_.get());
  if (result == SQLITE_ROW) return true;
  if (result == SQLITE_DONE) return false;
  try {
    ThrowSqlite(database_);
  } catch (const DataError&) {
    Reset();  // which forgets what was said
    throw;
  }
}

void SqliteStatement::Run() {
  while (Step()) {
  }
  Reset();
}

void SqliteStatement::Reset() { sqlite3_reset(statement_.get()); }

int64_t SqliteStatement::Integer(int column) const {
  return sqlite3_column_int64(statement_.get(), column);
}

double SqliteStatement::Real(int column) const {
  return sqlite3_column_double(statement_.get(), column);
}

std::string SqliteStatement::Text(int column) const {
  return IsNull(column) ? std::string() : std::string(TextView(statement_.get(), column));
}

bool SqliteStatement::IsNull(int column) const {
  return sqlite3_column_type(statement_.get(), column) == SQLITE_NULL;
}

data::Recordset SqliteStatement::ReadAll() {
  const int count = sqlite3_column_count(statement_.get());
  std::vector<std::string> names;
  std::vector<char> is_date;
  for (int i = 0; i < count; ++i) {
    names.emplace_back(sqlite3_column_name(statement_.get(), i));
    is_date.push_back(DeclaredAsDate(sqlite3_column_decltype(statement_.get(), i)));
  }
  std::vector<Column> columns(static_cast<size_t>(count));
  while (Step()) {
    for (int i = 0; i < count; ++i) {
      const auto place = static_cast<size_t>(i);
      AppendValue(sqlite3_column_value(statement_.get(), i), is_date[place] != 0, columns[place]);
    }
  }
  Reset();
  for (Column& column : columns) column.Fit();
  return {std::move(names), std::move(columns)};
}

}  // namespace qvzj
