#include "platform/basic/errors.h"
#include "platform/data/details.h"
#include "suite/store/connections.h"

#ifdef QV_WITH_ODBC
#include "adapters/odbc/data_sources.h"
#include "adapters/odbc/odbc_session.h"
#endif

namespace qvzj::store {

#ifdef QV_WITH_ODBC

std::unique_ptr<data::Store> OpenServer(const ServerLogin& login,
                                        const ConnectionOptions& options) {
  ServerOptions server = options.server;
  if (!server.is_data_source) server.is_data_source = IsDataSource;
  OdbcOptions odbc;
  odbc.engine =
      server.kind == ServerKind::TransactSql ? ServerEngine::TransactSql : ServerEngine::PostgreSql;
  odbc.connection_string = ConnectionString(login, server);
  odbc.secrets = data::PasswordsIn(login.address);
  odbc.secrets.push_back(login.password);
  odbc.login_timeout = options.login_timeout;
  odbc.read_limit = options.read_limit;
  odbc.write_limit = options.write_limit;
  odbc.lock_timeout = options.busy_timeout;
  odbc.language = options.language;
  return std::make_unique<OdbcSession>(std::move(odbc));
}

#else

std::unique_ptr<data::Store> OpenServer(const ServerLogin&, const ConnectionOptions&) {
  throw DataError("This program was built without access to database servers");
}

#endif

}  // namespace qvzj::store
