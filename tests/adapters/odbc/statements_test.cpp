#include <fstream>

#include "adapters/odbc/odbc_session.h"
#include "platform/basic/errors.h"
#include "tests/adapters/odbc/server.h"

// The statements of the golden file on a real server.
namespace qvzj::test {
namespace {

/// Statements of the module, one of every kind, but for those that are refused before they are
/// translated.
std::vector<std::string> ModuleStatements() {
  constexpr std::string_view kModule = "module:   ";
  std::ifstream in(QV_SERVER_STATEMENTS);
  std::vector<std::string> statements;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with(kModule)) statements.push_back(line.substr(kModule.size()));
    if (line.starts_with("postgres: refused")) statements.pop_back();
  }
  return statements;
}

TEST(ServerStatementsOnPostgres, AreAllTaken) {
  QV_NEEDS_SERVER();
  const auto store = store::OpenServer(LoginTo(Server().MakeDatabase()), {});
  auto& session = static_cast<OdbcSession&>(*store);
  const std::vector<std::string> statements = ModuleStatements();
  EXPECT_GT(statements.size(), 70U);
  for (const std::string& statement : statements) {
    const dialect::Translation translation = session.Translate(statement);
    if (translation.added) continue;  // plans are made for reads and changes of rows alone
    try {
      session.Native("explain " + translation.text);
    } catch (const DataError& error) {
      ADD_FAILURE() << statement << "\n" << translation.text << "\n" << error.what();
    }
  }
}

}  // namespace
}  // namespace qvzj::test
