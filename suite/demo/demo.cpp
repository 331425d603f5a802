#include "suite/demo/demo.h"

#include <algorithm>
#include <string>

#include "platform/basic/errors.h"
#include "platform/data/store.h"
#include "suite/demo/ledger.h"
#include "suite/demo/names.h"

namespace qvzj::demo_data {
namespace {

constexpr int32_t kStaff = 12;

class Maker {
 public:
  Maker(data::Transaction& transaction, const Options& options)
      : transaction_(transaction), options_(options), dice_(options.seed) {}

  void Run(const store::RowProgress& progress) {
    WriteCurrencies();
    WriteStaff();
    WriteTemplates();
    WriteFunctions();
    WriteAccounts();
    WriteCustomers();
    WriteVisitsAndOrders();
    WriteLedger(transaction_, options_, registers_, dice_, progress);
  }

 private:
  /// Lists show currencies by falling type, so the local one has the highest.
  void WriteCurrencies() {
    data::RowWriter& table = transaction_.Into("Moneys", {"MoneyCode", "MoneyRate", "MoneyType"});
    auto type = static_cast<int64_t>(std::size(kCurrencies));
    for (const demo_data::Currency& currency : kCurrencies) {
      table.Add({currency.code, currency.rate, type--});
    }
  }

  void WriteStaff() {
    data::RowWriter& employees = transaction_.Into("Employees", {"employee", "employCode"});
    data::RowWriter& personnel = transaction_.Into("tRsBasic", {"fName"});
    for (int32_t i = 1; i <= kStaff; ++i) {
      registers_.staff.push_back(names_.Person());
      employees.Add({registers_.staff.back(), Numbered("", i, 4)});
      personnel.Add({registers_.staff.back()});
    }
  }

  void WriteTemplates() {
    data::RowWriter& table =
        transaction_.Into("tJXC_InvSet", {"fSetNo", "fSetNoUse_", "fRowID", "fSetAutoNo"});
    const std::string digits(static_cast<size_t>(NumberWidth(options_)), 'X');
    table.Add({int64_t{51}, int64_t{1}, int64_t{1}, "PZyymmXXXX"});  // switched off
    table.Add({int64_t{51}, int64_t{0}, int64_t{2}, "yyyymmPZ" + digits});
    table.Add({int64_t{52}, int64_t{0}, int64_t{3}, "yyyymmZJ" + digits});
  }

  void WriteFunctions() {
    struct Function {
      int64_t number;
      const char* name;
      const char* simplified;
      const char* traditional;
    };
    static constexpr Function kFunctions[] = {
        {21, "mnuCard", "客户资料", "客戶資料"},       {22, "mnuCardAdd", "新增客户", "新增客戶"},
        {23, "mnuCardPlan", "拜访计划", "拜訪計劃"},   {24, "mnuCardPrint", "客户打印", "客戶列印"},
        {25, "mnuZjComp", "客户往来帐", "客戶往來帳"}, {26, "mnuZjAcnt", "资金帐户", "資金帳戶"},
    };
    data::RowWriter& table =
        transaction_.Into("tSysFunc", {"SerialNo", "model_Name", "Model_Name_0", "Model_Name_1",
                                       "SecondPass", "password", "NoUse_"});
    for (const Function& f : kFunctions) {
      table.Add({f.number, f.name, f.simplified, f.traditional, int64_t{0}, "", int64_t{0}});
    }
  }

  void WriteAccounts() {
    struct Account {
      const char* name;
      const char* bank;
      size_t currency;
    };
    static constexpr Account kAccounts[] = {
        {"现金", "现金", 0},
        {"招商银行", "招商银行深圳分行", 0},
        {"工商银行", "工商银行深圳红岭支行", 0},
        {"建设银行", "建设银行深圳福田支行", 0},
        {"农业银行", "农业银行深圳中心区支行", 0},
        {"备用金", "现金", 0},
        {"中国银行美元户", "中国银行深圳分行", 1},
        {"中国银行港币户", "中国银行深圳分行", 2},
    };
    data::RowWriter& table = transaction_.Into(
        "tAccounts", {"fID", "CompCode", "compname", "name", "fBank", "fAcntID", "others",
                      "province", "cityname", "postcode", "telphone", "fax", "fType0", "detail"});
    for (int32_t i = 0; i < options_.accounts; ++i) {
      const auto& account = kAccounts[static_cast<size_t>(i) % std::size(kAccounts)];
      const auto round = i / static_cast<int32_t>(std::size(kAccounts));
      std::string name = account.name;
      if (round > 0) name += std::to_string(round + 1);
      const bool cash = std::string_view(account.bank) == "现金";
      table.Add({int64_t{i + 1}, Numbered("", i + 1, 4), name, i == 0 ? "总经理" : names_.Person(),
                 account.bank, cash ? Numbered("", i + 1, 6) : "0755" + names_.Digits(12), "",
                 "广东", "深圳", "518000", "", "", int64_t{0}, ""});
      registers_.accounts.push_back({i + 1, account.currency});
    }
  }

