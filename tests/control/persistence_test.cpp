#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "control/qvJxc_Zj.h"
#include "platform/basic/text.h"
#include "services/context.h"

namespace qvzj {
namespace {

/// One entry of the host's store, and the default it was written with.
struct Entry {
  std::string key, value, preset;
  friend bool operator==(const Entry&, const Entry&) = default;
};

/// A host's property store that remembers the order of the keys.
class Bag : public PropertyBag {
 public:
  std::string ReadText(const std::string& key, const std::string& preset) const override {
    read.push_back({key, preset, ""});
    for (const Entry& entry : entries) {
      if (basic::EqualIgnoringCase(entry.key, key)) return entry.value;
    }
    return preset;
  }
  int16_t ReadInteger(const std::string& key, int16_t preset) const override {
    const std::string text = ReadText(key, std::to_string(preset));
    return static_cast<int16_t>(std::stoi(text.empty() ? "0" : text));
  }
  void WriteText(const std::string& key, const std::string& value,
                 const std::string& preset) override {
    entries.push_back({key, value, preset});
  }
  void WriteInteger(const std::string& key, int16_t value, int16_t preset) override {
    WriteText(key, std::to_string(value), std::to_string(preset));
  }
  void WriteEmpty(const std::string& key) override { WriteText(key, "", ""); }

  std::vector<Entry> entries;
  mutable std::vector<Entry> read;  // key and default of each
};

class PersistenceTest : public testing::Test {
 protected:
  PersistenceTest() { ResetShared(); }
  ~PersistenceTest() override { ResetShared(); }
  qvJxc_Zj control;
  Bag bag;
};

const std::string kNoRights(350, '0');

TEST_F(PersistenceTest, AFreshControlHoldsItsDefaults) {
  Shared().UserName = "somebody";
  Shared().myTaskID = 7;
  Shared().Password = "";
  Shared().showmode = 1;
  Shared().SQLData = 1;
  control.InitProperties();
  EXPECT_EQ(Shared().UserName, "");
  EXPECT_EQ(Shared().myTaskID, 0);
  EXPECT_EQ(Shared().Password, "0");
  EXPECT_EQ(Shared().showmode, 0);
  EXPECT_EQ(Shared().SQLData, 0);
}

TEST_F(PersistenceTest, AFreshControlLeavesRightsAndFoldersAlone) {
  control.setMyModel("11111111111");
  control.setPowerPath("/rights");
  control.setZgName("boss");
  control.setMyPower("111");
  control.InitProperties();
  EXPECT_EQ(Shared().myModel, "11111111111");
  EXPECT_EQ(Shared().PowerPath, "/rights");
  EXPECT_EQ(Shared().ZgName, "boss");
  EXPECT_EQ(Shared().myPower, "111");
}

TEST_F(PersistenceTest, RestoreReadsItsKeysInOrderWithTheirDefaults) {
  control.ReadProperties(bag);
  const std::vector<Entry> expected = {
      {"myName", "", ""},    {"Language", "0", ""},      {"AlertType", "0", ""},
      {"ZgName", "", ""},    {"myPower", kNoRights, ""}, {"myModel", "", ""},
      {"showmode", "0", ""}, {"UserPath", "", ""},       {"Password", "", ""},
      {"SQLData", "0", ""},  {"UserID", "", ""},         {"Default", "", ""}};
  EXPECT_EQ(bag.read, expected);
}

TEST_F(PersistenceTest, SaveWritesItsKeysInOrderWithTheirDefaults) {
  control.setMyName("张三");
  control.setUserName("wang");
  control.setUserPath("/data");
  control.WriteProperties(bag);
  const std::vector<Entry> expected = {
      {"myName", "张三", ""},   {"Language", "0", "0"}, {"AlertType", "", ""},
      {"UserName", "wang", ""}, {"ZgName", "", ""},     {"myPower", kNoRights, kNoRights},
      {"myModel", "", ""},      {"Showmode", "0", "0"}, {"UserPath", "/data", ""},
      {"Password", "0", ""},    {"SQLData", "0", "0"},  {"UserID", "", ""},
      {"Default", "", ""}};
  EXPECT_EQ(bag.entries, expected);
}

TEST_F(PersistenceTest, ARestoredControlWithoutASavedPasswordHasNone) {
  control.InitProperties();
  control.ReadProperties(bag);
  EXPECT_EQ(Shared().Password, "");
}

TEST_F(PersistenceTest, ARestoredControlWithoutSavedRightsMayDoNothing) {
  control.setMyPower("111");
  control.ReadProperties(bag);
  EXPECT_EQ(Shared().myPower, kNoRights);
}

TEST_F(PersistenceTest, SavedValuesComeBackExceptTheUser) {
  control.setMyName("张三");
  control.setLanguage(1);
  control.setUserName("wang");
  control.setZgName("boss");
  control.setMyPower("101");
  control.setMyModel("11111111111");
  Shared().showmode = 1;
  control.setUserPath("/data");
  control.setPassword("secret");
  control.setSQLData(1);
  control.setUserID("sa");
  control.setDefault("books");
  control.WriteProperties(bag);

  ResetShared();
  control.InitProperties();
  control.ReadProperties(bag);
  EXPECT_EQ(control.myName(), "张三");
  EXPECT_EQ(Shared().Language, 1);
  EXPECT_EQ(Shared().UserName, "");
  EXPECT_EQ(Shared().ZgName, "boss");
  EXPECT_EQ(Shared().myPower, "101");
  EXPECT_EQ(Shared().myModel, "11111111111");
  EXPECT_EQ(Shared().showmode, 1);
  EXPECT_EQ(Shared().UserPath, "/data");
  EXPECT_EQ(Shared().Password, "secret");
  EXPECT_EQ(Shared().SQLData, 1);
  EXPECT_EQ(control.UserID(), "sa");
  EXPECT_EQ(control.Default(), "books");
}

TEST_F(PersistenceTest, AFailingStoreFailsTheEvent) {
  struct Broken : Bag {
    std::string ReadText(const std::string&, const std::string&) const override {
      throw std::runtime_error("store");
    }
  } broken;
  EXPECT_THROW(control.ReadProperties(broken), std::runtime_error);
}

TEST_F(PersistenceTest, AlertTypeIsAcceptedAndForgotten) {
  control.setAlertType(5);
  EXPECT_EQ(control.AlertType(), 0);
}

TEST_F(PersistenceTest, EveryPropertyIsStoredAsItIs) {
  control.setMyTaskID(70000);
  control.setMyDate(45366.5);
  control.setCompName("总公司");
  control.setPowerPath("C:\\rights");
  EXPECT_EQ(Shared().myTaskID, 70000);
  EXPECT_EQ(Shared().myDate, 45366.5);
  EXPECT_EQ(Shared().CompName, "总公司");
  EXPECT_EQ(Shared().PowerPath, "C:\\rights");
}

TEST_F(PersistenceTest, AllControlsShareOneSetOfValues) {
  qvJxc_Zj other;
  control.setUserID("sa");
  EXPECT_EQ(other.UserID(), "sa");
}

}  // namespace
}  // namespace qvzj
