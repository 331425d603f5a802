#include "suite/store/data_place.h"

#include <filesystem>

#include "adapters/sqlite/sqlite_session.h"
#include "adapters/system/private_files.h"
#include "platform/data/details.h"
#include "suite/store/connections.h"
#include "suite/store/schema.h"

namespace qvzj::store {
namespace {

namespace fs = std::filesystem;

std::unique_ptr<data::Store> OpenPlaceOnServer(const DataPlace& place) {
  ConnectionOptions options;
  options.server = place.server;
  return OpenServer(place.login, options);
}

std::unique_ptr<data::Store> OpenOrMakeFile(const DataPlace& place) {
  try {
    MakePrivateFolder(place.folder);
  } catch (const fs::filesystem_error& error) {
    throw Error("The folder " + place.folder + " cannot be made: " + error.code().message());
  }
  SqliteOptions options;
  options.create = true;
  auto store = OpenSqlite(place.Name(), options);
  CreateSchema(*store);
  return store;
}

}  // namespace

std::string DataPlace::Name() const {
  if (!folder.empty()) return (fs::path(folder) / kDataFile).string();
  const bool whole = login.address.find('=') != std::string::npos;
  const std::string server = whole ? "the server" : data::WithoutPasswords(login.address);
  return login.database.empty() ? server : login.database + " on " + server;
}

std::unique_ptr<data::Store> OpenPlace(const DataPlace& place) {
  if (place.folder.empty()) return OpenPlaceOnServer(place);
  return OpenSqlite(place.Name(), {});
}

std::unique_ptr<data::Store> OpenOrMakePlace(const DataPlace& place) {
  if (!place.folder.empty()) return OpenOrMakeFile(place);
  auto store = OpenPlaceOnServer(place);
  // Who may only work with the tables of a server need not be allowed to make them.
  if (!HasTable(*store, "tAccountDetail")) CreateSchema(*store);
  return store;
}

}  // namespace qvzj::store
