#include "suite/copy/copy.h"

#include <algorithm>
#include <map>
#include <optional>

#include "platform/basic/errors.h"
#include "platform/basic/text.h"
#include "platform/data/store.h"
#include "suite/copy/compare.h"
#include "suite/copy/lots.h"
#include "suite/store/counter_index.h"
#include "suite/store/tables.h"

namespace qvzj::copy {
namespace {

/// The note in an unfinished target: a row for every table with the last key and the rows that
/// have arrived.
constexpr const char* kNote = "qvdb_copy";

/// How far a table is.
struct Standing {
  std::optional<int64_t> last;  ///< key of the last row; 1 when a table with text keys is done
  int64_t rows = 0;
};

void RefuseEngine(data::Store& store) {
  if (store.Speaks() != data::Engine::TransactSql) return;
  throw Error("Data is copied between SQLite and PostgreSQL only");
}

data::Cell CellAt(const basic::Column& column, size_t row) {
  if (column.IsNull(row)) return {};
  switch (column.GetKind()) {
    case basic::Column::Kind::Integer:
      return int64_t{column.Integers()[row]};
    case basic::Column::Kind::Real:
      return column.Reals()[row];
    case basic::Column::Kind::Date:
      return basic::Date{static_cast<int32_t>(column.Number(row))};
    default:
      return column.TextView(row);
  }
}

class Copy {
 public:
  Copy(data::Store& source, data::Store& target, const Options& options,
       const store::RowProgress& progress)
      : source_(source), target_(target), options_(options), progress_(progress) {}

  Report Run() {
    if (data::HasTable(source_, kNote)) {
      throw Error("The source holds an unfinished copy itself");
    }
    for (const store::Table& table : store::Tables()) CompareColumns(table);
    Begin();
    for (const store::Table& table : store::Tables()) all_ += data::CountOf(source_, table.name);
    for (const store::Table& table : store::Tables()) {
      CopyRows(table);
      KeepIds(table);
    }
    Verify();
    target_.Native(std::string("drop table ") + kNote);
    return std::move(report_);
  }

 private:
  void CompareColumns(const store::Table& table) {
    std::vector<std::string> columns = store::ColumnsOf(source_, table.name);
    const std::vector<std::string> there = store::ColumnsOf(target_, table.name);
    for (const std::string& column : columns) {
      const bool found = std::any_of(there.begin(), there.end(), [&](const std::string& name) {
        return basic::EqualIgnoringCase(name, column);
      });
      if (!found) {
        throw Error("The table " + std::string(table.name) + " of the target has no column " +
                    column);
      }
    }
    columns_[table.name] = std::move(columns);
  }

  /// Writes the note, or reads how far an unfinished copy is.
  void Begin() {
    if (!data::HasTable(target_, kNote)) {
      RefuseRows();
      // Rows that are wrong in the source arrive as they are; mending them is not a copy's
      // business.
      if (!store::DoubledCounterEntries(source_).empty()) store::UnguardCounterEntries(target_);
      data::Transaction transaction(target_);
      target_.Native(std::string("create table ") + kNote +
                     " (fSource text, fTable text, fLast bigint, fRows bigint)");
      WriteNote(transaction);
      transaction.Commit();
    } else if (options_.anew) {
      data::Transaction transaction(target_);
      for (const store::Table& table : store::Tables()) {
        target_.Native(std::string("delete from ") + table.name);
      }
      target_.Native(std::string("delete from ") + kNote);
      WriteNote(transaction);
      transaction.Commit();
    } else {
      ReadNote();
    }
  }

  void RefuseRows() {
    for (const store::Table& table : store::Tables()) {
      if (data::CountOf(target_, table.name) == 0) continue;
      throw Error("The table " + std::string(table.name) +
                  " of the target holds rows already; a copy goes only into empty tables");
    }
  }

