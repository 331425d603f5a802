#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "suite/check_data.h"
#include "suite/demo.h"
#include "suite/place.h"
#include "suite/user_admin.h"

/// The commands of qvdb where one side is a database server.
namespace qvzj {

/// Reads a place; the password of a server comes from the variable QVDB_PASSWORD or is asked for.
Place PlaceWithPassword(const std::string& text, const AskPassword& ask);

/// Copies all tables and says how many rows of each.
void CopyPlace(const Place& source, const Place& target, const RowProgress& progress,
               std::ostream& out);

/// Makes the tables that are missing; the currencies go into an empty currency table.
void InitServer(const Place& server, const std::vector<std::string>& currencies);

/// Fills an empty server with made-up data.
void FillServer(const Place& server, const DemoOptions& options, const RowProgress& progress);

/// Looks for faults in a server's data, on a copy of it.
int64_t CheckServer(const Place& server, const RowProgress& progress,
                    const std::function<void(const Fault&)>& report);

}  // namespace qvzj
