#include "suite/copy_data.h"

#include <array>
#include <cstdio>

#include "platform/basic/errors.h"
#include "platform/basic/text.h"

namespace qvzj {
namespace {

using basic::Column;

struct Table {
  const char* name;
  const char* key;
  /// The engine gives the key itself when a row is added without one.
  bool counted;
  bool text_key = false;
};

constexpr std::array<Table, 11> kTables{{
    {"cards", "fID", false},
    {"tAccounts", "fID", false},
    {"Moneys", "MoneyCode", false, true},
    {"Employees", "employCode", false, true},
    {"tRsBasic", "fID", true},
    {"tJXC_InvSet", "fRowID", false},
    {"tSysFunc", "SerialNo", false},
    {"tTaskList", "fID", true},
    {"tJXC_CkDj01", "fID", true},
    {"tJXC_CkDj_Bak01", "fID", true},
    {"tJXC_CkHt01", "fID", true},
}};
constexpr Table kLedger{"tAccountDetail", "fID", true};

/// Rows that are read and written at once.
constexpr int kBatch = 1000;
/// A table in the target that stands as long as the copy is not complete.
constexpr const char* kMark = "qvdb_copy";

std::string Quoted(std::string_view text) { return "'" + basic::Replace(text, "'", "''") + "'"; }

/// A value as both engines write it.
std::string Literal(const Column& column, size_t row) {
  if (column.IsNull(row)) return "null";
  if (column.GetKind() == Column::Kind::Real) {
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%.17g", column.Number(row));
    return text.data();
  }
  if (column.GetKind() == Column::Kind::Integer) return column.Text(row);
  return Quoted(column.Text(row));
}

std::string Joined(const std::vector<std::string>& words) {
  std::string joined;
  for (const std::string& word : words) joined += (joined.empty() ? "" : ",") + word;
  return joined;
}

class Copier {
 public:
  Copier(const OpenPlace& source, const OpenPlace& target, const RowProgress& progress)
      : source_(source), target_(target), progress_(progress) {}

  std::vector<CopiedTable> Run() {
    Begin();
    std::vector<Table> tables(kTables.begin(), kTables.end());
    tables.push_back(kLedger);
    for (const Table& table : tables) all_ += Count(source_, table.name);
    std::vector<CopiedTable> copied;
    for (const Table& table : tables) {
      CopyTable(table);
      copied.push_back({table.name, Compare(table)});
    }
    target_.run(std::string("drop table ") + kMark);
    return copied;
  }

 private:
  static int64_t Count(const OpenPlace& place, const std::string& table) {
    return static_cast<int64_t>(place.run("select count(*) from " + table).Number(0));
  }

  /// Makes sure that the target is empty or holds the beginning of a copy of this source.
  void Begin() {
    std::string copied_from;
    try {
      data::Recordset mark = target_.run(std::string("select source from ") + kMark);
      if (!mark.Eof()) copied_from = mark.Text(0);
    } catch (const DataError&) {
      // No copy was begun here.
    }
    if (!copied_from.empty()) {
      if (copied_from == source_.name) return;
      throw DataError(target_.name + " holds the beginning of a copy of " + copied_from);
    }
    for (const Table& table : kTables) RequireEmpty(table.name);
    RequireEmpty(kLedger.name);
    target_.run(std::string("create table if not exists ") + kMark + " (source text)");
    target_.run(std::string("insert into ") + kMark + " values (" + Quoted(source_.name) + ")");
  }

  void RequireEmpty(const std::string& table) {
    if (Count(target_, table) > 0) {
      throw DataError("the table " + table + " of " + target_.name + " is not empty");
    }
  }

  static std::vector<std::string> ColumnsOf(const OpenPlace& place, const std::string& table) {
    data::Recordset none = place.run("select * from " + table + " where 1=0");
    std::vector<std::string> names;
    for (int i = 0; i < none.FieldCount(); ++i) names.push_back(none.FieldName(i));
    return names;
  }

  void CopyTable(const Table& table) {
    const std::vector<std::string> columns = ColumnsOf(source_, table.name);
    const std::string names = Joined(columns);
    // Fails before the first row when the target lacks a column.
    target_.run("select " + names + " from " + table.name + " where 1=0");
    // The target was filled in the order of the keys; what it holds is not copied again.
    data::Recordset greatest =
        target_.run(std::string("select ") + table.key + " from " + table.name + " order by " +
                    OrderKey(target_, table) + " desc limit 1");
    std::string after = greatest.Eof() ? "" : Literal(greatest.ColumnAt(0), 0);
    done_ += Count(target_, table.name);
    while (true) {
      data::Recordset rows = source_.run(Batch(source_, table, names, after));
      if (rows.Eof()) break;
      Write(table, names, rows);
      done_ += rows.RecordCount();
      if (progress_) progress_(done_, all_);
      after = LastKey(table, rows);
    }
    if (table.counted) KeepCounting(table);
  }

