#include "tests/architecture/documents.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace qvzj::architecture {
namespace {

namespace fs = std::filesystem;

const fs::path kRoot = QV_SOURCE_DIR;

std::string Content(const fs::path& file) {
  std::ifstream in(kRoot / file, std::ios::binary);
  EXPECT_TRUE(in) << file;
  return {std::istreambuf_iterator<char>(in), {}};
}

/// What people read, from the root.
std::vector<fs::path> Documents() {
  std::vector<fs::path> documents{"README.md", "CONTRIBUTING.md", "tests/scenarios/README.md"};
  for (const auto& entry : fs::directory_iterator(kRoot / "docs")) {
    if (entry.path().extension() == ".md")
      documents.push_back(entry.path().lexically_relative(kRoot));
  }
  return documents;
}

/// The top directories of the tree, what is built left out.
std::vector<std::string> Tops() {
  std::vector<std::string> tops;
  for (const auto& entry : fs::directory_iterator(kRoot)) {
    const std::string name = entry.path().filename().string();
    if (entry.is_directory() && name != "build" && !name.starts_with('.')) tops.push_back(name);
  }
  return tops;
}

/// A file or directory, or the header or source that a name without an ending means.
bool IsThere(const std::string& path) {
  return fs::exists(kRoot / path) || fs::exists(kRoot / (path + ".h")) ||
         fs::exists(kRoot / (path + ".cpp"));
}

/// Every test of the tree as `Suite.Name`.
std::set<std::string> Tests() {
  std::set<std::string> tests;
  for (const auto& entry : fs::recursive_directory_iterator(kRoot / "tests")) {
    const fs::path& file = entry.path();
    if (file.extension() == ".qvs") tests.insert("Scenario." + file.stem().string());
    if (file.extension() != ".cpp" && file.filename() != "CMakeLists.txt") continue;
    for (std::string& name : TestsOf(Content(file.lexically_relative(kRoot)))) {
      tests.insert(std::move(name));
    }
  }
  return tests;
}

/// True when the tree has the test, or for `Suite.*` any test of the suite.
bool IsTest(const std::set<std::string>& tests, const std::string& name) {
  if (!name.ends_with(".*")) return tests.contains(name);
  const std::string suite = name.substr(0, name.size() - 1);
  const auto first = tests.lower_bound(suite);
  return first != tests.end() && first->starts_with(suite);
}

TEST(Documents, TheHostOfHostingIsTheOneThatIsBuilt) {
  const std::string host = Content("hosts/minimal/main.cpp");
  EXPECT_NE(Content("docs/HOSTING.md").find("```cpp\n" + host + "```"), std::string::npos)
      << "docs/HOSTING.md must show hosts/minimal/main.cpp as it is";
}

TEST(Documents, EveryLinkLeadsToAFileAndAHeadingOfIt) {
  int count = 0;
  for (const fs::path& document : Documents()) {
    for (const std::string& link : LinksOf(Content(document))) {
      ++count;
      const size_t hash = link.find('#');
      const fs::path file =
          hash == 0 ? document : (document.parent_path() / link.substr(0, hash)).lexically_normal();
      ASSERT_TRUE(fs::exists(kRoot / file)) << document << " names " << link;
      if (hash == std::string::npos) continue;
      EXPECT_TRUE(AnchorsOf(Content(file)).contains(link.substr(hash + 1)))
          << document << " names " << link;
    }
  }
  EXPECT_GT(count, 10);
}

TEST(Documents, EveryPathThatTheyNameIsThere) {
  const std::vector<std::string> tops = Tops();
  int count = 0;
  for (const fs::path& document : Documents()) {
    for (const std::string& path : PathsOf(Content(document), tops)) {
      EXPECT_TRUE(IsThere(path)) << document << " names " << path;
      ++count;
    }
  }
  EXPECT_GT(count, 100);
}

TEST(Documents, EveryDecisionIsHeldByATestThatIsThere) {
  const std::set<std::string> tests = Tests();
  ASSERT_GT(tests.size(), 1000u);
  for (const Decision& decision : DecisionsOf(Content("docs/BEHAVIOUR.md"))) {
    EXPECT_FALSE(decision.tests.empty()) << "no test holds:" << decision.what;
    for (const std::string& test : decision.tests) {
      EXPECT_TRUE(IsTest(tests, test)) << test << " is said to hold:" << decision.what;
    }
  }
}

using Texts = std::vector<std::string>;

TEST(DocumentTexts, LinksToOtherMachinesAreNotLookedFor) {
  EXPECT_EQ(LinksOf("[a](b.md) and [c](https://d.example/e) and [f](#g)"), (Texts{"b.md", "#g"}));
}

TEST(DocumentTexts, AHeadingsAnchorHasNoPunctuation) {
  EXPECT_TRUE(AnchorsOf("# One\n\n## What it's `for`, now\n").contains("what-its-for-now"));
}

TEST(DocumentTexts, PathsAreFoundInProseCodeAndTables) {
  EXPECT_EQ(PathsOf("see `a/b.h`, (a/c) | a/ |\n```\nrun a/d.sh\n```\nin a/e.", {"a"}),
            (Texts{"a/b.h", "a/c", "a/", "a/d.sh", "a/e"}));
}

TEST(DocumentTexts, PathsThatStandForAnyNameAreNotLookedFor) {
  EXPECT_EQ(PathsOf("`a/NAME.cpp`, `a/ENGINE/x.h`, `a/README.md`, `b/c`", {"a"}),
            (Texts{"a/README.md"}));
}

TEST(DocumentTexts, ADecisionNamesItsTestsInTheLastColumn) {
  const auto decisions = DecisionsOf(
      "| what | why | test |\n|---|---|---|\n| a `B.C` | d | `E.F`, `G.*` |\n| i | j | |\n");
  ASSERT_EQ(decisions.size(), 2u);
  EXPECT_EQ(decisions[0].tests, (Texts{"E.F", "G.*"}));
  EXPECT_TRUE(decisions[1].tests.empty());
}

TEST(DocumentTexts, TestsAreKnownHoweverTheyAreDeclared) {
  EXPECT_EQ(TestsOf("TEST(A, B) {}\nTEST_F(C,\n       D) {}\nTEST_P(E, F) {}\nadd_test(NAME G.H"),
            (Texts{"G.H", "A.B", "C.D", "E.F"}));
}

}  // namespace
}  // namespace qvzj::architecture
