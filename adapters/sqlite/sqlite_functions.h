#pragma once

struct sqlite3;

namespace qvzj {

/// Names of the collations that RegisterFunctions adds; a statement orders texts by them. They
/// are never part of a stored schema, so that every SQLite tool can open a data file.
inline constexpr const char* kPinyinCollation = "qv_pinyin";
inline constexpr const char* kStrokeCollation = "qv_stroke";

/// Adds what the module's statements need and SQLite lacks: isnumeric(text) by the module's rule
/// and the Chinese orders. Throws DataError.
void RegisterFunctions(sqlite3* database);

}  // namespace qvzj
