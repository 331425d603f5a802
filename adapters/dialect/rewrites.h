#pragma once

#include <optional>

#include "adapters/dialect/scope.h"
#include "adapters/dialect/target.h"
#include "adapters/dialect/token.h"
#include "adapters/dialect/translate.h"

/// The single steps of the translation, in the order in which Translate runs them. Each takes the
/// tokens as the step before left them; pieces that a step has finished are Raw tokens.
namespace qvzj::dialect {

/// ALTER TABLE … ADD COLUMN …; empty when the statement is another one.
std::optional<Translation> TranslateAddedColumn(const Tokens& tokens, const Target& target);

/// `X a Right Join Y b On c` becomes `Y b Left Join X a On c`, so that the kept table is the one
/// an engine walks and the other is looked up through its key.
void SwapRightJoin(Tokens& tokens);

/// A ledger of old has no column `fID2` before its first opening in the customer mode adds it:
/// until then it is read as null, and a statement that writes no link (0 or null) leaves it out.
/// Conditions on it fail as they do without the column, which is how that opening notices.
void RewriteMissingLink(Tokens& tokens, const Schema& schema);

/// Dates between "#", and texts compared with or stored into a date column.
void RewriteDates(Tokens& tokens, const Scope& scope, const Target& target);

/// `select max(substring(c,L+1,n)) … where left(c,L)='stem' and …` becomes the first such value
/// in descending order of c, which an index finds without walking the whole stem.
void RewriteGreatestUnderStem(Tokens& tokens, const Scope& scope, const Target& target);
/// `left(c,n)='stem'` with a stem of n characters becomes a range of c.
void RewriteStems(Tokens& tokens, const Scope& scope, const Target& target);

/// mid, substring and left with any length, IsNumeric, and "&".
void RewriteFunctions(Tokens& tokens, const Target& target);
void RewriteConcatenation(Tokens& tokens, const Target& target);

/// Text comparisons and LIKE without regard to ASCII case.
void RewriteComparisons(Tokens& tokens, const Scope& scope, const Target& target);

/// Order of texts and of nulls.
void RewriteOrder(Tokens& tokens, const Scope& scope, const Target& target);

/// [names].
void RewriteNames(Tokens& tokens, const Target& target);

}  // namespace qvzj::dialect
