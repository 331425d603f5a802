#include "adapters/system/private_files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>

#include "tests/support/temporary_folder.h"

namespace qvzj {
namespace {

namespace fs = std::filesystem;

class PrivateFiles : public testing::Test {
 protected:
  /// Grants everything, as a careless process does.
  PrivateFiles() : before_(umask(0)) {}
  ~PrivateFiles() override { umask(before_); }

  std::string Path(const char* name) const { return (folder_.Path() / name).string(); }
  static int Mode(const std::string& path) {
    return static_cast<int>(fs::status(path).permissions());
  }

 private:
  mode_t before_;
  test::TemporaryFolder folder_;
};

TEST_F(PrivateFiles, AreForTheirOwnerAlone) {
  MakePrivateFile(Path("a"));
  EXPECT_EQ(Mode(Path("a")), 0600);
  EXPECT_EQ(fs::file_size(Path("a")), 0U);
  std::ofstream(Path("a")) << "text";
  EXPECT_EQ(Mode(Path("a")), 0600);
}

TEST_F(PrivateFiles, KeepWhatIsThereAlready) {
  std::ofstream(Path("a")) << "text";
  fs::permissions(Path("a"), fs::perms{0640});
  MakePrivateFile(Path("a"));
  EXPECT_EQ(Mode(Path("a")), 0640);
  EXPECT_EQ(fs::file_size(Path("a")), 4U);
}

TEST_F(PrivateFiles, LieInFoldersForTheirOwnerAlone) {
  MakePrivateFolder(Path("a/b/c/"));
  EXPECT_EQ(Mode(Path("a")), 0700);
  EXPECT_EQ(Mode(Path("a/b/c")), 0700);
  fs::permissions(Path("a"), fs::perms{0750});
  MakePrivateFolder(Path("a"));
  EXPECT_EQ(Mode(Path("a")), 0750);
}

TEST_F(PrivateFiles, SayWhichFolderCannotBeMade) {
  std::ofstream(Path("a")) << "text";
  EXPECT_THROW(MakePrivateFolder(Path("a/b")), fs::filesystem_error);
}

}  // namespace
}  // namespace qvzj
