#include "platform/basic/errors.h"
#include "suite/connections.h"

#ifdef QV_WITH_ODBC
#include "adapters/odbc/data_sources.h"
#include "adapters/odbc/odbc_session.h"
#endif

namespace qvzj {

#ifdef QV_WITH_ODBC

namespace {

std::unique_ptr<OdbcSession> OpenOdbc(const ServerLogin& login, const ConnectionOptions& options) {
  ServerOptions server = options.server;
  if (!server.is_data_source) server.is_data_source = IsDataSource;
  OdbcOptions odbc;
  odbc.engine =
      server.kind == ServerKind::TransactSql ? ServerEngine::TransactSql : ServerEngine::PostgreSql;
  odbc.connection_string = ConnectionString(login, server);
  odbc.secrets = {login.password};
  odbc.login_timeout = options.login_timeout;
  odbc.statement_timeout = options.statement_timeout;
  odbc.language = options.language;
  return std::make_unique<OdbcSession>(std::move(odbc));
}

}  // namespace

std::unique_ptr<data::Session> OpenServer(const ServerLogin& login,
                                          const ConnectionOptions& options) {
  return OpenOdbc(login, options);
}

NativeStatements OpenNativeServer(const ServerLogin& login, const ConnectionOptions& options) {
  const std::shared_ptr<OdbcSession> session = OpenOdbc(login, options);
  return [session](std::string_view sql) { return session->Native(sql); };
}

#else

namespace {

constexpr const char* kNoServers = "This program was built without access to database servers";

}  // namespace

std::unique_ptr<data::Session> OpenServer(const ServerLogin&, const ConnectionOptions&) {
  throw DataError(kNoServers);
}

NativeStatements OpenNativeServer(const ServerLogin&, const ConnectionOptions&) {
  throw DataError(kNoServers);
}

#endif

}  // namespace qvzj
