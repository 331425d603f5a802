#include "suite/copy/lots.h"

namespace qvzj::copy {
namespace {

using Keys = store::Table::Keys;

/// Texts by their bytes: the order that all engines have in common.
std::string ByteOrder(const data::Store& store) {
  return store.Speaks() == data::Engine::Sqlite ? " collate binary" : " collate \"C\"";
}

}  // namespace

data::Recordset ReadLot(data::Store& store, const store::Table& table,
                        const std::vector<std::string>& columns, std::optional<int64_t> after,
                        int32_t lot) {
  const std::string key = table.key;
  const std::string all = "select " + store::Joined(columns) + " from " + table.name;
  if (table.keys == Keys::Text) return store.Native(all + " order by " + key + ByteOrder(store));
  const std::string behind = after ? " where " + key + ">" + std::to_string(*after) : "";
  return store.Native(all + behind + " order by " + key + " limit " + std::to_string(lot));
}

std::optional<int64_t> LastKey(const store::Table& table, const data::Recordset& lot) {
  if (table.keys == Keys::Text) return std::nullopt;
  const auto last = static_cast<size_t>(lot.RecordCount() - 1);
  return static_cast<int64_t>(lot.ColumnAt(lot.FieldIndex(table.key)).Number(last));
}

}  // namespace qvzj::copy
