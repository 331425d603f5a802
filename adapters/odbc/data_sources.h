#pragma once

#include <string>

namespace qvzj {

/// True when the machine or the user has configured an ODBC data source of that name (ASCII case
/// ignored).
bool IsDataSource(const std::string& name);

}  // namespace qvzj
