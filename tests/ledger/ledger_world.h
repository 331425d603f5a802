#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ledger/columns.h"
#include "ledger/filter.h"
#include "ledger/query.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "services/context.h"
#include "tests/support/world.h"

namespace qvzj::test {

namespace col = ledger_column;

/// One row of tAccountDetail with the values that most tests want.
struct Entry {
  std::string date = "2024-03-01";
  int comp = 1;
  int type1 = 0;
  std::string type2 = "1";
  std::string number = "N1";
  std::string init = "0";
  std::string a = "0";
  std::string b = "0";
  std::string brief = "'摘要'";
  std::string inv = "''";
  std::string order = "''";
  std::string user = "'admin'";
  std::string doneman = "''";
  std::string checker = "''";
  std::string id2 = "0";
  std::string code = "'RMB'";
  std::string rate = "1";
};

/// A world with two customers, two money accounts, two currencies and two staff.
class LedgerTest : public ::testing::Test {
 protected:
  LedgerTest() {
    world.Sql(
        "insert into cards (fID,CompCode,compname,fType0) values (1,'C001','甲公司',0),"
        "(2,'C002','乙公司',0);"
        "insert into tAccounts (fID,CompCode,compname) values (1,'0001','现金'),"
        "(2,'0002','招商银行');"
        "insert into Moneys (MoneyCode,MoneyRate,MoneyType) values ('RMB',1,9),('USD',7.1234,1);"
        "insert into Employees (employCode,employee) values ('1','张三'),('2','李四');");
  }

  /// Adds an entry; answers its id as text.
  std::string Add(const Entry& e) {
    world.Sql(
        "insert into tAccountDetail (fDate,fCompID,fType1,fType2,fAcntNo,fInit,fMoneyA,"
        "fMoneyB,fBrief,fInvID,fOrderID,fUser,fDoneman,fChecker,fID2,fMoneyCode,fMoneyRate)"
        " values ('" +
        e.date + "'," + std::to_string(e.comp) + "," + std::to_string(e.type1) + "," + e.type2 +
        ",'" + e.number + "'," + e.init + "," + e.a + "," + e.b + "," + e.brief + "," + e.inv +
        "," + e.order + "," + e.user + "," + e.doneman + "," + e.checker + "," + e.id2 + "," +
        e.code + "," + e.rate + ");");
    return world.One("select max(fID) from tAccountDetail");
  }

  frmZj& Open(int16_t mode = kCustomers) {
    frmZj& form = world.Open(mode);
    world.Statements();
    return form;
  }

  void Load(frmZj& form) {
    ASSERT_TRUE(form.Guard([&] { LoadLedger(form, LedgerCondition(form)); }));
  }

  std::vector<std::string> Column(const frmZj& form, int32_t column) {
    return world.ColumnTexts(form.Grid2, column);
  }

  /// All columns of an entry, nulls as NULL, in the table's order.
  std::vector<std::string> EntryRow(const std::string& id) {
    const auto rows = world.Rows(
        "select fDate,fCompID,fType1,fType2,fAcntNo,fInit,quote(fMoneyA),quote(fMoneyB),"
        "quote(fBrief),quote(fInvID),quote(fOrderID),quote(fUser),quote(fDoneman),quote(fChecker),"
        "fID2,quote(fMoneyCode),quote(fMoneyRate) from tAccountDetail where fID=" +
        id);
    return rows.empty() ? std::vector<std::string>{} : rows.front();
  }

  std::string Total(const frmZj& form, int index) { return form.txtTotal(index).Text(); }

  World world;
};

using Texts = std::vector<std::string>;

}  // namespace qvzj::test
