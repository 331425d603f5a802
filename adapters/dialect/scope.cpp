#include "adapters/dialect/scope.h"

#include "platform/basic/text.h"

namespace qvzj::dialect {
namespace {

/// Words that can follow a table's name in FROM and are therefore no alias.
bool EndsTable(const Token& token) {
  for (const char* word : {"where", "order", "group", "having", "on", "left", "right", "inner",
                           "full", "cross", "join", "set", "values", "union", "limit"}) {
    if (IsWord(token, word)) return true;
  }
  return false;
}

}  // namespace

std::optional<ColumnRef> ColumnAt(const Tokens& tokens, size_t at) {
  if (at >= tokens.size() || !IsName(tokens[at])) return std::nullopt;
  if (at > 0 && SymbolAt(tokens, at - 1, ".")) return std::nullopt;
  ColumnRef ref{at, at + 1, {}, NameOf(tokens[at])};
  if (SymbolAt(tokens, at + 1, ".") && at + 2 < tokens.size() && IsName(tokens[at + 2])) {
    ref.alias = ref.column;
    ref.column = NameOf(tokens[at + 2]);
    ref.last = at + 3;
  }
  if (SymbolAt(tokens, ref.last, "(")) return std::nullopt;
  return ref;
}

Scope::Scope(const Tokens& tokens, const Schema& schema) : schema_(schema) {
  if (WordAt(tokens, 0, "update")) ReadTables(tokens, 1);
  for (size_t i = 0; i < tokens.size(); ++i) {
    if (IsWord(tokens[i], "from") || IsWord(tokens[i], "join")) ReadTables(tokens, i + 1);
  }
}

void Scope::ReadTables(const Tokens& tokens, size_t at) {
  at = ReadTable(tokens, at);
  while (SymbolAt(tokens, at, ",")) at = ReadTable(tokens, at + 1);
}

size_t Scope::ReadTable(const Tokens& tokens, size_t at) {
  if (at >= tokens.size() || !IsName(tokens[at])) return at;
  const std::string table = NameOf(tokens[at++]);
  if (WordAt(tokens, at, "as")) ++at;
  std::string alias = table;
  if (at < tokens.size() && IsName(tokens[at]) && !EndsTable(tokens[at])) {
    alias = NameOf(tokens[at++]);
  }
  tables_.emplace_back(alias, table);
  return at;
}

ColumnType Scope::TypeOf(const ColumnRef& ref) const {
  for (const auto& [alias, table] : tables_) {
    if (!ref.alias.empty() && !basic::EqualIgnoringCase(ref.alias, alias)) continue;
    const ColumnType type = schema_.TypeOf(table, ref.column);
    if (type != ColumnType::Unknown) return type;
  }
  return ColumnType::Unknown;
}

}  // namespace qvzj::dialect
