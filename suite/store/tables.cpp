#include "suite/store/tables.h"

namespace qvzj::store {

std::span<const Table> Tables() {
  using Keys = Table::Keys;
  static const std::vector<Table> tables{
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

std::vector<std::string> ColumnsOf(data::Store& store, const std::string& table) {
  const data::Recordset none = store.Native("select * from " + table + " where 1=0");
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

}  // namespace qvzj::store
