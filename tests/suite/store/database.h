#pragma once

#include <memory>
#include <string>

#include "adapters/sqlite/sqlite_session.h"
#include "suite/store/schema.h"

namespace qvzj::test {

/// An empty database with the suite's tables, in memory.
inline std::unique_ptr<SqliteSession> EmptyDatabase() {
  SqliteOptions options;
  options.create = true;
  auto session = OpenSqlite(":memory:", options);
  store::CreateSchema(*session);
  return session;
}

/// All rows of a query as text: fields parted by "|", rows by line ends, null as "NULL".
inline std::string Rows(SqliteSession& session, const std::string& sql) {
  std::string text;
  for (data::Recordset rows = session.Native(sql); !rows.Eof(); rows.MoveNext()) {
    for (int field = 0; field < rows.FieldCount(); ++field) {
      if (field > 0) text += '|';
      text += rows.IsNull(field) ? "NULL" : rows.Text(field);
    }
    text += '\n';
  }
  return text;
}

/// The only field of the only row.
inline std::string One(SqliteSession& session, const std::string& sql) {
  std::string text = Rows(session, sql);
  if (!text.empty()) text.pop_back();
  return text;
}

}  // namespace qvzj::test
