#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/world.h"

namespace qvzj::test {

/// A world with three customers and two money accounts, and shorthand for looking at the register.
class RegisterTest : public ::testing::Test {
 protected:
  RegisterTest() {
    world.Sql(
        "Insert Into Moneys (MoneyCode,MoneyRate,MoneyType) Values ('RMB',1,1);"
        "Insert Into cards (fID,CompCode,compname,name,province,telphone,fType0,detail) Values"
        " (1,'0003','北方贸易','张三','北京','010-1',0,'老客户'),"
        " (2,'0001','华东电子','李四','上海','021-2',1,NULL),"
        " (3,'0002','大地五金','王五','广东',NULL,2,'五金件');"
        "Insert Into tAccounts (fID,CompCode,compname,name,detail) Values"
        " (1,'A2','现金','出纳','钱箱'),(2,'A1','中国银行','会计',NULL);");
  }

  /// Adds ledger entries of one hundred to a record.
  void AddEntries(int16_t kind, int record, int count, const std::string& currency = "RMB") {
    for (int i = 0; i < count; ++i) {
      world.Sql(
          "Insert Into tAccountDetail (fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,fMoneyB,"
          "fBrief,fInvID,fOrderID,fUser,fDoneman,fChecker,fID2,fMoneyCode,fMoneyRate) Values "
          "('2024-03-0" +
          std::to_string(i + 1) + "'," + std::to_string(record) + "," + std::to_string(kind) +
          ",1,'N" + std::to_string(i) + "',0,100,0,'','','','admin','','',0,'" + currency +
          "',1);");
    }
  }

  frmZj& Customers() { return world.Open(0); }
  frmZj& Accounts() { return world.Open(1); }
  std::vector<std::string> Names() { return world.ColumnTexts(world.Form().Grid1, 2); }
  /// Moves to the row of a record by its name.
  void GoTo(const std::string& name) {
    frmZj& form = world.Form();
    for (int32_t row = 1; row <= form.Grid1.RowCount(); ++row) {
      if (form.Grid1.CellText(2, row) == name) {
        ASSERT_TRUE(form.UserTab(form.SSTab1, 0));
        ASSERT_TRUE(form.UserCell(form.Grid1, 2, row));
        return;
      }
    }
    FAIL() << name << " is not listed";
  }
  /// True when one of the statements run since the last look begins like that.
  bool Ran(const std::string& beginning) {
    for (const std::string& statement : world.Statements()) {
      if (statement.starts_with(beginning)) return true;
    }
    return false;
  }
  std::string LastBox() {
    const auto& shown = world.headless.boxes.Shown();
    return shown.empty() ? "" : shown.back().text;
  }

  World world;
};

using Texts = std::vector<std::string>;

}  // namespace qvzj::test
