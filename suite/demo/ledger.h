#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/data/store.h"
#include "suite/demo/demo.h"
#include "suite/demo/dice.h"

namespace qvzj::demo_data {

struct Currency {
  const char* code;
  double rate;
};
/// Currencies of the demo data; the first is the local one.
inline constexpr Currency kCurrencies[] = {{"RMB", 1.0}, {"USD", 7.1234}, {"HKD", 0.9156}};

struct Account {
  int32_t id;
  size_t currency;  ///< index in kCurrencies
};

struct Customer {
  int32_t id;
  int32_t type;  ///< 0 both, 1 supplier, 2 buyer, 3 agent
  size_t currency;
  std::string name;
};

/// The registers that the ledger's entries refer to.
struct Registers {
  std::vector<Account> accounts;
  std::vector<Customer> customers;
  std::vector<std::string> staff;
};

/// Digits of the counter in voucher numbers, enough for the busiest month.
int NumberWidth(const Options& options);

/// Writes the ledger in the order of its days, and warehouse documents for some of its entries.
void WriteLedger(data::Transaction& transaction, const Options& options, const Registers& registers,
                 Dice& dice, const store::RowProgress& progress);

}  // namespace qvzj::demo_data
