#include "suite/store/counter_index.h"

#include <algorithm>

#include "platform/basic/text.h"
#include "suite/store/tables.h"

namespace qvzj::store {
namespace {

bool HasLinks(data::Store& store) {
  const std::vector<std::string> columns = ColumnsOf(store, "tAccountDetail");
  return std::any_of(columns.begin(), columns.end(), [](const std::string& column) {
    return basic::EqualIgnoringCase(column, "fID2");
  });
}

}  // namespace

const char* const kCounterIndex =
    "create unique index if not exists iLedgerCounter on tAccountDetail (fID2)"
    " where fType1=1 and fID2>0";

std::vector<std::string> DoubledCounterEntries(data::Store& store) {
  std::vector<std::string> lines;
  if (!HasLinks(store)) return lines;
  const char* const list = store.Speaks() == data::Engine::Sqlite
                               ? "group_concat(fID,', ')"
                               : "string_agg(cast(fID as text),', ' order by fID)";
  data::Recordset rows = store.Native(std::string("select fID2,count(*),") + list +
                                      " from tAccountDetail where fType1=1 and fID2>0"
                                      " group by fID2 having count(*)>1 order by fID2");
  for (; !rows.Eof(); rows.MoveNext()) {
    lines.push_back("entry " + rows.Text(0) + " has " + rows.Text(1) +
                    " counter-entries: " + rows.Text(2));
  }
  return lines;
}

std::vector<std::string> GuardCounterEntries(data::Store& store) {
  std::vector<std::string> against = DoubledCounterEntries(store);
  if (against.empty()) store.Native(kCounterIndex);
  return against;
}

void UnguardCounterEntries(data::Store& store) {
  store.Native("drop index if exists iLedgerCounter");
}

}  // namespace qvzj::store