  /// The next rows after the key `after`, from the first when it is empty.
  static std::string Batch(const OpenPlace& place, const Table& table, const std::string& names,
                           const std::string& after) {
    const std::string key = OrderKey(place, table);
    return "select " + names + " from " + table.name +
           (after.empty() ? "" : " where " + key + ">" + after) + " order by " + key + " limit " +
           std::to_string(kBatch);
  }

  static std::string LastKey(const Table& table, const data::Recordset& rows) {
    const Column& keys = rows.ColumnAt(rows.FieldIndex(table.key));
    return Literal(keys, keys.Size() - 1);
  }

  /// The key in an order that is the same on every engine: by bytes.
  static std::string OrderKey(const OpenPlace& place, const Table& table) {
    if (!table.text_key) return table.key;
    return std::string(table.key) + (place.on_server ? " collate \"C\"" : " collate binary");
  }

  void Write(const Table& table, const std::string& names, const data::Recordset& rows) {
    std::string sql = std::string("insert into ") + table.name + " (" + names + ") values ";
    for (size_t row = 0; row < static_cast<size_t>(rows.RecordCount()); ++row) {
      sql += row == 0 ? "(" : ",(";
      for (int field = 0; field < rows.FieldCount(); ++field) {
        if (field > 0) sql += ',';
        sql += Literal(rows.ColumnAt(field), row);
      }
      sql += ')';
    }
    target_.run(sql);
  }

  /// The greatest id that the table has ever given.
  static std::string LastId(const OpenPlace& place, const Table& table) {
    if (!place.on_server) {
      data::Recordset counter =
          place.run(std::string("select seq from sqlite_sequence where name='") + table.name + "'");
      return counter.Eof() ? "0" : counter.Text(0);
    }
    const std::string lower = basic::Lower(table.name);
    data::Recordset counter =
        place.run("select coalesce(pg_sequence_last_value(pg_get_serial_sequence('" + lower +
                  "','" + basic::Lower(table.key) + "')),0)");
    return counter.Text(0);
  }

  void KeepCounting(const Table& table) {
    const std::string last = LastId(source_, table);
    if (last == "0") return;
    if (target_.on_server) {
      target_.run("select setval(pg_get_serial_sequence('" + basic::Lower(table.name) + "','" +
                  basic::Lower(table.key) + "')," + last + ")");
      return;
    }
    target_.run(std::string("delete from sqlite_sequence where name='") + table.name + "'");
    target_.run(std::string("insert into sqlite_sequence (name,seq) values ('") + table.name +
                "'," + last + ")");
  }

  /// Reads both ends once more and compares them value by value; answers the number of rows.
  int64_t Compare(const Table& table) {
    const std::string names = Joined(ColumnsOf(source_, table.name));
    int64_t rows = 0;
    std::string after;
    while (true) {
      data::Recordset wanted = source_.run(Batch(source_, table, names, after));
      data::Recordset found = target_.run(Batch(target_, table, names, after));
      if (wanted.RecordCount() != found.RecordCount()) Differ(table, "number of rows");
      if (wanted.Eof()) return rows;
      for (int field = 0; field < wanted.FieldCount(); ++field) {
        CompareColumn(table, wanted.FieldName(field), wanted.ColumnAt(field),
                      found.ColumnAt(field));
      }
      rows += wanted.RecordCount();
      after = LastKey(table, wanted);
    }
  }

  void CompareColumn(const Table& table, const std::string& name, const Column& wanted,
                     const Column& found) const {
    for (size_t row = 0; row < wanted.Size(); ++row) {
      if (Literal(wanted, row) != Literal(found, row)) {
        Differ(table, name + " (" + Literal(wanted, row) + " and " + Literal(found, row) + ")");
      }
    }
  }

  [[noreturn]] void Differ(const Table& table, const std::string& what) const {
    throw DataError(source_.name + " and " + target_.name + " differ in " + table.name + ": " +
                    what);
  }

  const OpenPlace& source_;
  const OpenPlace& target_;
  const RowProgress& progress_;
  int64_t done_ = 0;
  int64_t all_ = 0;
};

}  // namespace

std::vector<CopiedTable> CopyData(const OpenPlace& source, const OpenPlace& target,
                                  const RowProgress& progress) {
  return Copier(source, target, progress).Run();
}

}  // namespace qvzj
