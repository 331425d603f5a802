#include "suite/store/settle.h"

#include "suite/store/tables.h"

namespace qvzj::store {

void SettleTables(data::Store& store) {
  if (store.Speaks() != data::Engine::PostgreSql) return;
  std::vector<std::string> names;
  for (const Table& table : Tables()) names.emplace_back(table.name);
  // Counting from an index alone needs what vacuum notes about the pages.
  store.Native("vacuum analyze " + Joined(names));
}

}  // namespace qvzj::store
