#pragma once

#include <string>

#include "tests/fuzz/fuzz.h"

namespace qvzj::fuzz {

/// A text that is likely to be taken wrongly: quotes, ends of numbers' ranges, broken UTF-8, a
/// piece of a statement, nothing at all. Never holds a slash, so that no path leads elsewhere.
std::string NastyText(Dice& dice);
/// A number as text, most often one at the end of a range or beyond.
std::string NastyNumber(Dice& dice);
/// `text` with a few bytes or pieces of it dropped, doubled, changed or put in.
std::string Mangle(Dice& dice, std::string text);

}  // namespace qvzj::fuzz
