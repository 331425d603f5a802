#pragma once

#include <string>
#include <vector>

namespace qvzj::store {

enum class ServerKind {
  PostgreSql,   ///< PostgreSQL and servers that speak its protocol
  TransactSql,  ///< SQL Server and other servers of its protocol
};

/// What the host gives the connection component for a server.
struct ServerLogin {
  /// `host`, `host:port`, `host\instance`, the name of a configured data source, or a whole ODBC
  /// connection string.
  std::string address;
  std::string user;
  std::string password;
  std::string database;

  bool operator==(const ServerLogin&) const = default;
};

struct ServerOptions {
  ServerKind kind = ServerKind::PostgreSql;
  /// Name of the ODBC driver as the machine knows it; empty: the usual one of the kind.
  std::string driver;
  /// Refuses a connection that is not encrypted, also where a whole connection string would take
  /// one; otherwise encryption is used where it is offered.
  bool require_tls = false;
  /// True when the machine has a data source of that name.
  bool (*is_data_source)(const std::string& name) = nullptr;
};

/// The ODBC connection string for a login. What a whole connection string already says is kept.
std::string ConnectionString(const ServerLogin& login, const ServerOptions& options);

/// The passwords that a whole connection string holds, under either name that drivers know.
std::vector<std::string> PasswordsIn(const std::string& connection_string);

}  // namespace qvzj::store
