#include "tests/adapters/contract/contract.h"
#include "tests/adapters/odbc/server.h"

namespace qvzj::test {
namespace {

class PostgresContractDatabase : public ContractDatabase {
 public:
  std::unique_ptr<data::Session> Open() override { return store::OpenServer(LoginTo(name_), {}); }

 private:
  std::string name_ = Server().MakeDatabase();
};

ContractEngine Postgres() {
  return {"Postgres", false, [] { return std::make_unique<PostgresContractDatabase>(); },
          PrivatePostgres::Missing};
}

INSTANTIATE_TEST_SUITE_P(Odbc, SessionContract, testing::Values(Postgres()),
                         [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace qvzj::test
