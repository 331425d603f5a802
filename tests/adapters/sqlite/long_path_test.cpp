#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "platform/basic/errors.h"
#include "tests/adapters/sqlite/temporary.h"

// Data folders whose names take more bytes than the engine itself allows for.
namespace qvzj {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;

std::string Repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

/// A folder of 160 Chinese characters below a temporary one, in three steps.
class LongPath : public testing::Test {
 protected:
  LongPath() {
    fs::create_directories(Folder());
    SqliteOptions options;
    options.create = true;
    store::CreateSchema(*OpenSqlite(File(), options));
  }
  fs::path Folder() const {
    return outer_.Path() / Repeated("帐", 60) / Repeated("套", 60) / Repeated("册", 40);
  }
  std::string File() const { return (Folder() / store::kDataFile).string(); }
  std::set<std::string> Files() const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(Folder())) {
      names.insert(entry.path().filename().string());
    }
    return names;
  }

  TemporaryFolder outer_;
};

TEST_F(LongPath, OpensAndKeepsItsLogBesideTheFile) {
  auto session = OpenSqlite(File(), {});
  session->NativeScript("insert into cards(compname) values('甲');");
  EXPECT_EQ(session->Native("pragma journal_mode").Text(0), "wal");
  EXPECT_EQ(Files(), (std::set<std::string>{"qvjxc.db", "qvjxc.db-shm", "qvjxc.db-wal"}));
  session.reset();
  EXPECT_EQ(Files(), std::set<std::string>{"qvjxc.db"});
  EXPECT_EQ(OpenSqlite(File(), {})->Query("select count(*) from cards").Text(0), "1");
}

TEST_F(LongPath, IsSharedBySessionsThatNameItDifferently) {
  auto one = OpenSqlite(File(), {});
  const fs::path before = fs::current_path();
  fs::current_path(Folder());
  auto other = OpenSqlite(store::kDataFile, {});
  fs::current_path(before);
  one->NativeScript("insert into cards(compname) values('甲');");
  EXPECT_EQ(other->Query("select count(*) from cards").Text(0), "1");
  data::Transaction writing(*one);
  EXPECT_THROW(
      { other->NativeScript("pragma busy_timeout=20; insert into cards(compname) values('乙');"); },
      DataError);
}

TEST_F(LongPath, KeepsARollbackJournalAsWell) {
  auto session = OpenSqlite(File(), {});
  session->NativeScript("pragma journal_mode=delete; insert into cards(compname) values('甲');");
  EXPECT_EQ(session->Query("select count(*) from cards").Text(0), "1");
}

TEST_F(LongPath, NoticesThatTheFileWasReplaced) {
  auto session = OpenSqlite(File(), {});
  fs::copy_file(File(), File() + ".backup");
  fs::rename(File() + ".backup", File());
  EXPECT_THROW(session->NativeScript("insert into cards(compname) values('甲');"), DataError);
}

TEST_F(LongPath, SaysThatAFileIsMissing) {
  try {
    OpenSqlite((Folder() / "nothing.db").string(), {});
    FAIL() << "opened what is not there";
  } catch (const DataError& error) {
    EXPECT_EQ(error.Cause(), DataCause::NoFile);
  }
}

TEST_F(LongPath, OpensAtEveryLengthAroundTheEnginesOwnLimit) {
  const fs::path outer = outer_.Path() / Repeated("深", 80);
  const std::string name = std::string("/") + store::kDataFile;
  for (size_t length = 490; length <= 520; ++length) {
    const fs::path folder =
        outer / std::string(length - outer.string().size() - 1 - name.size(), 'y');
    fs::create_directories(folder);
    const std::string file = folder.string() + name;
    SqliteOptions options;
    options.create = true;
    ASSERT_NO_THROW(OpenSqlite(file, options)->NativeScript("create table t(x);")) << file.size();
    ASSERT_NO_THROW(OpenSqlite(file, {})->NativeScript("insert into t values(1);")) << file.size();
  }
}

}  // namespace
}  // namespace qvzj
