#include <gtest/gtest.h>

#include <deque>
#include <sstream>

#include "suite/users/user_rights.h"
#include "tests/suite/users/rights_folder.h"
#include "tools/qvdb/commands.h"

namespace qvzj::qvdb {
namespace {

/// Runs commands as the command line does, passwords typed in order.
struct Admin {
  int Run(std::vector<std::string> words) {
    words.insert(words.begin() + 1, folder.Path());
    std::istringstream in;
    return User(words, {in, out, err, [this](const std::string&) {
                          std::string next = passwords.front();
                          passwords.pop_front();
                          return next;
                        }});
  }
  users::RightsDatabase Rights() const {
    return users::RightsDatabase(folder.File(), users::RightsDatabase::Missing::Fail);
  }

  test::RightsFolder folder;
  std::deque<std::string> passwords;
  std::ostringstream out;
  std::ostringstream err;
};

TEST(UserCommand, AddsAUserWhoCanLogIn) {
  Admin admin;
  admin.passwords = {"secret", "secret"};
  EXPECT_EQ(admin.Run({"add", "王五"}), 0);
  EXPECT_EQ(admin.Rights().Try("王五", "secret", 1000).kind, users::TryResult::Kind::Ok);
  EXPECT_EQ(admin.Rights().Users()[0].power, std::string(350, '1'));
}

TEST(UserCommand, RefusesTwoDifferentPasswords) {
  Admin admin;
  admin.passwords = {"secret", "sceret"};
  EXPECT_EQ(admin.Run({"add", "wang"}), 1);
  EXPECT_EQ(admin.err.str(), "the two passwords differ\n");
  EXPECT_TRUE(admin.Rights().Users().empty());
}

TEST(UserCommand, ChangesAPassword) {
  Admin admin;
  admin.passwords = {"one", "one", "two", "two"};
  admin.Run({"add", "wang"});
  EXPECT_EQ(admin.Run({"passwd", "wang"}), 0);
  EXPECT_EQ(admin.Rights().Try("wang", "two", 1000).kind, users::TryResult::Kind::Ok);
}

TEST(UserCommand, ListsUsersWithTheirState) {
  Admin admin;
  admin.passwords = {"x", "x", "x", "x"};
  admin.Run({"add", "wang", "1101"});
  admin.Run({"add", "li"});
  admin.Run({"disable", "wang"});
  EXPECT_EQ(admin.Run({"list"}), 0);
  EXPECT_EQ(admin.out.str(), "li\t\t350\nwang\tdisabled\t3\n");
}

TEST(UserCommand, EnablesRemovesAndChangesRights) {
  Admin admin;
  admin.passwords = {"x", "x"};
  admin.Run({"add", "wang"});
  admin.Run({"disable", "wang"});
  admin.Run({"enable", "wang"});
  admin.Run({"rights", "wang", "01"});
  EXPECT_FALSE(admin.Rights().Users()[0].disabled);
  EXPECT_EQ(admin.Rights().Users()[0].power.substr(0, 3), "010");
  EXPECT_EQ(admin.Run({"remove", "wang"}), 0);
  EXPECT_TRUE(admin.Rights().Users().empty());
}

TEST(UserCommand, SetsAndShowsTheUnitAndTheExemptUser) {
  Admin admin;
  admin.passwords = {"x", "x"};
  admin.Run({"add", "wang"});
  admin.Run({"unit", "总公司"});
  admin.Run({"exempt", "boss"});
  admin.Run({"unit"});
  admin.Run({"exempt"});
  EXPECT_EQ(admin.out.str(), "总公司\nboss\n");
}

TEST(UserCommand, ShowsTheRecordOfOpenedFunctions) {
  Admin admin;
  users::RightsDatabase(admin.folder.File(), users::RightsDatabase::Missing::Create)
      .Record("wang", "mnuCard");
  EXPECT_EQ(admin.Run({"log"}), 0);
  const std::string line = admin.out.str();
  EXPECT_EQ(line.substr(line.find('\t')), "\twang\tmnuCard\n");
}

TEST(UserCommand, FailsWithAReasonWhenThereIsNoDatabase) {
  Admin admin;
  EXPECT_EQ(admin.Run({"list"}), 1);
  EXPECT_NE(admin.err.str().find("qvSet.mdb"), std::string::npos);
}

TEST(UserCommand, ShowsItsUsageForWrongWords) {
  Admin admin;
  EXPECT_EQ(admin.Run({"add"}), 2);
  EXPECT_EQ(admin.Run({"befriend", "wang"}), 2);
  EXPECT_EQ(admin.err.str().rfind("usage: user add", 0), 0u);
}

}  // namespace
}  // namespace qvzj::qvdb
