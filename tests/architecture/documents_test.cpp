#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>

namespace {

namespace fs = std::filesystem;

std::string Content(const fs::path& file) {
  std::ifstream in(fs::path(QV_SOURCE_DIR) / file, std::ios::binary);
  EXPECT_TRUE(in) << file;
  return {std::istreambuf_iterator<char>(in), {}};
}

TEST(Documents, TheHostOfHostingIsTheOneThatIsBuilt) {
  const std::string host = Content("hosts/minimal/main.cpp");
  EXPECT_NE(Content("docs/HOSTING.md").find("```cpp\n" + host + "```"), std::string::npos)
      << "docs/HOSTING.md must show hosts/minimal/main.cpp as it is";
}

TEST(Documents, EveryLinkLeadsToAFile) {
  static const std::regex kLink(R"(\]\(([^)#]+)\))");
  for (const fs::path document : {"README.md", "docs/ARCHITECTURE.md", "docs/HOSTING.md",
                                  "docs/DATABASES.md", "docs/TESTING.md"}) {
    const std::string text = Content(document);
    for (auto link = std::sregex_iterator(text.begin(), text.end(), kLink);
         link != std::sregex_iterator(); ++link) {
      const std::string target = (*link)[1];
      if (target.find("://") != std::string::npos) continue;
      EXPECT_TRUE(fs::exists(fs::path(QV_SOURCE_DIR) / document.parent_path() / target))
          << document << " names " << target;
    }
  }
}

TEST(Documents, EveryPathThatTheReadmeNamesIsThere) {
  static const std::regex kPath(R"(`([a-z]+/(?:[a-z]+/)?)`)");
  const std::string text = Content("README.md");
  int count = 0;
  for (auto path = std::sregex_iterator(text.begin(), text.end(), kPath);
       path != std::sregex_iterator(); ++path, ++count) {
    EXPECT_TRUE(fs::is_directory(fs::path(QV_SOURCE_DIR) / (*path)[1].str())) << (*path)[1];
  }
  EXPECT_GT(count, 10);
}

}  // namespace
