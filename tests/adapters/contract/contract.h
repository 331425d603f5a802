#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>

#include "platform/data/connection.h"

namespace qvzj::test {

/// A database of its own with the suite's empty tables, gone with the object.
class ContractDatabase {
 public:
  virtual ~ContractDatabase() = default;
  /// A new session as the connection component would open it, texts ordered by pinyin.
  virtual std::unique_ptr<data::Session> Open() = 0;
};

struct ContractEngine {
  std::string name;  ///< letters only
  /// True when statements come in the desktop dialect, false for the server dialect.
  bool desktop;
  std::function<std::unique_ptr<ContractDatabase>()> make;
  /// Why the engine is not there, "" when it is; the tests are then skipped.
  std::function<std::string()> missing = [] { return std::string(); };
};

inline void PrintTo(const ContractEngine& engine, std::ostream* out) { *out << engine.name; }

class SessionContract : public testing::TestWithParam<ContractEngine> {
 protected:
  void SetUp() override;
  /// Runs a statement that answers no rows.
  void Do(const std::string& statement) { session->Execute(statement); }
  data::Recordset Open(const std::string& statement) { return session->Query(statement); }
  /// The first column of all rows, joined by "|"; null is "NULL".
  std::string Column(const std::string& statement);
  /// A date literal of the dialect in force.
  std::string Date(const std::string& month_day_year) const;
  /// Adds a ledger entry of kind 0 with direction 1 and amounts 100 and 30.5.
  void AddEntry(int customer, const std::string& date, const std::string& number);
  void AddCustomer(int id, const std::string& code, const std::string& name);
  /// The statement of the number generator for a stem and a counter width.
  std::string NextNumber(const std::string& stem, int width) const;

  std::unique_ptr<ContractDatabase> database;
  std::unique_ptr<data::Session> session;
};

}  // namespace qvzj::test
