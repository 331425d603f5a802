#include "tools/qvdb/qvdb.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

#include "adapters/sqlite/sqlite_session.h"
#include "suite/copy/copy.h"
#include "suite/store/schema.h"
#include "suite/store/tables.h"
#include "tests/adapters/odbc/server.h"
#include "tests/support/temporary_folder.h"

namespace qvzj::qvdb {
namespace {

using test::LoginTo;
using test::PrivatePostgres;
using test::Server;
using Words = std::vector<std::string>;

/// Commands on an empty database of the private server.
class QvdbOnPostgres : public ::testing::Test {
 protected:
  void SetUp() override {
    QV_NEEDS_SERVER();
    database_ = Server().MakeDatabase();
  }

  /// Runs a command; out_ and err_ hold what it wrote.
  int Run(const Words& words, const std::string& input = {}) {
    std::istringstream in(input);
    std::ostringstream out, err;
    const int status = qvdb::Run(
        words, {in, out, err, [](const std::string&) { return PrivatePostgres::kPassword; }});
    out_ = out.str();
    err_ = err.str();
    EXPECT_EQ((out_ + err_).find(PrivatePostgres::kPassword), std::string::npos);
    return status;
  }
  /// The same with the options that name the server.
  int OnServer(Words words, const std::string& input = {}) {
    words.insert(words.end(), {"--server", Server().Address(), "--database", database_});
    return Run(WithLogin(words), input);
  }
  static Words WithLogin(Words words) {
    words.insert(words.end(),
                 {"--user", PrivatePostgres::kUser, "--password", PrivatePostgres::kPassword});
    return words;
  }
  int Copy(const std::string& from, const std::string& to, const Words& more = {}) {
    Words words{"copy", from, to, "--database", database_};
    words.insert(words.end(), more.begin(), more.end());
    return Run(WithLogin(words));
  }
  static std::string ThisServer() { return "server:" + Server().Address(); }
  std::string Folder(const std::string& name) const { return (folder_.Path() / name).string(); }

  std::unique_ptr<data::Store> Store() { return store::OpenServer(LoginTo(database_), {}); }
  std::string One(const std::string& sql) { return Store()->Native(sql).Text(0); }
  std::string OneIn(const std::string& folder, const std::string& sql) {
    return OpenSqlite(Folder(folder) + "/" + store::kDataFile, {})->Native(sql).Text(0);
  }

