#pragma once

#include <optional>
#include <string>
#include <vector>

namespace qvzj::data {

class Recordset;

/// The fields of one row as texts that compare: equal texts are equal values on every engine, and
/// no value (null) is another thing than an empty text. Empty when there is no row.
using RowTexts = std::vector<std::optional<std::string>>;

/// The row on which the record set stands; empty behind the last one.
RowTexts TextsOfRow(const Recordset& rows);

}  // namespace qvzj::data
