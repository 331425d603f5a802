#include <gtest/gtest.h>
#include <stdio.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "tests/support/world.h"

namespace qvzj::test {
namespace {

namespace fs = std::filesystem;

/// Scripts that print to PDF, played by the program on a small data file.
class ScriptPdf : public testing::Test {
 protected:
  ScriptPdf() {
    world_.Sql(
        "insert into cards (fID,CompCode,compname,fType0) values (1,'K1','甲公司',0);"
        "insert into Moneys values ('RMB',1,2);");
  }

  void AddEntries(int count) {
    for (int i = 1; i <= count; ++i) {
      world_.Sql(
          "insert into tAccountDetail (fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,"
          "fChecker,fID2,fMoneyCode,fMoneyRate) values ('2024-01-02',1,0,1,'PZ" +
          std::to_string(i) + "',0,10,0,'',0,'RMB',1);");
    }
  }

  /// What the program prints; `$` in the script stands for the world's folder.
  std::string Play(std::string script) {
    for (size_t at; (at = script.find('$')) != std::string::npos;) {
      script.replace(at, 1, world_.folder.Path().string());
    }
    const fs::path file = world_.folder.Path() / "script.qvs";
    const fs::path printed = world_.folder.Path() / "printed";
    std::ofstream(file) << script;
    const std::string command = std::string(QV_SCRIPT_PROGRAM) + " --data '" +
                                world_.folder.Path().string() + "' '" + file.string() + "' >'" +
                                printed.string() + "' 2>/dev/null";
    failed_ = std::system(command.c_str()) != 0;
    return Bytes(printed);
  }

  static std::string Bytes(const fs::path& file) {
    std::ostringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
  }

  World world_;
  bool failed_ = false;
};

TEST_F(ScriptPdf, HoldsTheWholeLedgerOnItsPages) {
  if (std::system("command -v pdftotext >/dev/null 2>&1") != 0) {
    GTEST_SKIP() << "no reader of PDF files on this machine (package poppler-utils)";
  }
  AddEntries(120);
  EXPECT_EQ(Play("refresh 0 0\npdf Grid2 $/ledger.pdf\n"), "");
  const std::string pdf = (world_.folder.Path() / "ledger.pdf").string();
  ASSERT_EQ(std::system(("pdftotext -raw '" + pdf + "' '" + pdf + ".txt'").c_str()), 0);
  const std::string text = Bytes(pdf + ".txt");
  for (int i : {1, 60, 120}) {
    EXPECT_NE(text.find(" PZ" + std::to_string(i) + " "), std::string::npos) << i;
  }
  EXPECT_NE(text.find("往来总帐清单"), std::string::npos);
  EXPECT_NE(text.find("应收余额: 1200.00"), std::string::npos);
}

TEST_F(ScriptPdf, HoldsTheRegister) {
  EXPECT_EQ(Play("refresh 0 0\npdf Grid1 $/register.pdf\n"), "");
  EXPECT_FALSE(failed_);
  EXPECT_EQ(Bytes(world_.folder.Path() / "register.pdf").substr(0, 5), "%PDF-");
}

TEST_F(ScriptPdf, SaysOnceThatTheFileCannotBeWritten) {
  AddEntries(1);
  const std::string printed = Play("refresh 0 0\npdf Grid2 /nowhere/ledger.pdf\n");
  EXPECT_EQ(printed, "error: /nowhere/ledger.pdf: No such file or directory\n");
  EXPECT_TRUE(failed_);
}

TEST_F(ScriptPdf, SaysThatThereIsNothingToPrint) {
  EXPECT_EQ(Play("refresh 0 0\npdf Grid2 $/ledger.pdf\n"), "error: there is nothing to print\n");
  EXPECT_FALSE(fs::exists(world_.folder.Path() / "ledger.pdf"));
}

}  // namespace
}  // namespace qvzj::test
