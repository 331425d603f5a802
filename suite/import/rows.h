#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/data/store.h"
#include "suite/import/import.h"

namespace qvzj::imports {

/// Takes the rows of one import, each whole or not at all.
class Rows {
 public:
  virtual ~Rows() = default;
  /// Checks one record's fields and writes the row; answers why it is refused, "" when it is not.
  virtual std::string Take(const std::vector<std::string>& fields) = 0;
};

/// The rows of the kind that `options` names. All arguments must outlive the result.
std::unique_ptr<Rows> MakeRows(data::Transaction& transaction, const Options& options,
                               const Mapping& mapping, Report& report);

/// The rows of customers and money accounts.
std::unique_ptr<Rows> MakeRegisterRows(data::Transaction& transaction, const Options& options,
                                       const Mapping& mapping, Report& report);
/// The rows of the ledger.
std::unique_ptr<Rows> MakeEntryRows(data::Transaction& transaction, const Options& options,
                                    const Mapping& mapping, Report& report);

}  // namespace qvzj::imports
