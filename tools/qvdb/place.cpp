#include "tools/qvdb/place.h"

#include <cstdlib>
#include <filesystem>
#include <utility>

namespace qvzj::qvdb {
namespace {

store::ServerKind EngineOf(const std::string& name) {
  if (name == "postgresql") return store::ServerKind::PostgreSql;
  if (name == "tsql") return store::ServerKind::TransactSql;
  throw UsageError("--engine needs postgresql or tsql, not " + name);
}

}  // namespace

Names WithServer(Names own) {
  own.insert(own.end(),
             {"--user", "--password", "--database", "--engine", "--driver", "--root-certificate"});
  return own;
}

Names WithPlace(Names own) {
  own.insert(own.end(), {"--data", "--server"});
  return WithServer(std::move(own));
}

store::DataPlace ServerPlace(const std::string& address, const Arguments& arguments,
                             const Streams& streams) {
  store::DataPlace place;
  place.login = {address, arguments.Text("--user"), arguments.Text("--password"),
                 arguments.Text("--database")};
  const char* const set = std::getenv("QVDB_PASSWORD");
  if (set && !arguments.Has("--password")) place.login.password = set;
  if (place.login.password == "-") place.login.password = streams.ask_password("Password: ");
  place.server.kind = EngineOf(arguments.Text("--engine", "postgresql"));
  place.server.driver = arguments.Text("--driver");
  place.server.require_tls = arguments.Has(kRequireTls);
  place.server.root_certificate = arguments.Text("--root-certificate");
  return place;
}

store::DataPlace FolderPlace(const std::string& folder) {
  store::DataPlace place;
  place.folder = folder;
  return place;
}

store::DataPlace PlaceOf(const Arguments& arguments, const Streams& streams) {
  if (arguments.Has("--server")) {
    if (arguments.Has("--data")) throw UsageError("--data and --server exclude each other");
    return ServerPlace(arguments.Text("--server"), arguments, streams);
  }
  for (const std::string_view option : WithServer({})) {
    if (arguments.Has(option)) throw UsageError(std::string(option) + " needs --server");
  }
  return FolderPlace(arguments.Text("--data", DefaultDataFolder()));
}

void RefuseWords(const Arguments& arguments) {
  if (!arguments.Words().empty()) throw UsageError("unexpected " + arguments.Words().front());
}

std::string DefaultDataFolder() {
  const char* data_home = std::getenv("XDG_DATA_HOME");
  if (data_home && *data_home) return (std::filesystem::path(data_home) / "qvzj").string();
  const char* home = std::getenv("HOME");
  return (std::filesystem::path(home ? home : ".") / ".local/share/qvzj").string();
}

}  // namespace qvzj::qvdb
