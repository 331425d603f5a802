#include "adapters/dialect/rewrites.h"
#include "platform/basic/date.h"
#include "platform/basic/errors.h"

namespace qvzj::dialect {
namespace {

using Kind = Token::Kind;

class DateRewriter {
 public:
  DateRewriter(Tokens& tokens, const Scope& scope, const Target& target)
      : tokens_(tokens), scope_(scope), target_(target) {}

  void Run() {
    for (Token& token : tokens_) {
      if (token.kind == Kind::Date) Finish(token, token.text.substr(1, token.text.size() - 2));
    }
    if (WordAt(tokens_, 0, "insert")) return InsertedValues();
    for (size_t at = 0; at < tokens_.size(); ++at) ComparedOrAssigned(at);
  }

 private:
  void Finish(Token& token, const std::string& written) {
    auto date = basic::ParseMonthDayYear(written);
    if (!date) date = basic::ParseIso(written);
    if (!date) throw DataError("Syntax error in date in query expression '" + token.text + "'");
    token = {Kind::Raw, Wrap(target_.date, basic::FormatIso(*date)), token.blank};
  }

  void FinishText(size_t at) {
    if (at < tokens_.size() && tokens_[at].kind == Kind::Text) {
      Finish(tokens_[at], TextOf(tokens_[at]));
    }
  }

  /// `insert into t (columns) values (values)[, (values) …]`: pairs each value with its column.
  void InsertedValues() {
    const size_t into = WordAt(tokens_, 1, "into") ? 2 : 1;
    if (into + 1 >= tokens_.size() || !SymbolAt(tokens_, into + 1, "(")) return;
    const std::string table = NameOf(tokens_[into]);
    std::vector<bool> is_date;
    const size_t values = AfterClosing(tokens_, into + 1);
    for (size_t i = into + 2; i + 1 < values; ++i) {
      if (!IsName(tokens_[i])) continue;
      is_date.push_back(scope_.TypeOf(table, NameOf(tokens_[i])) == ColumnType::Date);
    }
    if (!WordAt(tokens_, values, "values")) return;
    for (size_t open = values + 1; SymbolAt(tokens_, open, "(");) {
      const size_t after = AfterClosing(tokens_, open);
      size_t column = 0;
      for (size_t i = open + 1; i + 1 < after; i = NextValue(i, after), ++column) {
        const bool alone = SymbolAt(tokens_, i + 1, ",") || i + 2 == after;
        if (alone && column < is_date.size() && is_date[column]) FinishText(i);
      }
      open = SymbolAt(tokens_, after, ",") ? after + 1 : tokens_.size();
    }
  }

  /// Index after the comma that ends the value at `at`.
  size_t NextValue(size_t at, size_t end) const {
    int depth = 0;
    for (; at < end; ++at) {
      if (SymbolAt(tokens_, at, "(")) ++depth;
      if (SymbolAt(tokens_, at, ")")) --depth;
      if (depth == 0 && SymbolAt(tokens_, at, ",")) return at + 1;
    }
    return at;
  }

  /// A date column at `at` with what it is compared with or set to.
  void ComparedOrAssigned(size_t at) {
    const auto column = ColumnAt(tokens_, at);
    if (!column || scope_.TypeOf(*column) != ColumnType::Date) return;
    const size_t next = column->last;
    if (ComparisonAt(tokens_, next)) FinishText(next + 1);
    if (at >= 2 && ComparisonAt(tokens_, at - 1)) FinishText(at - 2);
    const size_t word = WordAt(tokens_, next, "not") ? next + 1 : next;
    if (WordAt(tokens_, word, "between")) {
      FinishText(word + 1);
      if (WordAt(tokens_, word + 2, "and")) FinishText(word + 3);
    }
    if (WordAt(tokens_, word, "in") && SymbolAt(tokens_, word + 1, "(")) {
      const size_t end = AfterClosing(tokens_, word + 1);
      for (size_t i = word + 2; i < end; ++i) FinishText(i);
    }
  }

  Tokens& tokens_;
  const Scope& scope_;
  const Target& target_;
};

}  // namespace

void RewriteDates(Tokens& tokens, const Scope& scope, const Target& target) {
  DateRewriter(tokens, scope, target).Run();
}

}  // namespace qvzj::dialect
