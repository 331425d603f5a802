#include <algorithm>

#include "adapters/dialect/rewrites.h"
#include "platform/basic/text.h"

namespace qvzj::dialect {
namespace {

constexpr const char* kLedger = "tAccountDetail";
constexpr const char* kLink = "fID2";

bool Names(const Token& token, const char* name) {
  return IsName(token) && basic::EqualIgnoringCase(NameOf(token), name);
}

bool Mentions(const Tokens& tokens, const char* name) {
  return std::any_of(tokens.begin(), tokens.end(),
                     [name](const Token& token) { return Names(token, name); });
}

/// The ledger is there and has no link yet.
bool LinkIsMissing(const Schema& schema) {
  return schema.TypeOf(kLedger, "fID") != ColumnType::Unknown &&
         schema.TypeOf(kLedger, kLink) == ColumnType::Unknown;
}

/// The one token at `at` says that there is no link.
bool IsNoLink(const Tokens& tokens, size_t at) {
  return at < tokens.size() && (tokens[at].text == "0" || IsWord(tokens[at], "null"));
}

/// Takes the tokens [first, last) out of a list, with the comma that parts them from the others.
void DropItem(Tokens& tokens, size_t first, size_t last) {
  if (SymbolAt(tokens, first - 1, ",")) {
    --first;
  } else if (SymbolAt(tokens, last, ",")) {
    ++last;
  }
  tokens.erase(tokens.begin() + static_cast<Tokens::difference_type>(first),
               tokens.begin() + static_cast<Tokens::difference_type>(last));
}

void SelectNull(Tokens& tokens) {
  int depth = 0;
  for (size_t at = 1; at < tokens.size() && !(depth == 0 && IsWord(tokens[at], "from")); ++at) {
    if (SymbolAt(tokens, at, "(")) ++depth;
    if (SymbolAt(tokens, at, ")")) --depth;
    const auto column = ColumnAt(tokens, at);
    if (depth > 0 || !column || !basic::EqualIgnoringCase(column->column, kLink)) continue;
    ReplaceByRaw(tokens, column->first, column->last, "cast(null as integer) as fID2");
  }
}

void AssignNothing(Tokens& tokens) {
  for (size_t at = 3; at + 2 < tokens.size() && !IsWord(tokens[at], "where"); ++at) {
    if (!Names(tokens[at], kLink) || !SymbolAt(tokens, at + 1, "=")) continue;
    const bool alone = SymbolAt(tokens, at + 3, ",") || WordAt(tokens, at + 3, "where");
    if (alone && IsNoLink(tokens, at + 2)) return DropItem(tokens, at, at + 3);
  }
}

/// Index of the item of that number in the list that opens at `open`; the list's end when it has
/// fewer.
size_t ItemAt(const Tokens& tokens, size_t open, size_t number) {
  const size_t end = AfterClosing(tokens, open) - 1;
  int depth = 0;
  size_t at = open + 1;
  for (; at < end && number > 0; ++at) {
    if (SymbolAt(tokens, at, "(")) ++depth;
    if (SymbolAt(tokens, at, ")")) --depth;
    if (depth == 0 && SymbolAt(tokens, at, ",")) --number;
  }
  return at;
}

void InsertNothing(Tokens& tokens) {
  const size_t names = WordAt(tokens, 1, "into") ? 3 : 2;
  if (!SymbolAt(tokens, names, "(")) return;
  const size_t values = AfterClosing(tokens, names);
  if (!WordAt(tokens, values, "values") || !SymbolAt(tokens, values + 1, "(")) return;
  if (AfterClosing(tokens, values + 1) != tokens.size()) return;  // several rows
  size_t number = 0;
  size_t name = names + 1;
  while (name < values && !Names(tokens[name], kLink)) name += 2, ++number;
  const size_t value = ItemAt(tokens, values + 1, number);
  const bool alone = SymbolAt(tokens, value + 1, ",") || SymbolAt(tokens, value + 1, ")");
  if (name >= values || !alone || !IsNoLink(tokens, value)) return;
  DropItem(tokens, value, value + 1);
  DropItem(tokens, name, name + 1);
}

}  // namespace

void RewriteMissingLink(Tokens& tokens, const Schema& schema) {
  if (!Mentions(tokens, kLink) || !Mentions(tokens, kLedger) || !LinkIsMissing(schema)) return;
  if (WordAt(tokens, 0, "select")) SelectNull(tokens);
  if (WordAt(tokens, 0, "update")) AssignNothing(tokens);
  if (WordAt(tokens, 0, "insert")) InsertNothing(tokens);
}

}  // namespace qvzj::dialect
