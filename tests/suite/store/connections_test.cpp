#include "suite/store/connections.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "platform/basic/errors.h"
#include "tests/adapters/sqlite/temporary.h"

namespace qvzj::store {
namespace {

using test::TemporaryDatabase;
using test::TemporaryFolder;

bool OpenFolder(SuiteConnections& connections, data::Connection& connection,
                const std::string& folder) {
  return connections.OpenConnection(0, connection, folder, "0", "", "");
}

TEST(SuiteConnections, OpensTheDataFileOfTheFolder) {
  TemporaryDatabase file;
  SuiteConnections connections;
  data::Connection connection;
  EXPECT_TRUE(OpenFolder(connections, connection, file.Folder().string()));
  EXPECT_EQ(connection.State(), 1);
  EXPECT_EQ(connection.Open("select count(*) from tAccountDetail Where 1=2").Text(0), "0");
  EXPECT_EQ(connections.LastError(), "");
}

TEST(SuiteConnections, AcceptsAFolderThatEndsInASlashOfEitherKind) {
  TemporaryDatabase file;
  for (const char* slash : {"/", "\\"}) {
    SuiteConnections connections;
    data::Connection connection;
    EXPECT_TRUE(OpenFolder(connections, connection, file.Folder().string() + slash));
  }
}

TEST(SuiteConnections, NeverMakesAMissingDataFile) {
  TemporaryFolder folder;
  SuiteConnections connections;
  data::Connection connection;
  EXPECT_FALSE(OpenFolder(connections, connection, folder.Path().string()));
  EXPECT_EQ(connection.State(), 0);
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / kDataFile));
  EXPECT_NE(connections.LastError().find(kDataFile), std::string::npos);
}

TEST(SuiteConnections, AnswersFalseForAFileThatIsNoDatabase) {
  TemporaryFolder folder;
  std::ofstream(folder.Path() / kDataFile) << std::string(2000, 'x');
  SuiteConnections connections;
  data::Connection connection;
  EXPECT_FALSE(OpenFolder(connections, connection, folder.Path().string()));
  EXPECT_NE(connections.LastError().find("not a database"), std::string::npos);
}

TEST(ConnectionOptions, TakeTheLimitsOfTheEnvironment) {
  using std::chrono::seconds;
  EXPECT_EQ(WithLimitsOfEnvironment({}).read_limit, seconds(60));
  EXPECT_EQ(WithLimitsOfEnvironment({}).write_limit, seconds(30));
  setenv("QVZJ_READ_LIMIT", "300", 1);
  setenv("QVZJ_WRITE_LIMIT", "0", 1);
  EXPECT_EQ(WithLimitsOfEnvironment({}).read_limit, seconds(300));
  EXPECT_EQ(WithLimitsOfEnvironment({}).write_limit, seconds(0));
  for (const char* text : {"", "-1", "5s", "99999999999"}) {
    setenv("QVZJ_READ_LIMIT", text, 1);
    EXPECT_EQ(WithLimitsOfEnvironment({}).read_limit, seconds(60)) << text;
  }
  unsetenv("QVZJ_READ_LIMIT");
  unsetenv("QVZJ_WRITE_LIMIT");
}

TEST(SuiteConnections, OrdersTextsInTheLanguageAskedAtEveryStatement) {
  TemporaryDatabase file;
  file.Open()->NativeScript("insert into tRsBasic(fName) values('王'),('一')");
  int language = 0;
  SuiteConnections connections;
  connections.options.language = [&language] { return language; };
  data::Connection connection;
  ASSERT_TRUE(OpenFolder(connections, connection, file.Folder().string()));
  const char* names = "select fName from tRsBasic Order By fName";
  EXPECT_EQ(connection.Open(names).Text(0), "王");
  language = 1;
  EXPECT_EQ(connection.Open(names).Text(0), "一");
}

TEST(Schema, LeavesWhatIsThereAsItIs) {
  TemporaryDatabase file;
  auto session = file.Open();
  session->Execute("Insert Into cards (fID,compname) Values (1,'甲')");
  CreateSchema(*session);
  EXPECT_EQ(session->Query("select compname from cards").Text(0), "甲");
}

TEST(Schema, AddsWhatAnOlderDataFileLacks) {
  TemporaryDatabase file;
  auto session = file.Open();
  session->NativeScript("drop table tTaskList; drop index iLedgerNumber");
  CreateSchema(*session);
  EXPECT_EQ(session->Query("select count(*) from tTaskList Where taskID=5 And fType=1").Text(0),
            "0");
  EXPECT_EQ(
      session->Native("select count(*) from sqlite_master where name='iLedgerNumber'").Text(0),
      "1");
}

}  // namespace
}  // namespace qvzj::store
