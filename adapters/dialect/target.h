#pragma once

#include <string>
#include <string_view>

namespace qvzj::dialect {

/// What an engine wants instead of the module's spelling. In the patterns "{}" stands for the
/// piece that is wrapped.
struct Target {
  /// False: the engine speaks the server dialect itself. Only the added column is translated.
  bool translates = true;

  // --- an added column: {table}, {column} and {type} are filled in
  std::string add_column;
  std::string integer_type;
  std::string real_type;
  std::string text_type;
  std::string date_type;

  /// Spelling of a bare name that was bracketed.
  std::string bracketed_name = "[{}]";
  /// A date that is known to be real, as yyyy-mm-dd.
  std::string date = "'{}'";
  /// Substring function with (text, first, count), positions from 1.
  std::string substring = "substr";
  /// 1 when the text is a number by the module's rule, else 0.
  std::string is_numeric = "isnumeric({})";
  /// Whether is_numeric may stand alone as a condition.
  bool is_numeric_is_condition = true;

  /// An operand of "&": null joins as the empty text.
  std::string joined = "coalesce({},'')";

  // --- text comparisons, which ignore ASCII case
  /// A column or expression on one side of a comparison with a text.
  std::string compared_column = "{}";
  /// The text on the other side; {} is the literal.
  std::string compared_text = "{} COLLATE NOCASE";
  /// Whether the literal is written in lower case.
  bool lowers_compared_text = false;
  /// A column as a key of the order in which texts compare.
  std::string compared_key = "{} COLLATE NOCASE";
  /// The left side of LIKE, the word itself, and the pattern's literal.
  std::string liked_column = "{}";
  std::string like = "like";
  std::string like_pattern = "{}";

  // --- order
  /// A text column in ORDER BY; empty: as it is.
  std::string ordered_text;
  /// Whether the keys of an ORDER BY must stand in the list of a SELECT DISTINCT just as they are;
  /// the distinct rows are then ordered from outside.
  bool orders_distinct_outside = false;
  /// What follows an ascending or descending key so that nulls order before everything else.
  std::string ascending_nulls;
  std::string descending_nulls;
};

/// SQLite as adapters/sqlite sets it up. `text_order` is the collation that orders texts; empty
/// leaves the order to the columns.
Target SqliteTarget(const std::string& text_order);
/// PostgreSQL and its relatives, with the suite's tables made by unquoted names. `text_order` is
/// the collation that orders texts, as it is written in a statement.
Target PostgresTarget(const std::string& text_order);
/// T-SQL servers: they speak the server dialect.
Target TransactSqlTarget();

/// `pattern` with its "{}" replaced by `piece`.
std::string Wrap(std::string_view pattern, std::string_view piece);

}  // namespace qvzj::dialect
