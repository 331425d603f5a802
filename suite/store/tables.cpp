#include "suite/store/tables.h"

namespace qvzj {
namespace {

using Keys = CopyTable::Keys;

/// Texts by their bytes: the order that all engines have in common.
std::string ByteOrder(const data::Store& store) {
  return store.Speaks() == data::Engine::Sqlite ? " collate binary" : " collate \"C\"";
}

}  // namespace

std::span<const CopyTable> CopyTables() {
  static const std::vector<CopyTable> tables{
      {"Moneys", "MoneyCode", Keys::Text, {}},
      {"Employees", "employCode", Keys::Text, {}},
      {"tRsBasic", "fID", Keys::Given, {}},
      {"tJXC_InvSet", "fRowID", Keys::Chosen, {}},
      {"tSysFunc", "SerialNo", Keys::Chosen, {}},
      {"tAccounts", "fID", Keys::Chosen, {}},
      {"cards", "fID", Keys::Chosen, {}},
      {"tTaskList", "fID", Keys::Given, {}},
      {"tJXC_CkDj01", "fID", Keys::Given, {}},
      {"tJXC_CkDj_Bak01", "fID", Keys::Given, {}},
      {"tJXC_CkHt01", "fID", Keys::Given, {}},
      {"tAccountDetail", "fID", Keys::Given, {"fMoneyA", "fMoneyB"}},
  };
  return tables;
}

std::vector<std::string> ColumnsOf(data::Store& store, const CopyTable& table) {
  const data::Recordset none =
      store.Native("select * from " + std::string(table.name) + " where 1=0");
  std::vector<std::string> names;
  for (int field = 0; field < none.FieldCount(); ++field) names.push_back(none.FieldName(field));
  return names;
}

std::string Joined(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) {
    if (!text.empty()) text += ',';
    text += name;
  }
  return text;
}

data::Recordset ReadLot(data::Store& store, const CopyTable& table,
                        const std::vector<std::string>& columns, std::optional<int64_t> after,
                        int32_t lot) {
  const std::string key = table.key;
  const std::string all = "select " + Joined(columns) + " from " + table.name;
  if (table.keys == Keys::Text) return store.Native(all + " order by " + key + ByteOrder(store));
  const std::string behind = after ? " where " + key + ">" + std::to_string(*after) : "";
  return store.Native(all + behind + " order by " + key + " limit " + std::to_string(lot));
}

std::optional<int64_t> LastKey(const CopyTable& table, const data::Recordset& lot) {
  if (table.keys == Keys::Text) return std::nullopt;
  const auto last = static_cast<size_t>(lot.RecordCount() - 1);
  return static_cast<int64_t>(lot.ColumnAt(lot.FieldIndex(table.key)).Number(last));
}

}  // namespace qvzj
