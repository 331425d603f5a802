#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "adapters/dialect/schema.h"
#include "adapters/dialect/target.h"

namespace qvzj::dialect {

/// A column that a statement adds to a table.
struct AddedColumn {
  std::string table;
  std::string column;
};

/// What an engine gets for a statement.
struct Translation {
  std::string text;                  ///< the statement for the engine
  std::optional<AddedColumn> added;  ///< when the statement adds a column: already there is done
};

/// Translates one statement of either dialect (desktop or server) for an engine. What it means
/// stays the same on every engine: text comparisons and LIKE ignore ASCII case, `%` and `_` are
/// the wildcards, dates compare as dates whichever literal form wrote them, texts order as the
/// reader's language orders them and nulls come first.
/// Throws DataError for a statement that cannot be read, text after its end, and a date that is
/// none.
Translation Translate(std::string_view statement, const Target& target, const Schema& schema);

}  // namespace qvzj::dialect
