#pragma once

#include "platform/data/store.h"

namespace qvzj::store {

/// Lets a server look at the tables after many rows came in or went, so that its plans and counts
/// are right from the first statement on and not only when it finds the time by itself. Does
/// nothing on a data file, whose plans do not depend on it, and on servers whose language is not
/// PostgreSQL's. Not inside a transaction. Throws DataError.
void SettleTables(data::Store& store);

}  // namespace qvzj::store
