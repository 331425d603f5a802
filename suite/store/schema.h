#pragma once

#include <string>
#include <vector>

#include "platform/data/store.h"

namespace qvzj::store {

/// Name of the data file in a data folder.
inline constexpr const char* kDataFile = "qvjxc.db";

/// Makes the suite's tables and indexes that are not there yet; what is there stays as it is.
/// Texts compare without ASCII case, days are dates (in a data file texts yyyy-mm-dd), and the id
/// of a deleted ledger entry is never given again. Throws DataError, and on a server whose language
/// is not PostgreSQL's. The index on counter-entries (counter_index.h) is left out where rows stand
/// against it.
void CreateSchema(data::Store& store);

/// The statements that make the same tables and indexes on PostgreSQL, and the orders of texts,
/// each one alone; what is there stays as it is. Needs the right to create in the schema.
std::vector<std::string> PostgresSchema();

/// The same tables and indexes for T-SQL servers, where the tables are usually the host suite's.
/// Has not been run on one. Texts compare as the database's collation has it.
std::vector<std::string> TransactSqlSchema();

}  // namespace qvzj::store
