#include "adapters/dialect/rewrites.h"
#include "platform/basic/text.h"

namespace qvzj::dialect {
namespace {

using Kind = Token::Kind;

bool HasAsciiLetter(const std::string& text) { return basic::Lower(text) != basic::Upper(text); }

bool CallAt(const Tokens& tokens, size_t at, const char* name) {
  return WordAt(tokens, at, name) && SymbolAt(tokens, at + 1, "(");
}

/// IsNumeric(…) as a number or, standing alone, as a condition.
void RewriteIsNumeric(Tokens& tokens, size_t at, const Target& target) {
  const size_t end = AfterClosing(tokens, at + 1);
  std::string piece = Wrap(target.is_numeric, Render(tokens, at + 2, end - 1));
  const bool alone = !ComparisonAt(tokens, end) && !(at > 0 && ComparisonAt(tokens, at - 1));
  if (alone && !target.is_numeric_is_condition) piece += "=1";
  ReplaceByRaw(tokens, at, end, std::move(piece));
}

/// Index of the first token that can belong to a comparison: past the assignments of an UPDATE.
size_t FirstCondition(const Tokens& tokens) {
  if (WordAt(tokens, 0, "insert")) return tokens.size();
  if (!WordAt(tokens, 0, "update")) return 0;
  size_t at = 0;
  while (at < tokens.size() && !IsWord(tokens[at], "where")) ++at;
  return at;
}

bool IsTextual(const Tokens& tokens, size_t first, size_t last, const Scope& scope) {
  if (first == last || tokens[first].kind == Kind::Number) return false;
  const auto column = ColumnAt(tokens, first);
  if (!column || column->last != last) return true;
  const ColumnType type = scope.TypeOf(*column);
  return type == ColumnType::Text || type == ColumnType::Unknown;
}

void RewriteText(Token& token, const Target& target) {
  const std::string text = target.lowers_compared_text ? basic::Lower(token.text) : token.text;
  token = {Kind::Raw, Wrap(target.compared_text, text), token.blank};
}

/// The comparison at `at`, when one side is a text literal.
void RewriteComparison(Tokens& tokens, size_t at, const Scope& scope, const Target& target) {
  const bool text_right = at + 1 < tokens.size() && tokens[at + 1].kind == Kind::Text;
  const size_t literal = text_right ? at + 1 : at - 1;
  if (tokens[literal].kind != Kind::Text) return;
  // Texts without letters are equal only to themselves, whatever the case rule.
  const bool equality = !SymbolAt(tokens, at, "<") && !SymbolAt(tokens, at, ">") &&
                        !SymbolAt(tokens, at, "<=") && !SymbolAt(tokens, at, ">=");
  if (equality && !HasAsciiLetter(tokens[literal].text)) return;
  const size_t first = text_right ? TermBegin(tokens, at) : at + 1;
  const size_t last = text_right ? at : TermEnd(tokens, at + 1);
  if (!IsTextual(tokens, first, last, scope) || tokens[first].kind == Kind::Text) return;
  RewriteText(tokens[literal], target);
  ReplaceByRaw(tokens, first, last, Wrap(target.compared_column, Render(tokens, first, last)));
}

}  // namespace

void RewriteFunctions(Tokens& tokens, const Target& target) {
  for (size_t at = 0; at < tokens.size(); ++at) {
    if (CallAt(tokens, at, "mid") || CallAt(tokens, at, "substring")) {
      tokens[at].text = target.substring;
    } else if (CallAt(tokens, at, "left")) {
      tokens[at].text = target.substring;
      const size_t comma = TermEnd(tokens, at + 2);
      if (!SymbolAt(tokens, comma, ",")) continue;
      const auto place = tokens.begin() + static_cast<Tokens::difference_type>(comma);
      tokens.insert(place, {{Kind::Symbol, ",", false}, {Kind::Number, "1", false}});
    }
  }
  for (size_t at = tokens.size(); at-- > 0;) {
    if (CallAt(tokens, at, "isnumeric")) RewriteIsNumeric(tokens, at, target);
  }
}

void RewriteConcatenation(Tokens& tokens, const Target& target) {
  const auto wrap = [&](size_t first, size_t last) {
    if (first == last) return;  // nothing stands there: the engine says so
    if (last == first + 1 && !IsName(tokens[first])) return;  // a literal or done already
    ReplaceByRaw(tokens, first, last, Wrap(target.joined, Render(tokens, first, last)));
  };
  for (size_t at = 0; at < tokens.size(); ++at) {
    if (!SymbolAt(tokens, at, "&")) continue;
    tokens[at].text = "||";
    wrap(at + 1, TermEnd(tokens, at + 1));
    const size_t first = TermBegin(tokens, at);
    if (first == at) continue;
    const size_t before = tokens.size();
    wrap(first, at);
    at -= before - tokens.size();
  }
}

void RewriteComparisons(Tokens& tokens, const Scope& scope, const Target& target) {
  for (size_t at = FirstCondition(tokens) + 1; at < tokens.size(); ++at) {
    if (ComparisonAt(tokens, at)) {
      const size_t before = tokens.size();
      RewriteComparison(tokens, at, scope, target);
      at -= std::min(at, before - tokens.size());
    } else if (IsWord(tokens[at], "like") && at + 1 < tokens.size() &&
               tokens[at + 1].kind == Kind::Text) {
      tokens[at].text = target.like;
      Token& pattern = tokens[at + 1];
      pattern = {Kind::Raw, Wrap(target.like_pattern, pattern.text), pattern.blank};
      const bool negated = WordAt(tokens, at - 1, "not");
      const size_t end = negated ? at - 1 : at;
      const size_t first = TermBegin(tokens, end);
      if (first == end) continue;
      ReplaceByRaw(tokens, first, end, Wrap(target.liked_column, Render(tokens, first, end)));
      at = first + (negated ? 3 : 2);
    }
  }
}

}  // namespace qvzj::dialect
