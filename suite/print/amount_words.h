#pragma once

#include <cstdint>
#include <string>

namespace qvzj::print {

/// From here on a double no longer holds the fen of an amount.
inline constexpr double kNoAmountInWords = 1e15;

/// An amount of yuan in Chinese capital numerals by the rules for payment documents, rounded to
/// the fen: 1409.50 is 壹仟肆佰零玖元伍角, 100000 is 壹拾万元整, 16409.02 is
/// 壹万陆仟肆佰零玖元零贰分. 整 closes whole yuan only; a 零 stands before the jiao when the yuan
/// end in 0. Negative amounts begin with 负. `language` 1 writes the traditional forms. Throws
/// OverflowError from kNoAmountInWords on.
std::string AmountInWords(double amount, int16_t language);

}  // namespace qvzj::print
