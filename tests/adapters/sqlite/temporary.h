#pragma once

#include <memory>
#include <string>

#include "adapters/sqlite/sqlite_session.h"
#include "suite/store/schema.h"
#include "tests/support/temporary_folder.h"

namespace qvzj::test {

/// A data folder with an empty data file that is gone with the object.
class TemporaryDatabase {
 public:
  TemporaryDatabase() {
    SqliteOptions options;
    options.create = true;
    store::CreateSchema(*OpenSqlite(File(), options));
  }

  std::string File() const { return (folder_.Path() / store::kDataFile).string(); }
  const std::filesystem::path& Folder() const { return folder_.Path(); }
  std::unique_ptr<SqliteSession> Open(const SqliteOptions& options = {}) const {
    return OpenSqlite(File(), options);
  }

 private:
  TemporaryFolder folder_;
};

}  // namespace qvzj::test
