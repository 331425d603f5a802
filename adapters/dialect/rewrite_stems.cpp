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

}  // namespace

void RewriteStems(Tokens& tokens, const Scope& scope, const Target& target) {
  for (size_t at = 0; at < tokens.size(); ++at) {
    const auto test = StemTestAt(tokens, at, scope);
    if (test) ReplaceByRaw(tokens, test->first, test->last, RangeCondition(*test, target));
  }
}

bool RewriteGreatestUnderStem(Tokens& tokens, const Scope& scope, const Target& target) {
  const bool greatest = WordAt(tokens, 0, "select") && WordAt(tokens, 1, "max") &&
                        SymbolAt(tokens, 2, "(") &&
                        (WordAt(tokens, 3, "mid") || WordAt(tokens, 3, "substring"));
  if (!greatest || !SymbolAt(tokens, 4, "(")) return false;
  const auto column = ColumnAt(tokens, 5);
  if (!column) return false;
  const auto start = WholeNumberAt(tokens, column->last + 1);
  const size_t call_end = AfterClosing(tokens, 4);
  size_t from = call_end + 1;  // after the ")" of max
  if (WordAt(tokens, from, "as")) from += 2;
  const auto test = StemTestAt(tokens, from + 3, scope);
  const bool formed = start && SymbolAt(tokens, call_end, ")") && WordAt(tokens, from, "from") &&
                      WordAt(tokens, from + 2, "where") && test &&
                      test->column == Render(tokens, column->first, column->last) &&
                      *start == test->length + 1;
  if (!formed) return false;
  for (size_t i = test->last; i < tokens.size(); ++i) {
    if (IsWord(tokens[i], "order") || IsWord(tokens[i], "group") || IsWord(tokens[i], "or")) {
      return false;
    }
  }
  // select (select substring(…) from … where … order by column desc limit 1) [as name]
  Tokens inner(tokens.begin() + 3, tokens.begin() + static_cast<Tokens::difference_type>(call_end));
  inner.front().blank = true;
  inner.insert(inner.begin(), {{Kind::Symbol, "(", true}, {Kind::Word, "select", false}});
  inner.insert(inner.end(), tokens.begin() + static_cast<Tokens::difference_type>(from),
               tokens.end());
  inner.push_back(
      {Kind::Raw, "order by " + Wrap(target.compared_key, test->column) + " desc limit 1", true});
  inner.push_back({Kind::Symbol, ")", false});
  const Tokens name(tokens.begin() + static_cast<Tokens::difference_type>(call_end + 1),
                    tokens.begin() + static_cast<Tokens::difference_type>(from));
  tokens.resize(1);
  tokens.insert(tokens.end(), inner.begin(), inner.end());
  tokens.insert(tokens.end(), name.begin(), name.end());
  return true;
}

}  // namespace qvzj::dialect
