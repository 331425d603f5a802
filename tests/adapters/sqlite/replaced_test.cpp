#include <gtest/gtest.h>

#include <filesystem>

#include "platform/basic/errors.h"
#include "tests/adapters/sqlite/temporary.h"

// What happens when the data file is taken away under a session that has it open.
namespace qvzj {
namespace {

namespace fs = std::filesystem;
using test::TemporaryDatabase;

constexpr const char* kInsert =
    "Insert Into cards (CompCode,compname,fID,fType0) Values ('0001','甲公司',5,0)";

/// A backup of an empty data file, which is then open with one customer stored in its log.
class ReplacedFile : public testing::Test {
 protected:
  ReplacedFile() {
    fs::copy_file(file_.File(), Backup());
    session_ = file_.Open();
    session_->Execute(kInsert);
  }

  std::string Backup() const { return file_.File() + ".backup"; }
  std::string Aside() const { return file_.File() + ".aside"; }
  void MoveBackupOver() const { fs::rename(Backup(), file_.File()); }

  DataCause CauseOf(const std::function<void()>& act) const {
    try {
      act();
    } catch (const DataError& error) {
      return error.Cause();
    }
    ADD_FAILURE() << "nothing was refused";
    return DataCause::Unknown;
  }
  DataCause CauseOfWriting() const {
    return CauseOf([this] { session_->Execute("Update cards set compname='乙' Where fID=5"); });
  }

  /// Customers in a file that is opened anew, and that it is sound.
  static std::string SoundCustomersIn(const std::string& file) {
    auto session = OpenSqlite(file, {});
    EXPECT_EQ(session->CheckIntegrity(), "");
    return session->Query("select count(*) from cards").Text(0);
  }

  TemporaryDatabase file_;
  std::unique_ptr<SqliteSession> session_;
};

TEST_F(ReplacedFile, TakesNoWriteAfterABackupWasMovedOverIt) {
  MoveBackupOver();
  EXPECT_EQ(CauseOfWriting(), DataCause::Replaced);
}

TEST_F(ReplacedFile, TakesNoWriteAfterItWasDeleted) {
  fs::remove(file_.File());
  EXPECT_EQ(CauseOfWriting(), DataCause::Replaced);
}

TEST_F(ReplacedFile, TakesNoWriteAfterItsFolderWasDeleted) {
  fs::remove_all(file_.Folder());
  EXPECT_EQ(CauseOfWriting(), DataCause::Replaced);
}

TEST_F(ReplacedFile, TakesNoWriteAfterItsFolderWasExchanged) {
  const std::string elsewhere = file_.Folder().string() + "-elsewhere";
  fs::rename(file_.Folder(), elsewhere);
  fs::create_directory(file_.Folder());
  fs::copy_file(elsewhere + "/" + store::kDataFile, file_.File());
  EXPECT_EQ(CauseOfWriting(), DataCause::Replaced);
  session_.reset();
  fs::remove_all(elsewhere);
}

TEST_F(ReplacedFile, TakesNoWriteInItsOwnLanguageNorATransactionNorARow) {
  auto writer = session_->Writer("cards", {"compname"});
  MoveBackupOver();
  EXPECT_EQ(CauseOf([this] { session_->NativeScript("delete from cards;"); }), DataCause::Replaced);
  EXPECT_EQ(CauseOf([this] { session_->Native("delete from cards"); }), DataCause::Replaced);
  EXPECT_EQ(CauseOf([this] { session_->Begin(); }), DataCause::Replaced);
  EXPECT_EQ(CauseOf([this] { session_->Writer("cards", {"compname"}); }), DataCause::Replaced);
}

TEST_F(ReplacedFile, IsNotTakenForOursAtTheEndOfATransaction) {
  data::Transaction writing(*session_);
  session_->Execute("Update cards set compname='乙' Where fID=5");
  MoveBackupOver();
  EXPECT_EQ(CauseOf([&writing] { writing.Commit(); }), DataCause::Replaced);
}

TEST_F(ReplacedFile, SaysSoInTheLanguageOfTheUser) {
  int language = 0;
  SqliteOptions options;
  options.language = [&language] { return language; };
  auto session = file_.Open(options);
  MoveBackupOver();
  const auto said = [&session] {
    try {
      session->CheckBeforeClose();
    } catch (const DataError& error) {
      return std::string(error.what());
    }
    return std::string();
  };
  EXPECT_EQ(said().find("打开的数据文件已被替换、移动或删除"), 0u);
  language = 1;
  EXPECT_EQ(said().find("打開的資料檔案已被替換、移動或刪除"), 0u);
}

TEST_F(ReplacedFile, IsStillReadAsItWas) {
  MoveBackupOver();
  EXPECT_EQ(session_->Query("select count(*) from cards").Text(0), "1");
}

TEST_F(ReplacedFile, LeavesTheFileThatTookItsPlaceSound) {
  MoveBackupOver();
  session_.reset();
  EXPECT_EQ(SoundCustomersIn(file_.File()), "0");
}

TEST_F(ReplacedFile, LeavesTheFileThatTookItsPlaceSoundWhenItIsMuchLarger) {
  {
    auto backup = OpenSqlite(Backup(), {});
    backup->NativeScript(
        "with recursive n(i) as (select 1 union all select i+1 from n where i<5000)"
        " insert into cards(compname) select '客户'||i from n;");
  }
  session_->NativeScript("insert into tTaskList(fBrief) select compname from cards;");
  MoveBackupOver();
  session_.reset();
  EXPECT_EQ(SoundCustomersIn(file_.File()), "5000");
}

TEST_F(ReplacedFile, KeepsWhatWasStoredWhereItWasMovedTo) {
  fs::rename(file_.File(), Aside());
  MoveBackupOver();
  session_.reset();
  EXPECT_EQ(SoundCustomersIn(Aside()), "1");
  EXPECT_EQ(SoundCustomersIn(file_.File()), "0");
}

TEST_F(ReplacedFile, LeavesNoLogBehindForTheNextFileWhenTwoHadItOpen) {
  auto other = file_.Open();
  other->Execute("Insert Into cards (CompCode,compname,fID) Values ('0002','乙公司',6)");
  fs::rename(file_.File(), Aside());
  MoveBackupOver();
  session_.reset();
  other.reset();
  EXPECT_EQ(SoundCustomersIn(file_.File()), "0");
  EXPECT_EQ(SoundCustomersIn(Aside()), "2");
}

TEST_F(ReplacedFile, IsNotSeenInAFileThatIsOnlyRenamedAndBack) {
  fs::rename(file_.File(), Aside());
  fs::rename(Aside(), file_.File());
  session_->Execute("Update cards set compname='乙' Where fID=5");
  EXPECT_NO_THROW(session_->CheckBeforeClose());
}

TEST_F(ReplacedFile, IsNotSeenInAFileThatAnotherSessionWritesAndEmptiesItsLog) {
  {
    auto other = file_.Open();
    other->NativeScript(
        "insert into cards(compname) values('丙'); pragma wal_checkpoint(truncate);");
  }
  session_->Execute("Update cards set compname='乙' Where fID=5");
  EXPECT_NO_THROW(session_->CheckBeforeClose());
}

TEST_F(ReplacedFile, IsLookedForUnderItsOwnNameWhereverTheProgramGoes) {
  const fs::path before = fs::current_path();
  fs::current_path(file_.Folder());
  auto session = OpenSqlite(store::kDataFile, {});
  fs::current_path(before);
  EXPECT_NO_THROW(session->Execute("Update cards set compname='乙' Where fID=5"));
}

}  // namespace
}  // namespace qvzj