  void WriteNote(data::Transaction& transaction) {
    data::RowWriter& note = transaction.Into(kNote, {"fSource", "fTable", "fLast", "fRows"});
    for (const store::Table& table : store::Tables()) {
      note.Add({options_.source_name, table.name, std::monostate{}, int64_t{0}});
    }
  }

  void ReadNote() {
    data::Recordset note =
        target_.Native(std::string("select fSource,fTable,fLast,fRows from ") + kNote);
    for (; !note.Eof(); note.MoveNext()) {
      if (note.Text(0) != options_.source_name) {
        throw Error("The target holds an unfinished copy of " + note.Text(0));
      }
      Standing& standing = standings_[note.Text(1)];
      if (!note.IsNull(2)) standing.last = static_cast<int64_t>(note.Number(2));
      standing.rows = static_cast<int64_t>(note.Number(3));
      done_ += standing.rows;
    }
    report_.resumed = true;
  }

  void CopyRows(const store::Table& table) {
    Standing& standing = standings_[table.name];
    if (table.keys == store::Table::Keys::Text && standing.last) return;
    while (true) {
      const data::Recordset rows =
          ReadLot(source_, table, columns_.at(table.name), standing.last, options_.lot);
      if (rows.RecordCount() == 0) return;
      StoreLot(table, rows, standing);
      if (!LastKey(table, rows)) return;
    }
  }

  /// Stores rows and how far they bring the copy, both or neither.
  void StoreLot(const store::Table& table, const data::Recordset& rows, Standing& standing) {
    data::Transaction transaction(target_);
    const std::vector<std::string>& columns = columns_.at(table.name);
    data::RowWriter& writer = transaction.Into(table.name, {columns.begin(), columns.end()});
    const auto count = static_cast<size_t>(rows.RecordCount());
    std::vector<data::Cell> cells(columns.size());
    for (size_t row = 0; row < count; ++row) {
      for (size_t i = 0; i < cells.size(); ++i) {
        cells[i] = CellAt(rows.ColumnAt(static_cast<int>(i)), row);
      }
      AddRow(writer, cells, table, rows, row);
    }
    const Standing reached{LastKey(table, rows).value_or(1),
                           standing.rows + static_cast<int64_t>(count)};
    target_.Native(std::string("update ") + kNote + " set fLast=" + std::to_string(*reached.last) +
                   ",fRows=" + std::to_string(reached.rows) + " where fTable='" + table.name + "'");
    transaction.Commit();
    standing = reached;
    done_ += static_cast<int64_t>(count);
    if (progress_) progress_(done_, all_);
  }

  static void AddRow(data::RowWriter& writer, const std::vector<data::Cell>& cells,
                     const store::Table& table, const data::Recordset& rows, size_t row) {
    try {
      writer.AddRow(cells);
    } catch (const data::CellError& error) {
      const std::string key = rows.ColumnAt(rows.FieldIndex(table.key)).Text(row);
      throw Error(std::string(table.name) + ", " + table.key + " " + key + ": " + error.what());
    }
  }

  void KeepIds(const store::Table& table) {
    if (table.keys != store::Table::Keys::Given) return;
    const int64_t last = standings_[table.name].last.value_or(0);
    target_.GiveIdsAbove(table.name, std::max(source_.LastGivenId(table.name), last));
  }

  void Verify() {
    for (const store::Table& table : store::Tables()) {
      report_.tables.push_back(
          CompareTables(source_, target_, table, columns_.at(table.name), options_.lot));
    }
  }

  data::Store& source_;
  data::Store& target_;
  const Options& options_;
  const store::RowProgress& progress_;
  std::map<std::string, std::vector<std::string>> columns_;
  std::map<std::string, Standing> standings_;
  int64_t all_ = 0;
  int64_t done_ = 0;
  Report report_;
};

}  // namespace

Report CopyData(data::Store& source, data::Store& target, const Options& options,
                const store::RowProgress& progress) {
  RefuseEngine(source);
  RefuseEngine(target);
  return Copy(source, target, options, progress).Run();
}

}  // namespace qvzj::copy
