#include "adapters/dialect/translate.h"

#include "adapters/dialect/rewrites.h"

namespace qvzj::dialect {

Translation Translate(std::string_view statement, const Target& target, const Schema& schema) {
  Tokens tokens = Tokenize(statement);
  if (auto added = TranslateAddedColumn(tokens, target)) return *added;
  RewriteMissingLink(tokens, schema);
  if (!target.translates) return {Render(tokens), std::nullopt};

  SwapRightJoin(tokens);
  const Scope scope(tokens, schema);
  RewriteDates(tokens, scope, target);
  RewriteGreatestUnderStem(tokens, scope, target);
  RewriteStems(tokens, scope, target);
  RewriteFunctions(tokens, target);
  RewriteConcatenation(tokens, target);
  RewriteComparisons(tokens, scope, target);
  RewriteOrder(tokens, scope, target);
  RewriteNames(tokens, target);
  return {Render(tokens), std::nullopt};
}

}  // namespace qvzj::dialect
