#include "tests/architecture/arrows.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

namespace qvzj::architecture {
namespace {

namespace fs = std::filesystem;

/// Paths of all sources below the top directories that the rules speak about, from the root.
std::vector<std::string> Sources() {
  const fs::path root = QV_SOURCE_DIR;
  std::set<std::string> tops;
  for (const Rule& rule : Rules()) {
    tops.emplace(rule.directory.substr(0, rule.directory.find('/')));
  }
  std::vector<std::string> sources;
  for (const std::string& top : tops) {
    if (!fs::is_directory(root / top)) continue;
    for (const auto& entry : fs::recursive_directory_iterator(root / top)) {
      const fs::path& path = entry.path();
      if (path.extension() != ".h" && path.extension() != ".cpp") continue;
      sources.push_back(fs::relative(path, root).generic_string());
    }
  }
  return sources;
}

TEST(Arrows, EveryIncludeOfTheTreeIsAllowed) {
  const std::vector<std::string> sources = Sources();
  ASSERT_GT(sources.size(), 50u) << "the tree was not found at " << QV_SOURCE_DIR;
  for (const std::string& file : sources) {
    std::ifstream in(fs::path(QV_SOURCE_DIR) / file);
    int number = 0;
    for (std::string line; std::getline(in, line);) {
      ++number;
      EXPECT_EQ(Fault(file, line), "") << "line " << number;
    }
  }
}

TEST(Arrows, EveryDirectoryWithSourcesHasARule) {
  for (const std::string& file : Sources()) {
    if (file.ends_with("/main.cpp")) continue;
    EXPECT_NE(RuleOf(file), nullptr) << file;
  }
}

TEST(Arrows, EveryDirectoryWithARuleIsInTheDrawing) {
  std::ifstream in(fs::path(QV_SOURCE_DIR) / "docs/ARCHITECTURE.md");
  const std::string document{std::istreambuf_iterator<char>(in), {}};
  const size_t begin = document.find("## The picture");
  ASSERT_NE(begin, std::string::npos);
  const std::string picture = document.substr(begin, document.find("\n## ", begin + 1) - begin);
  for (const Rule& rule : Rules()) {
    EXPECT_NE(picture.find(rule.directory), std::string::npos) << rule.directory;
  }
}

TEST(Arrows, AnArrowAgainstTheDrawingIsAFault) {
  EXPECT_NE(Fault("ledger/query.cpp", "#include \"register/list.h\""), "");
  EXPECT_NE(Fault("platform/basic/text.cpp", "#include \"platform/services.h\""), "");
  EXPECT_NE(Fault("control/refresh.cpp", "#include \"adapters/sqlite/sqlite_session.h\""), "");
}

TEST(Arrows, AnArrowOfTheDrawingIsNone) {
  EXPECT_EQ(Fault("register/list.cpp", "#include \"ledger/query.h\""), "");
  EXPECT_EQ(Fault("ledger/query.cpp", "#include \"ledger/query.h\""), "");
  EXPECT_EQ(Fault("services/query.cpp", "#include \"platform/basic/text.h\""), "");
}

TEST(Arrows, AnInnerPlatformDirectoryDoesNotSeeTheOuterOne) {
  EXPECT_NE(Fault("platform/ui/form.cpp", "#include \"platform/boxes.h\""), "");
  EXPECT_NE(Fault("platform/ui/form.cpp", "#include \"platform/data/recordset.h\""), "");
}

TEST(Arrows, TheCoreMayNotIncludeALibrary) {
  EXPECT_NE(Fault("ledger/query.cpp", "#include <sqlite3.h>"), "");
  EXPECT_NE(Fault("forms/startup.cpp", "#include <QWidget>"), "");
  EXPECT_NE(Fault("services/query.cpp", "#  include <windows.h>"), "");
  EXPECT_EQ(Fault("services/query.cpp", "#include <string_view>"), "");
}

TEST(Arrows, ALibraryIsKnownOnlyToTheAdapterThatBindsIt) {
  EXPECT_EQ(Fault("adapters/sqlite/sqlite_session.cpp", "#include <sqlite3.h>"), "");
  EXPECT_NE(Fault("suite/store/schema.cpp", "#include <sqlite3.h>"), "");
  EXPECT_EQ(Fault("frontends/qt/mirror.cpp", "#include <QWidget>"), "");
}

TEST(Arrows, NoRoomOfTheSuiteSeesItsNeighbour) {
  EXPECT_NE(Fault("suite/import/import.cpp", "#include \"suite/demo/demo.h\""), "");
  EXPECT_NE(Fault("suite/users/login.cpp", "#include \"suite/visits/task.h\""), "");
  EXPECT_NE(Fault("suite/store/settle.cpp", "#include \"suite/copy/copy.h\""), "");
  EXPECT_EQ(Fault("suite/copy/copy.cpp", "#include \"suite/store/tables.h\""), "");
}

/// Is `to` among the directories that `from` may include from, directly or by way of others?
bool Reaches(const Rule& from, const Rule& to, std::set<const Rule*>& seen) {
  for (const Rule& next : Rules()) {
    const bool arrow = &next != &from &&
                       std::any_of(from.may_include.begin(), from.may_include.end(), [&](auto dir) {
                         return next.directory == dir || IsUnder(next.directory, dir);
                       });
    if (!arrow || !seen.insert(&next).second) continue;
    if (&next == &to || Reaches(next, to, seen)) return true;
  }
  return false;
}

TEST(Arrows, NoAllowedWayLeadsBack) {
  for (const Rule& rule : Rules()) {
    std::set<const Rule*> seen;
    EXPECT_FALSE(Reaches(rule, rule, seen)) << rule.directory << " reaches itself";
  }
}

TEST(Arrows, AHeaderOfTheCoreIsNamedByItsPathFromTheRoot) {
  EXPECT_NE(Fault("ledger/query.cpp", "#include \"query.h\""), "");
}

}  // namespace
}  // namespace qvzj::architecture
