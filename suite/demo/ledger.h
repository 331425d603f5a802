#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/data/store.h"
#include "suite/demo/demo.h"
#include "suite/demo/dice.h"

namespace qvzj {

struct DemoCurrency {
  const char* code;
  double rate;
};
/// Currencies of the demo data; the first is the local one.
inline constexpr DemoCurrency kDemoCurrencies[] = {{"RMB", 1.0}, {"USD", 7.1234}, {"HKD", 0.9156}};

struct DemoAccount {
  int32_t id;
  size_t currency;  ///< index in kDemoCurrencies
};

struct DemoCustomer {
  int32_t id;
  int32_t type;  ///< 0 both, 1 supplier, 2 buyer, 3 agent
  size_t currency;
  std::string name;
};

/// The registers that the ledger's entries refer to.
struct DemoRegisters {
  std::vector<DemoAccount> accounts;
  std::vector<DemoCustomer> customers;
  std::vector<std::string> staff;
};

/// Digits of the counter in voucher numbers, enough for the busiest month.
int DemoNumberWidth(const DemoOptions& options);

/// Writes the ledger in the order of its days, and warehouse documents for some of its entries.
void WriteDemoLedger(data::Transaction& transaction, const DemoOptions& options,
                     const DemoRegisters& registers, Dice& dice, const RowProgress& progress);

}  // namespace qvzj
