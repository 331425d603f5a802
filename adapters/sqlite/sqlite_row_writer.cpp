#include "adapters/sqlite/sqlite_row_writer.h"

namespace qvzj {
namespace {

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

void SqliteRowWriter::AddRow(std::span<const data::Cell> cells) {
  int parameter = 0;
  for (const data::Cell& cell : cells) std::visit(Binder{statement_, ++parameter}, cell);
  statement_.Run();
}

}  // namespace qvzj
