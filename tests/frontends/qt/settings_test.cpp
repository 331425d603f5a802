#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "frontends/qt/surroundings.h"
#include "tests/support/temporary_folder.h"

namespace qvzj::test {
namespace {

TEST(QtSettingsFile, IsForItsOwnerAloneHoweverOftenItIsWritten) {
  const TemporaryFolder folder;
  const std::filesystem::path file = folder.Path() / "qvzj" / "settings.ini";
  const mode_t before = umask(0);
  for (const char* value : {"UID=u;PWD=p", "UID=u;PWD=q"}) {
    qt::QtSurroundings surroundings(QString::fromStdString(file.string()));
    surroundings.Install();
    Around().settings->Set("tessary", "qvTask", "DataPath", value);
  }
  Around() = {};
  umask(before);
  EXPECT_GT(std::filesystem::file_size(file), 0U);
  EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms{0600});
  EXPECT_EQ(std::filesystem::status(folder.Path() / "qvzj").permissions(),
            std::filesystem::perms{0700});
}

}  // namespace
}  // namespace qvzj::test
