#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Statement text as tokens. Everything that changes a statement works on tokens, so nothing is
/// ever searched or replaced inside a text literal.
namespace qvzj::dialect {

/// One piece of a statement.
struct Token {
  /// What a piece is.
  enum class Kind {
    Word,       ///< name or keyword, as written
    Bracketed,  ///< [name]
    Quoted,     ///< "name"
    Text,       ///< 'text', quotes included, a doubled quote for each quote
    Date,       ///< #mm/dd/yyyy#
    Number,
    Symbol,  ///< operator or punctuation, one or two characters
    Raw,     ///< a finished piece of the target's statement, which no later step looks into
  };
  Kind kind;
  std::string text;    ///< as it stands in the statement
  bool blank = false;  ///< blanks stand before it
};

using Tokens = std::vector<Token>;

/// The tokens of one statement. The module's dialects have no comments: "--" is two minus signs.
/// A ";" may end the statement. Throws DataError for a literal or a bracket without an end and
/// for text after the statement's end.
Tokens Tokenize(std::string_view statement);

/// The statement again, with single blanks where blanks stood.
std::string Render(const Tokens& tokens);
/// The tokens [first, last) alone, without the blank before the first.
std::string Render(const Tokens& tokens, size_t first, size_t last);

/// True when the token is that word, ASCII case ignored.
bool IsWord(const Token& token, std::string_view word);
/// As IsWord for the token at `at`; false past the end.
bool WordAt(const Tokens& tokens, size_t at, std::string_view word);
bool SymbolAt(const Tokens& tokens, size_t at, std::string_view symbol);
/// True for a comparison operator: = <> != < > <= >=.
bool ComparisonAt(const Tokens& tokens, size_t at);

/// True when the token can be a name: a word, [name] or "name".
bool IsName(const Token& token);
/// The bare name of a name token.
std::string NameOf(const Token& token);
/// The text of a Text token with its quotes taken off.
std::string TextOf(const Token& token);
/// A Text token's spelling of `text`.
std::string QuoteText(std::string_view text);

/// Index after the ")" that closes the "(" at `open`; the number of tokens when there is none.
size_t AfterClosing(const Tokens& tokens, size_t open);
/// One term: literal, number, name, name.name, function(…) or (…). The index after the term that
/// begins at `first`, `first` itself when none begins there.
size_t TermEnd(const Tokens& tokens, size_t first);
/// Where the term that ends before `end` begins; `end` itself when none ends there.
size_t TermBegin(const Tokens& tokens, size_t end);

/// Replaces the tokens [first, last) by one finished piece and keeps the blank before it.
void ReplaceByRaw(Tokens& tokens, size_t first, size_t last, std::string piece);

}  // namespace qvzj::dialect
