#include "suite/row_writer.h"

namespace qvzj {
namespace {

std::string InsertText(std::string_view table, std::initializer_list<std::string_view> columns) {
  std::string names;
  std::string places;
  for (const std::string_view column : columns) {
    if (!names.empty()) {
      names += ',';
      places += ',';
    }
    names += column;
    places += '?';
  }
  return "insert into " + std::string(table) + " (" + names + ") values (" + places + ")";
}

struct Binder {
  SqliteStatement& statement;
  int parameter;
  void operator()(std::monostate) const { statement.BindNull(parameter); }
  template <class T>
  void operator()(const T& value) const {
    statement.Bind(parameter, value);
  }
};

}  // namespace

RowWriter::RowWriter(SqliteSession& session, std::string_view table,
                     std::initializer_list<std::string_view> columns)
    : statement_(session.Prepare(InsertText(table, columns))) {}

void RowWriter::Add(std::initializer_list<Cell> cells) {
  int parameter = 0;
  for (const Cell& cell : cells) std::visit(Binder{statement_, ++parameter}, cell);
  statement_.Run();
}

int64_t CountOf(SqliteSession& session, const std::string& table) {
  SqliteStatement count = session.Prepare("select count(*) from " + table);
  count.Step();
  return count.Integer(0);
}

}  // namespace qvzj
