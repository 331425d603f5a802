#pragma once

#include <string>
#include <string_view>

#include "adapters/icu/ansi_codec.h"
#include "suite/import/import.h"

namespace qvzj::imports {

/// Makes texts of a file fit for the tables.
class Texts {
 public:
  explicit Texts(Report& report) : report_(report) {}

  /// Brings `text` into the form that the column may hold: ' becomes ’, because the module's
  /// statements cannot carry it, and in a text of one line every other control character a blank;
  /// both are counted. Answers why the text is refused, "" when it is not.
  std::string Fit(const Column& column, std::string& text);
  /// Begins a row: what was counted since the last Keep is forgotten.
  void BeginRow() { quoted_ = joined_ = 0; }
  /// The row is in: what was counted for it goes into the report.
  void Keep();

 private:
  Report& report_;
  int64_t quoted_ = 0;
  int64_t joined_ = 0;
  IcuAnsiCodec codec_;
};

}  // namespace qvzj::imports
