#include "tests/adapters/contract/contract.h"
#include "tests/adapters/sqlite/temporary.h"

namespace qvzj::test {
namespace {

class SqliteContractDatabase : public ContractDatabase {
 public:
  std::unique_ptr<data::Session> Open() override { return file_.Open(); }

 private:
  TemporaryDatabase file_;
};

ContractEngine Sqlite(const char* name, bool desktop) {
  return {name, desktop, [] { return std::make_unique<SqliteContractDatabase>(); }};
}

INSTANTIATE_TEST_SUITE_P(Sqlite, SessionContract,
                         testing::Values(Sqlite("Desktop", true), Sqlite("Server", false)),
                         [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace qvzj::test
