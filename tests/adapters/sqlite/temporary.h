#pragma once

#include <stdlib.h>

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include "adapters/sqlite/sqlite_session.h"
#include "suite/schema.h"

namespace qvzj::test {

/// A data folder with an empty data file that is gone with the object.
class TemporaryDatabase {
 public:
  TemporaryDatabase() {
    std::string pattern = (std::filesystem::temp_directory_path() / "qvzj-db-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("cannot make a temporary folder");
    folder_ = pattern;
    SqliteOptions options;
    options.create = true;
    CreateSchema(*OpenSqlite(File(), options));
  }
  ~TemporaryDatabase() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  TemporaryDatabase(const TemporaryDatabase&) = delete;
  TemporaryDatabase& operator=(const TemporaryDatabase&) = delete;

  std::string File() const { return (folder_ / kDataFile).string(); }
  const std::filesystem::path& Folder() const { return folder_; }
  std::unique_ptr<SqliteSession> Open(const SqliteOptions& options = {}) const {
    return OpenSqlite(File(), options);
  }

 private:
  std::filesystem::path folder_;
};

}  // namespace qvzj::test