  test::TemporaryFolder folder_;
  std::string database_;
  std::string out_;
  std::string err_;
};

constexpr const char* kTotals =
    "select count(*) || ' ' || sum(fCompID) || ' ' || count(fChecker) from tAccountDetail";

TEST_F(QvdbOnPostgres, InitMakesTheTablesInAnEmptyDatabase) {
  Server().Run("postgres", "create database bare");
  database_ = "bare";
  EXPECT_EQ(OnServer({"init", "--currency", "RMB", "--currency", "USD"}), 0) << err_;
  EXPECT_EQ(out_, "ready: bare on " + Server().Address() + "\n");
  EXPECT_EQ(One("select string_agg(MoneyCode,',' order by MoneyType desc) from Moneys"), "RMB,USD");
  EXPECT_EQ(OnServer({"init"}), 0) << err_;
  EXPECT_EQ(OnServer({"init", "--currency", "GBP"}), 2);
}

TEST_F(QvdbOnPostgres, DemoMakesTheSameEntriesAsInADataFile) {
  const Words demo{"demo", "--entries", "700", "--customers", "20"};
  ASSERT_EQ(OnServer(demo), 0) << err_;
  Words in_file = demo;
  in_file.insert(in_file.end(), {"--data", Folder("file")});
  ASSERT_EQ(Run(in_file), 0) << err_;
  EXPECT_EQ(One(kTotals), OneIn("file", kTotals));
  EXPECT_EQ(OnServer({"check"}), 0) << out_;
  EXPECT_EQ(OnServer(demo), 2);
}

TEST_F(QvdbOnPostgres, LetsTheServerLookAtTheRowsThatItBrought) {
  // What vacuum and analyze leave behind: how many rows there are, and pages known to be settled.
  const auto known = [this](const std::string& table) {
    return One("select reltuples || ' ' || (relallvisible=relpages) from pg_class where relname='" +
               table + "'");
  };
  ASSERT_EQ(OnServer({"demo", "--entries", "700", "--customers", "20"}), 0) << err_;
  EXPECT_EQ(known("taccountdetail"), "700 true");
  ASSERT_EQ(OnServer({"import", "customers", "-"}, "CompCode,compname\nZ1,甲\nZ2,乙\n"), 0) << err_;
  EXPECT_EQ(known("cards"), "22 true");
  ASSERT_EQ(Copy(ThisServer(), Folder("file")), 0) << err_;
  database_ = Server().MakeDatabase();
  ASSERT_EQ(Copy(Folder("file"), ThisServer()), 0) << err_;
  EXPECT_EQ(known("taccountdetail"), "700 true");
}

TEST_F(QvdbOnPostgres, NewEntriesGetIdsBehindThoseOfTheDemo) {
  ASSERT_EQ(OnServer({"demo", "--entries", "50", "--customers", "5"}), 0) << err_;
  Server().Run(database_, "insert into tAccountDetail (fBrief) values ('next')");
  EXPECT_EQ(One("select fID from tAccountDetail where fBrief='next'"), "51");
}

TEST_F(QvdbOnPostgres, ImportRefusesRowsWithLineAndReasonAndLeavesNothingOfThem) {
  ASSERT_EQ(OnServer({"import", "customers", "-"}, "CompCode,compname\nK1,O'Neil\nK1,乙\n,丙\n"),
            1);
  EXPECT_EQ(err_, "line 3: the code K1 is there already\nline 4: CompCode is empty\n");
  EXPECT_EQ(out_, "3 rows (UTF-8): 1 imported, 2 refused\n1 texts with ' got ’ instead\n");
  ASSERT_EQ(OnServer({"import", "entries", "-", "--add-currencies", "--set", "fMoneyCode=RMB"},
                     "CompCode,fDate,fType2,fAcntNo,fMoneyA\nK1,2024-03-05,1,N1,12.5\n"
                     "K1,2024-02-30,1,N2,1\nK9,2024-03-05,1,N3,1\n"),
            1);
  EXPECT_EQ(One("select string_agg(compname,',') from cards"), "O’Neil");
  EXPECT_EQ(One("select count(*) || ' ' || min(fMoneyA) || ' ' || min(fDate) from tAccountDetail"),
            "1 12.5 2024-03-05");
}

TEST_F(QvdbOnPostgres, AnImportThatTheServerRefusesLeavesNothingBehind) {
  Server().Run(database_, "alter table cards add check (compname<>'丁')");
  std::string csv = "CompCode,compname\n";
  for (int i = 0; i < 300; ++i) csv += "K" + std::to_string(i) + ",甲\n";
  EXPECT_EQ(OnServer({"import", "customers", "-"}, csv + "L1,丁\n"), 2);
  EXPECT_EQ(One("select count(*) from cards"), "0");
}

TEST_F(QvdbOnPostgres, AUserWhoOwnsNoTableImportsWithoutAComplaint) {
  Server().RunAll(database_,
                  {"do $$begin create role importer login password 'w0rd'; exception when "
                   "duplicate_object then null; end$$",
                   "grant select, insert on all tables in schema public to importer",
                   "grant select, update on all sequences in schema public to importer"});
  EXPECT_EQ(Run({"import", "customers", "-", "--server", Server().Address(), "--database",
                 database_, "--user", "importer", "--password", "w0rd"},
                "CompCode,compname\nK1,甲\n"),
            0);
  EXPECT_EQ(err_, "");
  EXPECT_EQ(One("select compname from cards"), "甲");
}

TEST_F(QvdbOnPostgres, ADryRunTriesEverythingAndKeepsNothing) {
  EXPECT_EQ(OnServer({"import", "customers", "-", "--dry-run"}, "CompCode,compname\nK1,甲\n"), 0);
  EXPECT_EQ(One("select count(*) from cards"), "0");
}

TEST_F(QvdbOnPostgres, CheckFindsTheFaultsThatItFindsInADataFile) {
  const Words rows{
      "drop index iLedgerCounter", "insert into cards (fID,CompCode,compname) values (1,'K1','a')",
      "insert into tAccounts (fID,CompCode,compname) values (1,'0001','b')",
      "insert into tAccountDetail (fID,fDate,fCompID,fType1,fType2,fAcntNo,fMoneyA,fMoneyB,"
      "fChecker,fID2,fMoneyCode,fMoneyRate) values "
      "(1,'2024-03-01',1,0,1,'N1',100,100,'w',1,'RMB',1),"
      "(2,'2024-03-02',1,1,2,'n1',0,99,'',1,'USD',7),"
      "(3,'2024-03-01',9,0,1,'x',5.5,0,null,0,'RMB',1),"
      "(4,'2024-03-01',1,0,1,'X',5.5,null,'',8,'RMB',1),"
      "(5,null,1,7,1,'',5.5,0,'',0,'RMB',1),"
      "(6,'2024-03-01',8,1,1,'q',5.5,0.5,'',77,'RMB',1),"
      "(7,'2024-03-01',1,0,1,'r',5.5,0.5,'w',1,'RMB',1),"
      "(8,'2024-03-01',1,1,1,'N1',0,100,'',1,'RMB',1)"};
  ASSERT_EQ(Run({"init", "--data", Folder("file")}), 0);
  for (const std::string& sql : rows) {
    Server().Run(database_, sql);
    OpenSqlite(Folder("file") + "/" + store::kDataFile, {})->NativeScript(sql);
  }
  EXPECT_EQ(Run({"check", "--data", Folder("file")}), 1);
  const std::string in_file = out_;
  EXPECT_EQ(OnServer({"check"}), 1) << err_;
  EXPECT_EQ(out_, in_file);
  EXPECT_NE(out_.find("12 faults\n"), std::string::npos) << out_;
  EXPECT_EQ(OnServer({"check", "--mend"}), 1);
  EXPECT_NE(out_.find("entry 1 has 2 counter-entries: 2, 8\n"), std::string::npos) << out_;
  Server().Run(database_, "delete from tAccountDetail where fID=8");
  OnServer({"check", "--mend"});
  EXPECT_NE(out_.find("no entry can get a second counter-entry\n"), std::string::npos) << out_;
  EXPECT_EQ(One("select count(*) from pg_indexes where indexname='iledgercounter'"), "1");
}

TEST_F(QvdbOnPostgres, CopyBringsADataFileToTheServerAndBackUnchanged) {
  ASSERT_EQ(Run({"demo", "--data", Folder("file"), "--entries", "3000"}), 0);
  OpenSqlite(Folder("file") + "/" + store::kDataFile, {})
      ->NativeScript(
          "insert into cards (fID,CompCode,compname,detail) values (999,null,'',"
          "'a' || char(13,10) || '甲''\"\\ %_{?}' || char(9) || '\U0001F600');"
          "insert into tAccountDetail (fID,fMoneyA) values (4000,0.1);"
          "delete from tAccountDetail where fID=4000");
  ASSERT_EQ(Copy(Folder("file"), ThisServer()), 0) << err_;
  EXPECT_NE(out_.find("tAccountDetail: 3000 rows, fMoneyA "), std::string::npos) << out_;
  ASSERT_EQ(Copy(ThisServer(), Folder("back")), 0) << err_;
  const auto before = OpenSqlite(Folder("file") + "/" + store::kDataFile, {});
  before->NativeScript("attach '" + Folder("back") + "/" + store::kDataFile + "' as back");
  for (const store::Table& table : store::Tables()) {
    const std::string name = table.name;
    const auto missing =
        before->Native("select * from main." + name + " except select * from back." + name);
    EXPECT_EQ(missing.RecordCount(), 0) << name;
    EXPECT_EQ(before->Native("select count(*) from main." + name).Text(0),
              before->Native("select count(*) from back." + name).Text(0))
        << name;
  }
  Server().Run(database_, "insert into tAccountDetail (fBrief) values ('next')");
  before->NativeScript("insert into back.tAccountDetail (fBrief) values ('next')");
  EXPECT_EQ(One("select fID from tAccountDetail where fBrief='next'"), "4001");
  EXPECT_EQ(before->Native("select fID from back.tAccountDetail where fBrief='next'").Text(0),
            "4001");
}

TEST_F(QvdbOnPostgres, CopyGoesOnAfterTheServerBrokeDown) {
  ASSERT_EQ(Run({"demo", "--data", Folder("file"), "--entries", "2000"}), 0);
  const auto source = OpenSqlite(Folder("file") + "/" + store::kDataFile, {});
  copy::Options options;
  options.source_name = "file";
  options.lot = 200;
  bool killed = false;
  {
    const auto target = Store();
    EXPECT_THROW(copy::CopyData(*source, *target, options,
                                [&](int64_t done, int64_t) {
                                  if (killed || done < 1000) return;
                                  Server().Kill();
                                  killed = true;
                                }),
                 DataError);
  }
  Server().Start();
  const auto target = Store();
  EXPECT_TRUE(copy::CopyData(*source, *target, options, {}).resumed);
  EXPECT_EQ(One(kTotals), OneIn("file", kTotals));
  EXPECT_EQ(OnServer({"check"}), 0) << out_;
}

TEST_F(QvdbOnPostgres, CopyNamesTheRowWhoseValueTheServerCannotHold) {
  ASSERT_EQ(Run({"demo", "--data", Folder("file"), "--entries", "100", "--customers", "5"}), 0);
  OpenSqlite(Folder("file") + "/" + store::kDataFile, {})
      ->NativeScript("update tAccountDetail set fDate='someday' where fID=7");
  EXPECT_EQ(Copy(Folder("file"), ThisServer()), 2);
  EXPECT_EQ(err_, "qvdb: tAccountDetail, fID 7: fdate cannot hold the text \"someday\"\n");
  OpenSqlite(Folder("file") + "/" + store::kDataFile, {})
      ->NativeScript("update tAccountDetail set fDate='2025-01-01' where fID=7");
  EXPECT_EQ(Copy(Folder("file"), ThisServer()), 0) << err_;
  EXPECT_EQ(Copy(Folder("file"), ThisServer(), {"--anew"}), 2);
}

TEST_F(QvdbOnPostgres, AWrongPasswordIsSaidAndNotShown) {
  EXPECT_EQ(Run({"check", "--server", Server().Address(), "--database", database_, "--user",
                 PrivatePostgres::kUser, "--password", "wr0ng-w0rd"}),
            2);
  EXPECT_NE(err_.find("password authentication failed"), std::string::npos) << err_;
  EXPECT_EQ(err_.find("wr0ng-w0rd"), std::string::npos) << err_;
}

TEST_F(QvdbOnPostgres, APasswordCanBeAskedFor) {
  EXPECT_EQ(Run({"check", "--server", Server().Address(), "--database", database_, "--user",
                 PrivatePostgres::kUser, "--password", "-"}),
            0)
      << err_;
}

TEST_F(QvdbOnPostgres, APasswordCanComeFromTheEnvironment) {
  setenv("QVDB_PASSWORD", PrivatePostgres::kPassword, 1);
  EXPECT_EQ(Run({"check", "--server", Server().Address(), "--database", database_, "--user",
                 PrivatePostgres::kUser}),
            0)
      << err_;
  unsetenv("QVDB_PASSWORD");
}

TEST_F(QvdbOnPostgres, ARootCertificateIsAskedForByAnOption) {
  EXPECT_EQ(OnServer({"check", "--root-certificate", "/nowhere/root.crt"}), 2);
  EXPECT_NE(err_.find("SSL was required"), std::string::npos) << err_;
}

TEST_F(QvdbOnPostgres, AWholeConnectionStringIsNotRepeated) {
  const std::string whole = store::ConnectionString(LoginTo(database_), {});
  EXPECT_EQ(Run({"init", "--server", whole}), 0) << err_;
  EXPECT_EQ(out_, "ready: the server\n");
}

}  // namespace
}  // namespace qvzj::qvdb
