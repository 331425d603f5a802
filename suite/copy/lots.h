#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/data/store.h"
#include "suite/store/tables.h"

namespace qvzj::copy {

/// Reads the next `lot` rows behind the key `after`, from the first when it is empty, in the order
/// of the keys; all rows of a table whose keys are texts.
data::Recordset ReadLot(data::Store& store, const store::Table& table,
                        const std::vector<std::string>& columns, std::optional<int64_t> after,
                        int32_t lot);

/// Key of the last row of a lot that holds rows; empty where no lot follows, the keys being texts.
std::optional<int64_t> LastKey(const store::Table& table, const data::Recordset& lot);

}  // namespace qvzj::copy
