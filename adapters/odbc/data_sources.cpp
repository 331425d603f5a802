#include "adapters/odbc/data_sources.h"

#include <array>

#include "adapters/icu/utf16.h"
#include "adapters/odbc/odbc_handle.h"
#include "platform/basic/text.h"

namespace qvzj {

bool IsDataSource(const std::string& name) {
  const OdbcEnvironment environment(SQL_NULL_HANDLE);
  std::array<char16_t, 512> source{};
  std::array<char16_t, 512> driver{};
  SQLSMALLINT source_length = 0;
  SQLSMALLINT driver_length = 0;
  for (SQLUSMALLINT direction = SQL_FETCH_FIRST;; direction = SQL_FETCH_NEXT) {
    const SQLRETURN result =
        SQLDataSourcesW(environment.Get(), direction, reinterpret_cast<SQLWCHAR*>(source.data()),
                        static_cast<SQLSMALLINT>(source.size()), &source_length,
                        reinterpret_cast<SQLWCHAR*>(driver.data()),
                        static_cast<SQLSMALLINT>(driver.size()), &driver_length);
    if (!SQL_SUCCEEDED(result)) return false;
    std::string found;
    ToUtf8(source.data(), found);
    if (basic::EqualIgnoringCase(found, name)) return true;
  }
}

}  // namespace qvzj
