#include "tools/qvdb/qvdb.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/suite/store/database.h"
#include "tools/qvdb/place.h"

namespace qvzj::qvdb {
namespace {

namespace fs = std::filesystem;

class QvdbTest : public ::testing::Test {
 protected:
  QvdbTest() {
    std::string pattern = (fs::temp_directory_path() / "qvdb-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("cannot make a temporary folder");
    folder_ = pattern;
  }
  ~QvdbTest() override {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }

  /// Runs a command on the data folder; out_ and err_ hold what it wrote.
  int Run(std::vector<std::string> words, const std::string& input = {}) {
    std::istringstream in(input);
    std::ostringstream out, err;
    if (words.front() != "user") words.insert(words.end(), {"--data", Data()});
    const int status =
        qvdb::Run(words, {in, out, err, [](const std::string&) { return "secret pass"; }});
    out_ = out.str();
    err_ = err.str();
    return status;
  }
  std::string Data() const { return (folder_ / "data").string(); }
  std::string File(const std::string& name, const std::string& content) const {
    const fs::path path = folder_ / name;
    std::ofstream(path, std::ios::binary) << content;
    return path.string();
  }
  std::string One(const std::string& sql) const {
    return test::One(*OpenSqlite(Data() + "/" + store::kDataFile, {}), sql);
  }

  fs::path folder_;
  std::string out_;
  std::string err_;
};

TEST_F(QvdbTest, InitMakesTheFolderTheFileAndTheTables) {
  EXPECT_EQ(Run({"init"}), 0);
  EXPECT_EQ(One("select count(*) from tAccountDetail"), "0");
  EXPECT_EQ(One("select count(*) from Moneys"), "0");
}

TEST_F(QvdbTest, InitLeavesWhatIsThere) {
  Run({"demo", "--entries", "50", "--customers", "5"});
  EXPECT_EQ(Run({"init"}), 0);
  EXPECT_EQ(One("select count(*) from tAccountDetail"), "50");
}

TEST_F(QvdbTest, InitPutsCurrenciesIntoAnEmptyTable) {
  EXPECT_EQ(Run({"init", "--currency", "RMB", "--currency", "GBP"}), 0);
  EXPECT_EQ(
      One("select group_concat(MoneyCode) from (select * from Moneys order by MoneyType desc)"),
      "RMB,GBP");
  EXPECT_EQ(Run({"init", "--currency", "USD"}), 2);
  EXPECT_EQ(err_, "qvdb: The currency table is not empty\n");
}

TEST_F(QvdbTest, DemoTakesItsSizes) {
  EXPECT_EQ(Run({"demo", "--entries=300", "--customers=7", "--accounts=2", "--until=2024-06-30",
                 "--years=1", "--seed=9"}),
            0);
  EXPECT_EQ(
      One("select (select count(*) from tAccountDetail) || ' ' || (select count(*) from cards)"
          " || ' ' || (select count(*) from tAccounts)"),
      "300 7 2");
}

TEST_F(QvdbTest, ASecondDemoIsRefusedAndChangesNothing) {
  Run({"demo", "--entries", "50", "--customers", "5"});
  EXPECT_EQ(Run({"demo"}), 2);
  EXPECT_EQ(One("select count(*) from tAccountDetail"), "50");
}

TEST_F(QvdbTest, SaysThatDemoDataDoesNotGoIntoADatabaseWithCurrencies) {
  Run({"init", "--currency", "RMB"});
  EXPECT_EQ(Run({"demo"}), 2);
  EXPECT_NE(err_.find("The table Moneys holds rows already"), std::string::npos) << err_;
}

TEST_F(QvdbTest, ImportReportsEveryRefusedRowAndExitsWithOne) {
  const std::string file = File("c.csv", "CompCode,compname\nK1,O'Neil\n,乙\nK1,丙\n");
  EXPECT_EQ(Run({"import", "customers", file}), 1);
  EXPECT_EQ(err_, "line 3: CompCode is empty\nline 4: the code K1 is there already\n");
  EXPECT_EQ(out_, "3 rows (UTF-8): 1 imported, 2 refused\n1 texts with ' got ’ instead\n");
  EXPECT_EQ(One("select compname from cards"), "O’Neil");
}

TEST_F(QvdbTest, ImportReadsTheStandardInput) {
  EXPECT_EQ(Run({"import", "accounts", "-"}, "CompCode,compname\n0001,现金\n"), 0);
  EXPECT_EQ(out_, "1 rows (UTF-8): 1 imported, 0 refused\n");
  EXPECT_EQ(One("select compname from tAccounts"), "现金");
}

TEST_F(QvdbTest, ImportTakesItsOptions) {
  Run({"import", "customers", "-"}, "CompCode,compname\nK1,甲\n");
  EXPECT_EQ(
      Run({"import", "entries", "-", "--separator", "tab", "--map", "CompCode=who",
           "--map=fDate=when", "--set", "fType2=2", "--set=fAcntNo=N-{no}", "--set=fMoneyCode=GBP",
           "--default", "fMoneyA=1", "--dates", "mdy", "--add-currencies"},
          "who\twhen\tno\nK1\t3/4/2024\t7\n"),
      0)
      << err_;
  EXPECT_EQ(One("select fDate || ' ' || fAcntNo || ' ' || fMoneyA || ' ' || fMoneyCode from "
                "tAccountDetail"),
            "2024-03-04 N-7 1.0 GBP");
  EXPECT_NE(out_.find("currency GBP added\n"), std::string::npos);
}

TEST_F(QvdbTest, CheckExitsWithOneWhereItFindsFaults) {
  Run({"demo", "--entries", "200", "--customers", "5"});
  EXPECT_EQ(Run({"check"}), 0);
  EXPECT_EQ(out_, "no faults\n");
  OpenSqlite(Data() + "/" + store::kDataFile, {})
      ->NativeScript(
          "insert into tAccountDetail (fID,fDate,fCompID,fType1,fAcntNo,fChecker) values "
          "(999,'2024-01-01',77,0,'N','')");
  EXPECT_EQ(Run({"check"}), 1);
  EXPECT_EQ(out_, "orphan: entry 999 (N): there is no customer 77\n1 faults\n");
}

TEST_F(QvdbTest, CheckMendsADatabaseThatTakesASecondCounterEntry) {
  Run({"demo", "--entries", "200", "--customers", "5"});
  const auto open = [this] { return OpenSqlite(Data() + "/" + store::kDataFile, {}); };
  const char* const second =
      "insert into tAccountDetail (fType1,fID2) select fType1,fID2 from "
      "tAccountDetail where fType1=1 and fID2>0 limit 1";
  open()->NativeScript("drop index iLedgerCounter");
  EXPECT_EQ(Run({"check"}), 0);
  EXPECT_NO_THROW(open()->NativeScript(std::string("begin; ") + second + "; rollback"));
  EXPECT_EQ(Run({"check", "--mend"}), 0) << err_;
  EXPECT_EQ(out_, "no entry can get a second counter-entry\nno faults\n");
  EXPECT_THROW(open()->NativeScript(second), DataError);
}

TEST_F(QvdbTest, CheckSaysWhichRowsStandAgainstItsMending) {
  Run({"init"});
  const std::string file = Data() + "/" + store::kDataFile;
  OpenSqlite(file, {})->NativeScript(
      "drop index iLedgerCounter;"
      "insert into tAccountDetail (fID,fType1,fID2) values (7,1,5),(9,1,5),(10,1,6)");
  EXPECT_EQ(Run({"check", "--mend"}), 1);
  EXPECT_NE(out_.find("second counter-entries cannot be refused yet: entry 5 has 2 "
                      "counter-entries: 7, 9\n"),
            std::string::npos)
      << out_;
  EXPECT_EQ(Run({"init"}), 0) << "what is there stays as it is";
  EXPECT_EQ(One("select count(*) from sqlite_master where name='iLedgerCounter'"), "0");
}

TEST_F(QvdbTest, CheckMakesNoDataFile) {
  EXPECT_EQ(Run({"check"}), 2);
  EXPECT_FALSE(fs::exists(Data()));
}

TEST_F(QvdbTest, UserKeepsTheRightsDatabase) {
  EXPECT_EQ(Run({"user", "add", folder_.string(), "王五"}), 0) << err_;
  EXPECT_EQ(Run({"user", "list", folder_.string()}), 0);
  EXPECT_TRUE(out_.starts_with("王五")) << out_;
}

TEST_F(QvdbTest, AFileThatIsNoDatabaseIsRefused) {
  fs::create_directory(Data());
  std::ofstream(Data() + "/" + store::kDataFile) << std::string(5000, 'x');
  EXPECT_EQ(Run({"check"}), 2);
  EXPECT_EQ(Run({"demo"}), 2);
  EXPECT_NE(err_, "");
}

TEST_F(QvdbTest, AFileThatCannotBeReadIsNamed) {
  EXPECT_EQ(Run({"import", "customers", Data() + "/none.csv"}), 2);
  EXPECT_EQ(err_, "qvdb: The file " + Data() + "/none.csv cannot be read\n");
}

TEST_F(QvdbTest, AnUnknownCommandOrOptionShowsTheUsage) {
  EXPECT_EQ(Run({"frobnicate"}), 2);
  EXPECT_TRUE(err_.starts_with("qvdb: unknown command frobnicate\n\nqvdb - makes"));
  EXPECT_EQ(Run({"demo", "--entires", "5"}), 2);
  EXPECT_TRUE(err_.starts_with("qvdb: unknown option --entires\n"));
  EXPECT_EQ(Run({"import", "payments", "x"}), 2);
  EXPECT_EQ(Run({"import", "customers"}), 2);
}

TEST_F(QvdbTest, HelpGoesToTheOutput) {
  EXPECT_EQ(Run({"--help"}), 0);
  EXPECT_EQ(err_, "");
  EXPECT_TRUE(out_.starts_with("qvdb - makes"));
}

TEST(DefaultDataFolder, FollowsTheUsersDataFolder) {
  setenv("XDG_DATA_HOME", "/x", 1);
  EXPECT_EQ(DefaultDataFolder(), "/x/qvzj");
  unsetenv("XDG_DATA_HOME");
  setenv("HOME", "/h", 1);
  EXPECT_EQ(DefaultDataFolder(), "/h/.local/share/qvzj");
}

}  // namespace
}  // namespace qvzj::qvdb
