#include <charconv>

#include "adapters/dialect/rewrites.h"
#include "adapters/dialect/stem.h"
#include "platform/basic/text.h"

namespace qvzj::dialect {
namespace {

using Kind = Token::Kind;

std::optional<int32_t> WholeNumberAt(const Tokens& tokens, size_t at) {
  if (at >= tokens.size() || tokens[at].kind != Kind::Number) return std::nullopt;
  const std::string& text = tokens[at].text;
  int32_t value = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (failure != std::errc{} || end != text.data() + text.size()) return std::nullopt;
  return value;
}

/// `left(column,n)='stem'` at the tokens [first, last), with n the length of the stem.
struct StemTest {
  size_t first;
  size_t last;
  std::string column;
  std::string stem;
  int32_t length;
};

std::optional<StemTest> StemTestAt(const Tokens& tokens, size_t at, const Scope& scope) {
  if (!WordAt(tokens, at, "left") || !SymbolAt(tokens, at + 1, "(")) return std::nullopt;
  const auto column = ColumnAt(tokens, at + 2);
  if (!column) return std::nullopt;
  const ColumnType type = scope.TypeOf(*column);
  if (type == ColumnType::Number || type == ColumnType::Date) return std::nullopt;
  const size_t comma = column->last;
  const auto length = WholeNumberAt(tokens, comma + 1);
  const bool formed = SymbolAt(tokens, comma, ",") && length && SymbolAt(tokens, comma + 2, ")") &&
                      SymbolAt(tokens, comma + 3, "=") && comma + 4 < tokens.size() &&
                      tokens[comma + 4].kind == Kind::Text;
  if (!formed) return std::nullopt;
  StemTest test{at, comma + 5, Render(tokens, column->first, column->last),
                TextOf(tokens[comma + 4]), *length};
  if (basic::Len(test.stem) != *length) return std::nullopt;
  return test;
}

std::string RangeCondition(const StemTest& test, const Target& target) {
  const StemRange range = RangeOfStem(test.stem);
  const std::string column = Wrap(target.compared_column, test.column);
  std::string condition = column + ">=" + Wrap(target.compared_text, QuoteText(range.first));
  if (range.past) {
    condition += " and " + column + "<" + Wrap(target.compared_text, QuoteText(*range.past));
  }
  return "(" + condition + ")";
}

/// The parts of `select max(substring(c,L+1,n)) [as name] from t where left(c,L)='stem' …`.
struct GreatestUnderStem {
  size_t call_end;  ///< after the substring call that begins at token 3
  size_t from;      ///< the word "from"
  std::string column;
};

/// True when nothing after `at` orders, groups or widens the condition.
bool OnlyNarrowsFrom(const Tokens& tokens, size_t at) {
  for (; at < tokens.size(); ++at) {
    for (const char* word : {"order", "group", "or"}) {
      if (IsWord(tokens[at], word)) return false;
    }
  }
  return true;
}

std::optional<GreatestUnderStem> FindGreatestUnderStem(const Tokens& tokens, const Scope& scope) {
  const bool greatest = WordAt(tokens, 0, "select") && WordAt(tokens, 1, "max") &&
                        SymbolAt(tokens, 2, "(") &&
                        (WordAt(tokens, 3, "mid") || WordAt(tokens, 3, "substring"));
  const auto column = greatest && SymbolAt(tokens, 4, "(") ? ColumnAt(tokens, 5) : std::nullopt;
  if (!column) return std::nullopt;
  const auto start = WholeNumberAt(tokens, column->last + 1);
  GreatestUnderStem parts{AfterClosing(tokens, 4), 0, Render(tokens, column->first, column->last)};
  parts.from = parts.call_end + 1;  // after the ")" of max
  if (WordAt(tokens, parts.from, "as")) parts.from += 2;
  const auto test = StemTestAt(tokens, parts.from + 3, scope);
  const bool formed =
      start && SymbolAt(tokens, parts.call_end, ")") && WordAt(tokens, parts.from, "from") &&
      WordAt(tokens, parts.from + 2, "where") && test && test->column == parts.column &&
      *start == test->length + 1 && OnlyNarrowsFrom(tokens, test->last);
  if (!formed) return std::nullopt;
  return parts;
}

}  // namespace

void RewriteStems(Tokens& tokens, const Scope& scope, const Target& target) {
  for (size_t at = 0; at < tokens.size(); ++at) {
    const auto test = StemTestAt(tokens, at, scope);
    if (test) ReplaceByRaw(tokens, test->first, test->last, RangeCondition(*test, target));
  }
}

void RewriteGreatestUnderStem(Tokens& tokens, const Scope& scope, const Target& target) {
  const auto parts = FindGreatestUnderStem(tokens, scope);
  if (!parts) return;
  const auto at = [&](size_t i) {
    return tokens.begin() + static_cast<Tokens::difference_type>(i);
  };
  // select (select substring(…) from … where … order by column desc limit 1) [as name]
  Tokens nested{
      {Kind::Word, "select", false}, {Kind::Symbol, "(", true}, {Kind::Word, "select", false}};
  nested.insert(nested.end(), at(3), at(parts->call_end));
  nested[3].blank = true;
  nested.insert(nested.end(), at(parts->from), tokens.end());
  nested.push_back(
      {Kind::Raw, "order by " + Wrap(target.compared_key, parts->column) + " desc limit 1", true});
  nested.push_back({Kind::Symbol, ")", false});
  nested.insert(nested.end(), at(parts->call_end + 1), at(parts->from));
  tokens = std::move(nested);
}

}  // namespace qvzj::dialect
