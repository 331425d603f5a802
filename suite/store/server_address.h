#pragma once

#include <string>

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
  /// File of the root certificate that the server's own must come from; empty: none is asked for.
  /// Asks for encryption and for the server's name in its certificate too; a whole connection
  /// string may leave the name out (verify-ca). PostgreSQL only: servers of the other protocol are
  /// checked against the machine's own roots.
  std::string root_certificate;
  /// True when the machine has a data source of that name.
  bool (*is_data_source)(const std::string& name) = nullptr;
};

/// The ODBC connection string for a login. What a whole connection string already says is kept.
/// User, password and database may hold any characters. Throws DataError for what the driver cannot
/// be told: a root certificate outside PostgreSQL, or a data source with a user or a database whose
/// name has a semicolon, begins with a brace or has blanks around it.
std::string ConnectionString(const ServerLogin& login, const ServerOptions& options);

}  // namespace qvzj::store
