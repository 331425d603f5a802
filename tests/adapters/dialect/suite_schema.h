#pragma once

#include <string>
#include <vector>

#include "adapters/dialect/schema.h"
#include "platform/basic/text.h"

namespace qvzj::test {

/// The columns of the suite's tables, without a database.
class SuiteSchema : public dialect::Schema {
 public:
  dialect::ColumnType TypeOf(std::string_view table, std::string_view column) const override {
    using dialect::ColumnType;
    const bool ledger = basic::EqualIgnoringCase(table, "tAccountDetail");
    const bool register_table = Among(table, {"cards", "tAccounts"});
    if (ledger && Among(column, {"fDate"})) return ColumnType::Date;
    if (ledger && Among(column, {"fAcntNo", "fBrief", "fInvID", "fOrderID", "fUser", "fDoneman",
                                 "fChecker", "fMoneyCode"})) {
      return ColumnType::Text;
    }
    if (ledger && Among(column, {"fID", "fCompID", "fType1", "fType2", "fInit", "fMoneyA",
                                 "fMoneyB", "fID2", "fMoneyRate"})) {
      return ColumnType::Number;
    }
    if (register_table && Among(column, {"fID", "fType0"})) return ColumnType::Number;
    if (register_table &&
        Among(column, {"CompCode", "compname", "name", "fBank", "fAcntID", "others", "province",
                       "cityname", "postcode", "telphone", "fax", "detail"})) {
      return ColumnType::Text;
    }
    if (Among(table, {"Moneys"}) && Among(column, {"MoneyCode"})) return ColumnType::Text;
    if (Among(table, {"Moneys"}) && Among(column, {"MoneyRate", "MoneyType"})) {
      return ColumnType::Number;
    }
    if (Among(table, {"Employees"}) && Among(column, {"employee", "employCode"})) {
      return ColumnType::Text;
    }
    if (Among(table, {"tRsBasic"}) && Among(column, {"fName"})) return ColumnType::Text;
    if (Among(table, {"tJXC_CkDj01", "tJXC_CkDj_Bak01"})) {
      if (Among(column, {"fInvNo", "fInvSHR"})) return ColumnType::Text;
      if (Among(column, {"fKhID"})) return ColumnType::Number;
    }
    if (Among(table, {"tSysFunc"}) && Among(column, {"model_Name", "Model_Name_0"})) {
      return ColumnType::Text;
    }
    return ColumnType::Unknown;
  }

 private:
  static bool Among(std::string_view name, const std::vector<const char*>& names) {
    for (const char* candidate : names) {
      if (basic::EqualIgnoringCase(name, candidate)) return true;
    }
    return false;
  }
};

}  // namespace qvzj::test
