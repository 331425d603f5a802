#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "frontends/headless/headless.h"
#include "frontends/script/property_store.h"
#include "frontends/script/script_error.h"
#include "frontends/script/settings_file.h"

namespace qvzj::script {
namespace {

class ScriptFiles : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = (std::filesystem::temp_directory_path() / "qvzj-script-XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    folder_ = pattern;
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  std::string File(const char* name) const { return (folder_ / name).string(); }

  std::string Content(const std::string& file) const {
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
  }

  void Write(const std::string& file, const std::string& text) { std::ofstream(file) << text; }

 private:
  std::filesystem::path folder_;
};

TEST_F(ScriptFiles, APropertyStoreIsForItsOwnerAlone) {
  PropertyStore store;
  store.WriteText("Password", "secret", "");
  store.Store(File("store.json"));
  EXPECT_EQ(std::filesystem::status(File("store.json")).permissions(),
            std::filesystem::perms{0600});
}

TEST_F(ScriptFiles, APropertyStoreKeepsTheOrderWritten) {
  PropertyStore store;
  store.WriteText("myName", "张三", "");
  store.WriteEmpty("AlertType");
  store.WriteInteger("Language", 1, 0);
  store.Store(File("store.json"));
  EXPECT_EQ(Content(File("store.json")),
            "{\n  \"myName\": \"张三\",\n  \"AlertType\": null,\n  \"Language\": 1\n}\n");
}

TEST_F(ScriptFiles, APropertyStoreComparesKeysWithoutCase) {
  Write(File("store.json"), R"({"Showmode": 1, "MYNAME": "x"})");
  const PropertyStore store = PropertyStore::Load(File("store.json"));
  EXPECT_EQ(store.ReadInteger("showmode", 0), 1);
  EXPECT_EQ(store.ReadText("myName", ""), "x");
}

TEST_F(ScriptFiles, APropertyStoreAnswersThePresetForAMissingKey) {
  const PropertyStore store;
  EXPECT_EQ(store.ReadText("Password", "p"), "p");
  EXPECT_EQ(store.ReadInteger("SQLData", 7), 7);
}

TEST_F(ScriptFiles, APropertyStoreRefusesATextWhereANumberBelongs) {
  Write(File("store.json"), R"({"SQLData": "many"})");
  const PropertyStore store = PropertyStore::Load(File("store.json"));
  EXPECT_THROW(store.ReadInteger("SQLData", 0), TypeMismatchError);
}

TEST_F(ScriptFiles, APropertyStoreRefusesANumberThatLeaves16Bits) {
  Write(File("store.json"), R"({"SQLData": 40000})");
  const PropertyStore store = PropertyStore::Load(File("store.json"));
  EXPECT_THROW(store.ReadInteger("SQLData", 0), OverflowError);
}

TEST_F(ScriptFiles, APropertyStoreThatIsNoJsonObjectIsAnError) {
  Write(File("store.json"), "[1]");
  EXPECT_THROW(PropertyStore::Load(File("store.json")), ScriptError);
  EXPECT_THROW(PropertyStore::Load(File("missing.json")), ScriptError);
}

TEST_F(ScriptFiles, ASettingWrittenToAFileIsThereNextTime) {
  StoreSetting(File("settings.json"), "tessary", "qvTask", "DataPath", "/数据");
  StoreSetting(File("settings.json"), "Tessary", "qv2000", "JbrFrom", "1");
  MemorySettings settings;
  LoadSettings(File("settings.json"), settings);
  EXPECT_EQ(settings.Get("TESSARY", "qvtask", "datapath", ""), "/数据");
  EXPECT_EQ(settings.Get("tessary", "qv2000", "JbrFrom", "0"), "1");
}

TEST_F(ScriptFiles, ASettingsFileThatIsNotThereHoldsNone) {
  MemorySettings settings;
  LoadSettings(File("missing.json"), settings);
  EXPECT_TRUE(settings.All().empty());
}

}  // namespace
}  // namespace qvzj::script
