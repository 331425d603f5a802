#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/basic/errors.h"
#include "tests/adapters/sqlite/temporary.h"

namespace qvzj {
namespace {

using test::TemporaryDatabase;
using test::TemporaryFolder;

constexpr const char* kInsert =
    "Insert Into cards (CompCode,compname,fID,fType0) Values ('0001','甲公司',5,0)";

/// What OpenSqlite says about a file it cannot open.
std::string Refusal(const std::string& file, const SqliteOptions& options = {}) {
  try {
    OpenSqlite(file, options);
  } catch (const DataError& error) {
    return error.what();
  }
  return "";
}

SqliteOptions Impatient() {
  SqliteOptions options;
  options.busy_timeout = std::chrono::milliseconds(20);
  return options;
}

TEST(SqliteSession, KeepsAWriteAheadLogAndWaitsForTheDisk) {
  TemporaryDatabase file;
  auto session = file.Open();
  EXPECT_EQ(session->Native("pragma journal_mode").Text(0), "wal");
  EXPECT_EQ(session->Native("pragma synchronous").Text(0), "2");
}

TEST(SqliteSession, MakesAFileAndItsLogForTheirOwnerAlone) {
  TemporaryDatabase file;
  auto session = file.Open();
  session->Execute(kInsert);
  const std::string log = file.File() + "-wal";
  ASSERT_TRUE(std::filesystem::exists(log));
  EXPECT_EQ(std::filesystem::status(file.File()).permissions(), std::filesystem::perms{0600});
  EXPECT_EQ(std::filesystem::status(log).permissions(), std::filesystem::perms{0600});
}

TEST(SqliteSession, SaysWhichFileIsMissing) {
  TemporaryFolder folder;
  const std::string file = (folder.Path() / "qvjxc.db").string();
  EXPECT_EQ(Refusal(file), file + ": unable to open database file");
  EXPECT_FALSE(std::filesystem::exists(file));
}

TEST(SqliteSession, SaysThatAFileIsNoDatabase) {
  TemporaryFolder folder;
  const std::string file = (folder.Path() / "qvjxc.db").string();
  std::ofstream(file) << std::string(4096, 'x');
  EXPECT_EQ(Refusal(file), file + ": file is not a database");
}

TEST(SqliteSession, SaysThatAFolderIsNoDatabase) {
  TemporaryFolder folder;
  EXPECT_EQ(Refusal(folder.Path().string()),
            folder.Path().string() + ": unable to open database file");
}

TEST(SqliteSession, SaysThatTheFileStaysLocked) {
  TemporaryDatabase file;
  auto holder = file.Open();
  auto waiting = file.Open(Impatient());
  data::Transaction writing(*holder);
  try {
    waiting->Execute(kInsert);
    FAIL() << "two wrote at once";
  } catch (const DataError& error) {
    EXPECT_STREQ(error.what(), "database is locked");
  }
  writing.Commit();
  waiting->Execute(kInsert);
  EXPECT_EQ(holder->Query("select count(*) from cards").Text(0), "1");
}

TEST(SqliteSession, ReadsWhileAnotherSessionWrites) {
  TemporaryDatabase file;
  auto writer = file.Open();
  auto reader = file.Open(Impatient());
  data::Transaction writing(*writer);
  writer->Execute(kInsert);
  EXPECT_EQ(reader->Query("select count(*) from cards").Text(0), "0");
  writing.Commit();
  EXPECT_EQ(reader->Query("select count(*) from cards").Text(0), "1");
}

TEST(SqliteSession, ReadsAFileOpenedReadOnlyAndRefusesToWrite) {
  TemporaryDatabase file;
  file.Open()->Execute(kInsert);
  SqliteOptions options;
  options.read_only = true;
  auto session = file.Open(options);
  EXPECT_EQ(session->Query("select compname from cards").Text(0), "甲公司");
  EXPECT_THROW(session->Execute("Delete from cards Where fID=5"), DataError);
}

TEST(SqliteSession, RefusesAParameterThatNobodyFills) {
  TemporaryDatabase file;
  auto session = file.Open();
  EXPECT_THROW(session->Query("select count(*) from cards Where fID=?"), DataError);
  EXPECT_THROW(session->Query("select count(*) from cards Where fID=@id"), DataError);
}

TEST(SqliteSession, OrdersByStrokesForReadersOfTraditionalChinese) {
  TemporaryDatabase file;
  int language = 0;
  SqliteOptions options;
  options.language = [&language] { return language; };
  auto session = file.Open(options);
  session->NativeScript("insert into tRsBasic(fName) values('王'),('一'),('陳'),('丁')");
  const auto names = [&session] {
    std::string joined;
    auto set = session->Query("select fName from tRsBasic Order By fName");
    for (; !set.Eof(); set.MoveNext()) joined += set.Text(0);
    return joined;
  };
  EXPECT_EQ(names(), "陳丁王一");
  language = 1;
  EXPECT_EQ(names(), "一丁王陳");
}

TEST(SqliteSession, StoresDatesSoThatEveryToolCanReadThem) {
  TemporaryDatabase file;
  auto session = file.Open();
  session->Execute("Insert Into tAccountDetail (fDate) Values ('03/15/2003')");
  EXPECT_EQ(session->Native("select typeof(fDate)||fDate from tAccountDetail").Text(0),
            "text2003-03-15");
}

TEST(SqliteSession, ShowsAStoredDateThatIsNoneAsItIs) {
  TemporaryDatabase file;
  auto session = file.Open();
  session->NativeScript(
      "insert into tAccountDetail(fDate) values('2003-02-29'),('2003-12-31 10:30:00'),('soon')");
  auto set = session->Query("select fDate from tAccountDetail order by fID");
  std::string joined;
  for (; !set.Eof(); set.MoveNext()) joined += set.Text(0) + "|";
  EXPECT_EQ(joined, "2003-02-29|2003-12-31|soon|");
}

TEST(SqliteSession, NeedsNoneOfItsOwnOrdersInTheStoredSchema) {
  TemporaryDatabase file;
  file.Open()->Execute(kInsert);
  sqlite3* plain = nullptr;
  ASSERT_EQ(sqlite3_open(file.File().c_str(), &plain), SQLITE_OK);
  EXPECT_EQ(sqlite3_exec(plain,
                         "insert into cards(fID,compname) values(6,'乙');"
                         "reindex; pragma integrity_check; vacuum;",
                         nullptr, nullptr, nullptr),
            SQLITE_OK)
      << sqlite3_errmsg(plain);
  sqlite3_close(plain);
}

TEST(SqliteStatement, BindsValuesOfEveryKind) {
  TemporaryDatabase file;
  auto session = file.Open();
  SqliteStatement insert = session->Prepare(
      "insert into tAccountDetail(fDate,fCompID,fMoneyA,fBrief,fChecker) values(?,?,?,?,?)");
  insert.Bind(1, basic::Date::FromYmd(2003, 3, 15));
  insert.Bind(2, int64_t{5});
  insert.Bind(3, 0.1);
  insert.Bind(4, std::string_view("O'Neil"));
  insert.BindNull(5);
  insert.Run();
  EXPECT_EQ(session->Changes(), 1);
  EXPECT_EQ(session->LastId(), 1);
  auto set = session->Query("select fDate,fCompID,fMoneyA,fBrief,fChecker from tAccountDetail");
  EXPECT_EQ(set.Text(0), "2003-03-15");
  EXPECT_EQ(set.Text(1), "5");
  EXPECT_EQ(set.Number(2), 0.1);
  EXPECT_EQ(set.Text(3), "O'Neil");
  EXPECT_TRUE(set.IsNull(4));
}

TEST(Transaction, LeavesNothingBehindWhenItIsNotCommitted) {
  TemporaryDatabase file;
  auto session = file.Open();
  {
    data::Transaction dropped(*session);
    session->Execute(kInsert);
  }
  EXPECT_EQ(session->Query("select count(*) from cards").Text(0), "0");
  data::Transaction kept(*session);
  session->Execute(kInsert);
  kept.Commit();
  EXPECT_EQ(session->Query("select count(*) from cards").Text(0), "1");
}

TEST(SqliteSession, FindsASoundFileSoundAndABrokenOneBroken) {
  TemporaryDatabase file;
  auto session = file.Open();
  EXPECT_EQ(session->CheckIntegrity(), "");
  session->Execute(kInsert);
  // An index whose entries are taken away behind the table's back no longer agrees with it.
  session->NativeScript(
      "pragma writable_schema=on;"
      "update sqlite_master set sql='create index icardsCode on cards (compname)' "
      "where name='icardsCode';"
      "pragma writable_schema=reset");
  EXPECT_NE(session->CheckIntegrity(), "");
}

TEST(SqliteSession, KeepsWhatWasReportedWhenTheProcessIsKilled) {
  TemporaryDatabase file;
  int report[2];
  ASSERT_EQ(pipe(report), 0);
  const pid_t child = fork();
  if (child == 0) {
    auto session = file.Open();
    for (int id = 1;; ++id) {
      session->Execute("Insert Into cards (fID,compname) Values (" + std::to_string(id) + ",'甲')");
      if (write(report[1], &id, sizeof id) != sizeof id) _exit(1);
    }
  }
  close(report[1]);
  int reported = 0;
  while (reported < 25 && read(report[0], &reported, sizeof reported) == sizeof reported) {
  }
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  for (int id; read(report[0], &id, sizeof id) == sizeof id;) reported = id;
  close(report[0]);
  auto session = file.Open();
  EXPECT_EQ(session->CheckIntegrity(), "");
  EXPECT_GE(session->Query("select max(fID) from cards").Number(0), reported);
}

}  // namespace
}  // namespace qvzj
