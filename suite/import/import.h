#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "suite/import/field_values.h"
#include "suite/import/mapping.h"
#include "suite/store/progress.h"

namespace qvzj::data {
class Store;
}

namespace qvzj::imports {

/// What is imported, and how the file is to be understood.
struct Options {
  Kind kind = Kind::Customers;
  int16_t ledger = 0;  ///< entries: 0 customers, 1 money accounts
  char separator = ',';
  DateOrder dates = DateOrder::Unknown;
  std::vector<ColumnOption> map;      ///< column, header
  std::vector<ColumnOption> set;      ///< column, text with {header} in it
  std::vector<ColumnOption> presets;  ///< column, text for an empty value
  bool once = false;                  ///< a code that is there is passed over, not refused
  bool add_currencies = false;        ///< an unknown currency is added, not refused
  bool dry_run = false;               ///< everything is tried and nothing kept
};

/// A row of the file that was not imported.
struct Refusal {
  int64_t line = 0;
  std::string reason;
};

struct Report {
  std::string encoding;  ///< what the file was written in
  int64_t rows = 0;      ///< records after the header
  int64_t written = 0;
  int64_t passed_over = 0;  ///< with `once`: rows whose code was there
  int64_t refused = 0;
  int64_t quoted_texts = 0;             ///< texts in which ' became ’
  int64_t joined_texts = 0;             ///< texts in which line breaks or tabs became blanks
  std::vector<std::string> currencies;  ///< added
};

/// Imports a CSV file whose bytes are given: UTF-8 or GB18030, first record the header. A row is
/// imported whole or refused whole with its line and reason; the file is imported in one
/// transaction, so that an import that breaks off leaves nothing behind. Values are bound, never
/// pasted into statements. Throws Error when the file as a whole cannot be understood, DataError
/// when the engine fails.
Report ImportCsv(data::Store& store, std::string_view bytes, const Options& options,
                 const std::function<void(const Refusal&)>& refused,
                 const store::RowProgress& progress);

}  // namespace qvzj::imports
