#include "adapters/dialect/token.h"

#include "platform/basic/errors.h"
#include "platform/basic/text.h"

namespace qvzj::dialect {
namespace {

using Kind = Token::Kind;

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsWordStart(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '@' || c == '$' ||
         (static_cast<unsigned char>(c) & 0x80) != 0;
}

/// Index after the run that `closing` ends; a doubled closing character stands for itself.
size_t AfterRun(std::string_view text, size_t first, char closing, const char* what) {
  for (size_t i = first + 1; i < text.size(); ++i) {
    if (text[i] != closing) continue;
    if (closing != '#' && i + 1 < text.size() && text[i + 1] == closing) {
      ++i;
      continue;
    }
    return i + 1;
  }
  throw DataError(std::string("Syntax error: ") + what +
                  " without an end: " + std::string(text.substr(first)));
}

size_t AfterNumber(std::string_view text, size_t i) {
  while (i < text.size() && (IsDigit(text[i]) || text[i] == '.')) ++i;
  if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
    size_t j = i + 1;
    if (j < text.size() && (text[j] == '+' || text[j] == '-')) ++j;
    if (j < text.size() && IsDigit(text[j])) {
      while (j < text.size() && IsDigit(text[j])) ++j;
      i = j;
    }
  }
  return i;
}

struct Piece {
  Kind kind;
  size_t end;
};

Piece NextPiece(std::string_view text, size_t at) {
  const char c = text[at];
  if (c == '\'') return {Kind::Text, AfterRun(text, at, '\'', "a text")};
  if (c == '"') return {Kind::Quoted, AfterRun(text, at, '"', "a quoted name")};
  if (c == '[') return {Kind::Bracketed, AfterRun(text, at, ']', "a bracketed name")};
  if (c == '#') return {Kind::Date, AfterRun(text, at, '#', "a date")};
  const bool point_of_number = c == '.' && at + 1 < text.size() && IsDigit(text[at + 1]);
  if (IsDigit(c) || point_of_number) return {Kind::Number, AfterNumber(text, at)};
  if (IsWordStart(c)) {
    size_t end = at + 1;
    while (end < text.size() && (IsWordStart(text[end]) || IsDigit(text[end]))) ++end;
    return {Kind::Word, end};
  }
  const std::string_view two = text.substr(at, 2);
  const bool pair = two == "<>" || two == "<=" || two == ">=" || two == "!=" || two == "||";
  return {Kind::Symbol, at + (pair ? 2 : 1)};
}

}  // namespace

Tokens Tokenize(std::string_view statement) {
  Tokens tokens;
  bool blank = false;
  bool ended = false;
  for (size_t at = 0; at < statement.size();) {
    if (IsBlank(statement[at])) {
      blank = true;
      ++at;
      continue;
    }
    if (statement[at] == ';') {
      ended = true;
      ++at;
      continue;
    }
    if (ended) throw DataError("Characters found after end of SQL statement");
    const Piece piece = NextPiece(statement, at);
    // Two minus signs in a row would begin a comment for every engine.
    const bool minus = statement[at] == '-' && !tokens.empty() && tokens.back().text == "-";
    tokens.push_back(
        {piece.kind, std::string(statement.substr(at, piece.end - at)), blank || minus});
    blank = false;
    at = piece.end;
  }
  return tokens;
}

std::string Render(const Tokens& tokens) { return Render(tokens, 0, tokens.size()); }

std::string Render(const Tokens& tokens, size_t first, size_t last) {
  std::string text;
  for (size_t i = first; i < last; ++i) {
    if (tokens[i].blank && i > first) text += ' ';
    text += tokens[i].text;
  }
  return text;
}

bool IsWord(const Token& token, std::string_view word) {
  return token.kind == Kind::Word && basic::EqualIgnoringCase(token.text, word);
}

bool WordAt(const Tokens& tokens, size_t at, std::string_view word) {
  return at < tokens.size() && IsWord(tokens[at], word);
}

bool SymbolAt(const Tokens& tokens, size_t at, std::string_view symbol) {
  return at < tokens.size() && tokens[at].kind == Kind::Symbol && tokens[at].text == symbol;
}

bool ComparisonAt(const Tokens& tokens, size_t at) {
  for (const char* symbol : {"=", "<>", "!=", "<", ">", "<=", ">="}) {
    if (SymbolAt(tokens, at, symbol)) return true;
  }
  return false;
}

bool IsName(const Token& token) {
  return token.kind == Kind::Word || token.kind == Kind::Bracketed || token.kind == Kind::Quoted;
}

std::string NameOf(const Token& token) {
  if (token.kind == Kind::Word) return token.text;
  return token.text.substr(1, token.text.size() - 2);
}

std::string TextOf(const Token& token) {
  return basic::Replace(std::string_view(token.text).substr(1, token.text.size() - 2), "''", "'");
}

std::string QuoteText(std::string_view text) { return "'" + basic::Replace(text, "'", "''") + "'"; }

size_t AfterClosing(const Tokens& tokens, size_t open) {
  int depth = 0;
  for (size_t i = open; i < tokens.size(); ++i) {
    if (SymbolAt(tokens, i, "(")) ++depth;
    if (SymbolAt(tokens, i, ")") && --depth == 0) return i + 1;
  }
  return tokens.size();
}

size_t TermEnd(const Tokens& tokens, size_t first) {
  if (first >= tokens.size()) return first;
  const Token& token = tokens[first];
  if (SymbolAt(tokens, first, "(")) return AfterClosing(tokens, first);
  if (token.kind == Kind::Symbol) return first;
  if (!IsName(token)) return first + 1;
  size_t end = first + 1;
  while (SymbolAt(tokens, end, ".") && end + 1 < tokens.size() && IsName(tokens[end + 1])) {
    end += 2;
  }
  return SymbolAt(tokens, end, "(") ? AfterClosing(tokens, end) : end;
}

size_t TermBegin(const Tokens& tokens, size_t end) {
  if (end == 0) return end;
  size_t begin = end - 1;
  if (SymbolAt(tokens, begin, ")")) {
    int depth = 1;
    while (begin > 0 && depth > 0) {
      --begin;
      if (SymbolAt(tokens, begin, ")")) ++depth;
      if (SymbolAt(tokens, begin, "(")) --depth;
    }
    const bool call = begin > 0 && IsName(tokens[begin - 1]) && !tokens[begin].blank;
    if (!call) return begin;
    --begin;
  } else if (tokens[begin].kind == Kind::Symbol) {
    return end;
  }
  if (!IsName(tokens[begin])) return begin;
  while (begin >= 2 && SymbolAt(tokens, begin - 1, ".") && IsName(tokens[begin - 2])) begin -= 2;
  return begin;
}

void ReplaceByRaw(Tokens& tokens, size_t first, size_t last, std::string piece) {
  const auto begin = tokens.begin() + static_cast<Tokens::difference_type>(first);
  Token raw{Kind::Raw, std::move(piece), begin->blank};
  *begin = std::move(raw);
  tokens.erase(begin + 1, tokens.begin() + static_cast<Tokens::difference_type>(last));
}

}  // namespace qvzj::dialect
