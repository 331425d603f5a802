#include "suite/place.h"

#include <filesystem>

#include "adapters/sqlite/sqlite_session.h"
#include "suite/arguments.h"
#include "suite/schema.h"

namespace qvzj {
namespace {

namespace fs = std::filesystem;

constexpr const char* kScheme = "postgres://";

NativeStatements OpenFile(const std::string& folder, bool make) {
  SqliteOptions options;
  options.create = make;
  if (make) fs::create_directories(folder);
  const std::shared_ptr<SqliteSession> session =
      OpenSqlite((fs::path(folder) / kDataFile).string(), options);
  if (make) CreateSchema(*session);
  return [session](std::string_view sql) { return session->Native(sql); };
}

}  // namespace

std::string Place::Name() const {
  if (!OnServer()) return folder;
  return kScheme + server.user + "@" + server.address + "/" + server.database;
}

Place PlaceOf(const std::string& text) {
  if (!text.starts_with(kScheme)) return {text, {}};
  const std::string rest = text.substr(std::string(kScheme).size());
  const size_t at = rest.find('@');
  const size_t slash = rest.rfind('/');
  if (at == std::string::npos || slash == std::string::npos || slash < at) {
    throw UsageError("a server is written postgres://USER@HOST[:PORT]/DATABASE, not " + text);
  }
  Place place;
  place.server.user = rest.substr(0, at);
  place.server.address = rest.substr(at + 1, slash - at - 1);
  place.server.database = rest.substr(slash + 1);
  const bool complete =
      !place.server.user.empty() && !place.server.address.empty() && !place.server.database.empty();
  if (!complete) throw UsageError("user, host or database is missing in " + text);
  if (place.server.user.find(':') != std::string::npos) {
    throw UsageError("the password does not belong into the command line");
  }
  return place;
}

OpenPlace OpenAt(const Place& place, bool make) {
  OpenPlace open{place.Name(), place.OnServer(), {}};
  if (!place.OnServer()) {
    open.run = OpenFile(place.folder, make);
    return open;
  }
  open.run = OpenNativeServer(place.server, {});
  if (make) {
    for (const std::string& statement : PostgresSchema()) open.run(statement);
  }
  return open;
}

}  // namespace qvzj
