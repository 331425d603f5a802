#include <algorithm>
#include <array>

#include "adapters/dialect/rewrites.h"
#include "platform/basic/text.h"

namespace qvzj::dialect {
namespace {

using Kind = Token::Kind;

/// The engine's type for a column type of either dialect; the word itself when it is not known.
std::string TypeFor(const Token& type, const Target& target) {
  for (const char* word : {"long", "integer", "int", "short", "byte", "smallint", "counter"}) {
    if (IsWord(type, word)) return target.integer_type;
  }
  for (const char* word : {"double", "single", "float", "real", "currency", "money", "number"}) {
    if (IsWord(type, word)) return target.real_type;
  }
  for (const char* word : {"text", "memo", "char", "varchar", "nvarchar"}) {
    if (IsWord(type, word)) return target.text_type;
  }
  for (const char* word : {"date", "datetime"}) {
    if (IsWord(type, word)) return target.date_type;
  }
  return type.text;
}

/// True when [first, last) is a table with or without an alias.
bool IsOneTable(const Tokens& tokens, size_t first, size_t last) {
  if (first >= last || last - first > 3) return false;
  return std::all_of(tokens.begin() + static_cast<Tokens::difference_type>(first),
                     tokens.begin() + static_cast<Tokens::difference_type>(last), IsName);
}

/// Index of ORDER BY; the number of tokens when there is none.
size_t OrderBy(const Tokens& tokens) {
  size_t at = 0;
  while (at < tokens.size() && !(IsWord(tokens[at], "order") && WordAt(tokens, at + 1, "by"))) ++at;
  return at;
}

/// Makes the tokens before `order` the table of an outer SELECT. Where `order` is afterwards.
size_t NestBefore(Tokens& tokens, size_t order) {
  tokens.front().blank = false;
  tokens.insert(tokens.begin() + static_cast<Tokens::difference_type>(order),
                {Kind::Raw, ") as qv_rows", false});
  tokens.insert(tokens.begin(), {Kind::Raw, "select * from (", false});
  return order + 2;
}

}  // namespace

std::optional<Translation> TranslateAddedColumn(const Tokens& tokens, const Target& target) {
  const bool alters = WordAt(tokens, 0, "alter") && WordAt(tokens, 1, "table") &&
                      tokens.size() >= 6 && WordAt(tokens, 3, "add");
  if (!alters) return std::nullopt;
  const size_t name = WordAt(tokens, 4, "column") ? 5 : 4;
  if (tokens.size() < name + 2 || !IsName(tokens[2]) || !IsName(tokens[name])) {
    return std::nullopt;
  }
  Translation translation;
  translation.added = AddedColumn{NameOf(tokens[2]), NameOf(tokens[name])};
  const std::array<std::pair<const char*, std::string>, 3> parts{{
      {"{table}", translation.added->table},
      {"{column}", translation.added->column},
      {"{type}", TypeFor(tokens[name + 1], target)},
  }};
  translation.text = target.add_column;
  for (const auto& [part, value] : parts) {
    translation.text = basic::Replace(translation.text, part, value);
  }
  return translation;
}

void SwapRightJoin(Tokens& tokens) {
  size_t right = 0;
  while (right < tokens.size() && !IsWord(tokens[right], "right")) ++right;
  if (right < 2 || right >= tokens.size()) return;
  const size_t join = WordAt(tokens, right + 1, "outer") ? right + 2 : right + 1;
  if (!WordAt(tokens, join, "join")) return;
  size_t from = right;
  while (from > 0 && !IsWord(tokens[from], "from")) --from;
  size_t on = join;
  while (on < tokens.size() && !IsWord(tokens[on], "on")) ++on;
  if (!IsWord(tokens[from], "from") || on == tokens.size()) return;
  if (!IsOneTable(tokens, from + 1, right) || !IsOneTable(tokens, join + 1, on)) return;

  const auto at = [&](size_t i) {
    return tokens.begin() + static_cast<Tokens::difference_type>(i);
  };
  const Tokens dropped(at(from + 1), at(right));
  const Tokens kept(at(join + 1), at(on));
  Tokens swapped(tokens.begin(), at(from + 1));
  swapped.insert(swapped.end(), kept.begin(), kept.end());
  swapped.push_back({Kind::Word, "Left", true});
  swapped.push_back({Kind::Word, "Join", true});
  swapped.insert(swapped.end(), dropped.begin(), dropped.end());
  swapped.insert(swapped.end(), at(on), tokens.end());
  tokens = std::move(swapped);
}

void RewriteOrder(Tokens& tokens, const Scope& scope, const Target& target) {
  size_t at = OrderBy(tokens);
  if (at == tokens.size()) return;
  const bool outside = target.orders_distinct_outside && WordAt(tokens, 1, "distinct");
  if (outside) at = NestBefore(tokens, at);
  for (at += 2; at < tokens.size();) {
    const auto column = ColumnAt(tokens, at);
    size_t end = column ? at + 1 : TermEnd(tokens, at);
    if (end == at) return;
    if (column) {
      const size_t first = outside ? column->last - 1 : column->first;
      std::string key = Render(tokens, first, column->last);
      const bool text = scope.TypeOf(*column) == ColumnType::Text;
      if (text && !target.ordered_text.empty()) key = Wrap(target.ordered_text, key);
      ReplaceByRaw(tokens, column->first, column->last, std::move(key));
    }
    const bool descending = WordAt(tokens, end, "desc");
    if (descending || WordAt(tokens, end, "asc")) ++end;
    tokens[end - 1].text += descending ? target.descending_nulls : target.ascending_nulls;
    if (!SymbolAt(tokens, end, ",")) return;
    at = end + 1;
  }
}

void RewriteNames(Tokens& tokens, const Target& target) {
  for (Token& token : tokens) {
    if (token.kind == Kind::Bracketed) token.text = Wrap(target.bracketed_name, NameOf(token));
  }
}

}  // namespace qvzj::dialect
