#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qvzj::dialect {

/// The texts that begin with a stem, as a range of an order that compares the bytes of texts with
/// ASCII letters in lower case: first <= text < past.
struct StemRange {
  std::string first;
  std::optional<std::string> past;  ///< empty: no text lies behind the stem's
};

/// `stem` is UTF-8. Holds for a stem that ends in any character: the successor steps over the
/// places of A to Z, which compare as a to z, and over the surrogates, which no text holds.
StemRange RangeOfStem(std::string_view stem);

}  // namespace qvzj::dialect
