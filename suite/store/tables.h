#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/data/store.h"

namespace qvzj::store {

/// A table of the suite, as what goes over all of them has to know it.
struct Table {
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
std::span<const Table> Tables();

/// Names of a table's columns as the engine writes them. Throws DataError when there is none.
std::vector<std::string> ColumnsOf(data::Store& store, const std::string& table);

/// "a,b,c".
std::string Joined(const std::vector<std::string>& names);

}  // namespace qvzj::store
