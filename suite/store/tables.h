#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/data/store.h"

namespace qvzj {

/// What a copy has to know about a table of the suite.
struct CopyTable {
  enum class Keys {
    Given,   ///< numbers that the engine gives
    Chosen,  ///< numbers that programs choose
    Text,    ///< texts; such a table is short and read at once
  };
  const char* name;
  const char* key;  ///< unique, and orders the rows
  Keys keys;
  std::vector<std::string> amounts;  ///< columns whose sums are told
};

/// All tables of the suite.
std::span<const CopyTable> CopyTables();

/// Names of a table's columns as the engine writes them. Throws DataError when there is none.
std::vector<std::string> ColumnsOf(data::Store& store, const CopyTable& table);

/// "a,b,c".
std::string Joined(const std::vector<std::string>& names);

/// Reads the next `lot` rows behind the key `after`, from the first when it is empty, in the order
/// of the keys; all rows of a table whose keys are texts.
data::Recordset ReadLot(data::Store& store, const CopyTable& table,
                        const std::vector<std::string>& columns, std::optional<int64_t> after,
                        int32_t lot);

/// Key of the last row of a lot that holds rows; empty where no lot follows, the keys being texts.
std::optional<int64_t> LastKey(const CopyTable& table, const data::Recordset& lot);

}  // namespace qvzj