  void WriteCustomers() {
    data::RowWriter& table = transaction_.Into(
        "cards", {"fID", "CompCode", "compname", "name", "fBank", "fAcntID", "others", "province",
                  "cityname", "postcode", "telphone", "fax", "fType0", "detail"});
    const int width = std::max(4, static_cast<int>(std::to_string(options_.customers).size()));
    registers_.customers.reserve(static_cast<size_t>(options_.customers));
    for (int32_t i = 1; i <= options_.customers; ++i) {
      const Town& place = names_.Place();
      Customer customer{i, dice_.Between(0, 3), Currency(), names_.Company(place)};
      std::string goods{names_.Goods()};
      table.Add({int64_t{i}, Numbered("K", i, width), customer.name, names_.Person(),
                 names_.Bank(place), "62" + names_.Digits(14), names_.Remark(), place.province,
                 place.city, place.postcode, names_.Telephone(place),
                 dice_.Chance(60) ? names_.Telephone(place) : "", int64_t{customer.type},
                 dice_.Chance(30) ? "主营" + goods + "。\r\n联系时间：工作日9:00-18:00。" : ""});
      registers_.customers.push_back(std::move(customer));
    }
  }

  /// Seven of eight customers deal in the local currency.
  size_t Currency() {
    const uint32_t lot = dice_.Below(16);
    return lot == 0 ? 2 : lot == 1 ? 1 : 0;
  }

  void WriteVisitsAndOrders() {
    data::RowWriter& visits =
        transaction_.Into("tTaskList", {"taskID", "fType", "fDate", "fUser", "fBrief"});
    data::RowWriter& orders = transaction_.Into("tJXC_CkHt01", {"fKhID"});
    const int32_t few = std::min(options_.customers, 2000);
    for (int32_t id = 1; id <= few; id += 10) WriteVisit(visits, id);
    for (int32_t id = 2; id <= few; id += 20) orders.Add({int64_t{id}});
  }

  void WriteVisit(data::RowWriter& visits, int32_t customer) {
    static constexpr const char* kSubjects[] = {"上门拜访", "电话回访", "催收货款", "洽谈新订单"};
    const basic::Date day{options_.until.serial - dice_.Between(1, 180)};
    visits.Add({int64_t{customer}, int64_t{1}, day,
                dice_.Pick(std::span<const std::string>(registers_.staff)), dice_.Pick(kSubjects)});
  }

  data::Transaction& transaction_;
  const Options& options_;
  Dice dice_;
  Names names_{dice_};
  Registers registers_;
};

void CheckRange(const char* what, int64_t value, int64_t low, int64_t high) {
  if (value >= low && value <= high) return;
  throw Error(std::string("The number of ") + what + " must be " + std::to_string(low) + " to " +
              std::to_string(high));
}

}  // namespace

void MakeData(data::Store& store, const Options& options, const store::RowProgress& progress) {
  CheckRange("customers", options.customers, 1, 10'000'000);
  CheckRange("accounts", options.accounts, 1, 1000);
  CheckRange("entries", options.entries, 0, 100'000'000);
  CheckRange("years", options.years, 1, 50);
  for (const char* table : {"cards", "tAccounts", "tAccountDetail", "Moneys", "Employees"}) {
    if (data::CountOf(store, table) > 0) {
      throw Error(std::string("The table ") + table +
                  " holds rows already; demo data goes only "
                  "into an empty database");
    }
  }
  data::Transaction transaction(store);
  Maker(transaction, options).Run(progress);
  transaction.Commit();
}

}  // namespace qvzj::demo_data
