#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <regex>
#include <set>

#include "adapters/dialect/translate.h"
#include "platform/basic/errors.h"
#include "platform/basic/text.h"
#include "tests/adapters/dialect/suite_schema.h"
#include "tests/scenarios/server_dialect.h"

// Every statement that the module builds for a server, and what each server gets for it.
namespace qvzj::dialect {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kModule = "module:   ";
constexpr std::string_view kPostgres = "postgres: ";
constexpr std::string_view kTransactSql = "tsql:     ";

const fs::path kGolden = fs::path(QV_DIALECT_TESTS) / "server_statements.txt";

std::vector<std::string> LinesOf(const fs::path& file) {
  std::ifstream in(file);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

/// What a server gets, as the golden file writes it.
std::string Written(const std::string& statement, const Target& target) {
  try {
    const std::string text = Translate(statement, target, test::SuiteSchema()).text;
    return text == statement ? "=" : text;
  } catch (const DataError& error) {
    return std::string("refused ") + error.what();
  }
}

/// The golden file with what the servers get today.
std::vector<std::string> Rewritten(const std::vector<std::string>& golden) {
  std::vector<std::string> lines;
  for (const std::string& line : golden) {
    if (line.starts_with(kPostgres) || line.starts_with(kTransactSql)) continue;
    lines.push_back(line);
    if (!line.starts_with(kModule)) continue;
    const std::string statement = line.substr(kModule.size());
    lines.push_back(std::string(kPostgres) + Written(statement, PostgresTarget("zh")));
    lines.push_back(std::string(kTransactSql) + Written(statement, TransactSqlTarget()));
  }
  return lines;
}

/// A statement with its values taken out: what is left tells its kind.
std::string KindOf(const std::string& statement) {
  static const std::regex text("'[^']*'");
  static const std::regex number("(^|[^A-Za-z0-9_])[0-9]+([.][0-9]+)?");
  return std::regex_replace(std::regex_replace(statement, text, "''"), number, "$010");
}

TEST(ServerStatements, AreTranslatedAsTheyEverWere) {
  const std::vector<std::string> golden = LinesOf(kGolden);
  const std::vector<std::string> lines = Rewritten(golden);
  if (std::getenv("QV_WRITE_GOLDEN")) {
    std::ofstream out(kGolden);
    for (const std::string& line : lines) out << line << "\n";
    GTEST_SKIP() << "wrote " << kGolden;
  }
  ASSERT_GT(lines.size(), 200U);
  EXPECT_EQ(golden, lines);
}

TEST(ServerStatements, AreAllThatTheScenariosRun) {
  std::set<std::string> known;
  for (const std::string& line : LinesOf(kGolden)) {
    if (line.starts_with(kModule)) known.insert(KindOf(line.substr(kModule.size())));
  }
  int statements = 0;
  for (const auto& entry : fs::directory_iterator(QV_SCENARIOS)) {
    if (entry.path().extension() != ".out") continue;
    for (const std::string& line : LinesOf(entry.path())) {
      if (!line.starts_with("exec \"") && !line.starts_with("open \"")) continue;
      const std::string built = nlohmann::json::parse(line.substr(5)).get<std::string>();
      const std::string statement = test::OfServerDialect(built);
      EXPECT_TRUE(known.contains(KindOf(statement))) << entry.path() << "\n" << statement;
      ++statements;
    }
  }
  EXPECT_GT(statements, 300);
}

}  // namespace
}  // namespace qvzj::dialect
