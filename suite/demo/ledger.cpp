#include "suite/demo/ledger.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "adapters/icu/ansi_codec.h"
#include "suite/demo/counter_brief.h"
#include "suite/demo/names.h"

namespace qvzj::demo_data {
namespace {

constexpr int32_t kMaxDocuments = 500;
/// Entries of the last two months are still being worked on: few of them are checked.
constexpr int32_t kRecentDays = 60;

constexpr std::string_view kIncome[] = {"利息收入", "废料收入", "其他收入", "退回押金"};
constexpr std::string_view kExpense[] = {"支付房租",   "水电费",   "发放工资",
                                         "差旅费报销", "办公用品", "运输费",
                                         "银行手续费", "缴纳税款", "业务招待费"};

/// One row of the ledger; names are those of the columns.
struct Entry {
  basic::Date date;
  int32_t company = 0;
  int kind = 0;
  int direction = 1;
  std::string number;
  bool opening = false;
  double money_a = 0;
  double money_b = 0;
  std::string brief;
  std::string document;
  std::string order;
  std::string_view user;
  std::string_view handler;
  std::string_view checker;
  int32_t link = 0;
  size_t currency = 0;
};

class LedgerMaker {
 public:
  LedgerMaker(data::Transaction& transaction, const Options& options, const Registers& registers,
              Dice& dice, const store::RowProgress& progress)
      : options_(options),
        registers_(registers),
        dice_(dice),
        progress_(progress),
        width_(NumberWidth(options)),
        ledger_(transaction.Into("tAccountDetail",
                                 {"fID", "fDate", "fCompID", "fType1", "fType2", "fAcntNo", "fInit",
                                  "fMoneyA", "fMoneyB", "fBrief", "fInvID", "fOrderID", "fUser",
                                  "fDoneman", "fChecker", "fID2", "fMoneyCode", "fMoneyRate"})),
        documents_(transaction.Into("tJXC_CkDj01", {"fKhID", "fInvNo", "fInvSHR"})),
        archive_(transaction.Into("tJXC_CkDj_Bak01", {"fKhID", "fInvNo", "fInvSHR"})),
        debts_(registers.customers.size() * 2 + 2) {
    for (const Account& account : registers.accounts) {
      accounts_of_[account.currency].push_back(account.id);
    }
    ListWorkdays();
  }

  void Run() {
    WriteOpenings();
    const int32_t openings = written_;
    while (written_ < options_.entries) {
      const auto place = static_cast<int64_t>(written_ - openings) *
                         static_cast<int64_t>(workdays_.size()) / (options_.entries - openings);
      StartDay(workdays_[static_cast<size_t>(place)]);
      if (dice_.Chance(20)) {
        WriteAccountEntry();
      } else {
        WriteCustomerEntry();
      }
    }
  }

 private:
  void ListWorkdays() {
    const basic::Date until = options_.until;
    for (int32_t day = until.serial - options_.years * 365 + 1; day <= until.serial; ++day) {
      // Day 1 of the calendar's serial numbers (31 December 1899) was a Sunday.
      const int weekday = (day - 1) % 7;
      if (weekday != 0 && weekday != 6) workdays_.push_back(basic::Date{day});
    }
  }

  void StartDay(basic::Date day) {
    if (day == day_) return;
    if (day.Year() != day_.Year() || day.Month() != day_.Month()) counters_ = {0, 0};
    day_ = day;
    documents_today_ = 0;
  }

  /// The next voucher number of the month: customers "PZ", accounts "ZJ".
  std::string NextVoucher(int kind) {
    const std::string month = Numbered("", day_.Year() * 100 + day_.Month(), 6);
    return Numbered(month + (kind == 0 ? "PZ" : "ZJ"), ++counters_[static_cast<size_t>(kind)],
                    width_);
  }

  std::string NextDocument(int direction) {
    const std::string day = Numbered(direction == 1 ? "XS" : "CG",
                                     (day_.Year() * 100 + day_.Month()) * 100 + day_.Day(), 8);
    return Numbered(day + "-", ++documents_today_, 4);
  }

  /// An amount of 3 to `digits` digits before the point, in cents; every third is a round one.
  int64_t Cents(int digits) {
    int scale = 1000;
    for (int more = dice_.Between(3, digits); more > 3; --more) scale *= 10;
    const int64_t whole = dice_.Between(scale / 10, scale - 1);
    return whole * 100 + (dice_.Chance(33) ? 0 : dice_.Between(0, 99));
  }

  static double Money(int64_t cents) { return static_cast<double>(cents) / 100; }

  /// What a customer owes us (direction 1) or we owe (direction 2), in cents.
  int64_t& Debt(int32_t customer, int direction) {
    return debts_[static_cast<size_t>(customer) * 2 + static_cast<size_t>(direction - 1)];
  }

  std::string_view Someone() { return dice_.Pick(std::span<const std::string>(registers_.staff)); }

  std::string_view CheckerOfToday() {
    const bool recent = options_.until.serial - day_.serial < kRecentDays;
    return dice_.Chance(recent ? 15 : 75) ? Someone() : std::string_view{};
  }

  Entry NewEntry(int kind) {
    Entry entry;
    entry.date = day_;
    entry.kind = kind;
    entry.number = NextVoucher(kind);
    entry.user = Someone();
    entry.handler = Someone();
    return entry;
  }

  int32_t Write(const Entry& e) {
    const int32_t id = ++written_;
    ledger_.Add({int64_t{id}, e.date, int64_t{e.company}, int64_t{e.kind}, int64_t{e.direction},
                 e.number, int64_t{e.opening}, e.money_a, e.money_b, e.brief, e.document, e.order,
                 e.user, e.handler, e.checker, int64_t{e.link}, kCurrencies[e.currency].code,
                 kCurrencies[e.currency].rate});
    if (progress_ && written_ % 1000 == 0) progress_(written_, options_.entries);
    return id;
  }

  void WriteOpenings() {
    StartDay(workdays_.front());
    for (const Account& account : registers_.accounts) {
      if (written_ >= options_.entries) return;
      Entry entry = NewEntry(1);
      entry.company = account.id;
      entry.currency = account.currency;
      entry.money_a = dice_.Between(10, 500) * 10000;
      WriteOpening(entry);
    }
    const int32_t limit = written_ + (options_.entries - written_) / 4;
    for (size_t i = 0; i < registers_.customers.size() && written_ < limit; i += 3) {
      const Customer& customer = registers_.customers[i];
      Entry entry = NewEntry(0);
      entry.company = customer.id;
      entry.currency = customer.currency;
      entry.direction = DirectionOf(customer);
      const int64_t cents = Cents(6);
      Debt(customer.id, entry.direction) += cents;
      entry.money_a = Money(cents);
      WriteOpening(entry);
    }
  }

  void WriteOpening(Entry& entry) {
    entry.opening = true;
    entry.brief = "期初金额";
    entry.checker = Someone();
    Write(entry);
  }

  void WriteAccountEntry() {
    const Account& account = dice_.Pick(std::span<const Account>(registers_.accounts));
    Entry entry = NewEntry(1);
    entry.company = account.id;
    entry.currency = account.currency;
    entry.direction = dice_.Chance(30) ? 1 : 2;
    entry.money_b = Money(Cents(5));
    entry.brief = entry.direction == 1 ? dice_.Pick(kIncome) : dice_.Pick(kExpense);
    entry.checker = CheckerOfToday();
    Write(entry);
  }

  int DirectionOf(const Customer& customer) {
    if (customer.type == 1) return 2;
    if (customer.type == 2) return 1;
    return dice_.Chance(50) ? 1 : 2;
  }

  /// A customer of the busy nine tenths; the others have no entries but an opening balance.
  const Customer& BusyCustomer() {
    const size_t busy = std::max<size_t>(1, registers_.customers.size() * 9 / 10);
    return registers_.customers[dice_.Below(static_cast<uint32_t>(busy))];
  }

  void WriteCustomerEntry() {
    const Customer& customer = BusyCustomer();
    Entry entry = NewEntry(0);
    entry.company = customer.id;
    entry.currency = customer.currency;
    entry.direction = DirectionOf(customer);
    int64_t& debt = Debt(customer.id, entry.direction);
    // A debt is settled, all or half of it; where there is none something is delivered, and now
    // and then paid at once.
    if (debt > 0 && dice_.Chance(60)) {
      const int64_t paid = dice_.Chance(70) ? debt : debt / 2;
      debt -= paid;
      entry.money_b = Money(paid);
      entry.brief = entry.direction == 1 ? "收回货款" : "支付货款";
    } else {
      const int64_t cents = Cents(6);
      entry.money_a = Money(cents);
      if (dice_.Chance(25)) {
        entry.money_b = entry.money_a;
      } else {
        debt += cents;
      }
      entry.brief = entry.direction == 1 ? "销售货物" : "采购货物";
    }
    if (entry.money_a != 0) {
      entry.document = NextDocument(entry.direction);
      if (dice_.Chance(30)) entry.order = "DD" + entry.document.substr(2);
    }
    entry.checker = CheckerOfToday();
    if (entry.money_b != 0 && dice_.Chance(80)) entry.link = AccountOf(entry.currency);
    const bool counter = entry.link != 0 && !entry.checker.empty();
    if (counter && written_ + 2 > options_.entries) entry.link = 0;
    const int32_t id = Write(entry);
    if (counter && entry.link != 0) WriteCounterEntry(entry, id, customer.name);
    if (!entry.document.empty() && dice_.Chance(10)) WriteDocument(entry);
  }

  int32_t AccountOf(size_t currency) {
    const std::vector<int32_t>& accounts = accounts_of_[currency];
    return accounts.empty() ? 0 : dice_.Pick(std::span<const int32_t>(accounts));
  }

  /// The money account's side of a checked customer entry, as checking writes it.
  void WriteCounterEntry(const Entry& origin, int32_t id, const std::string& customer) {
    Entry entry = origin;
    entry.company = origin.link;
    entry.kind = 1;
    entry.money_a = 0;
    entry.brief = CounterBrief(codec_, customer);
    entry.checker = dice_.Chance(50) ? Someone() : std::string_view{};
    entry.link = id;
    Write(entry);
  }

  void WriteDocument(const Entry& entry) {
    if (documents_written_ >= kMaxDocuments) return;
    ++documents_written_;
    const bool archived = options_.until.serial - entry.date.serial > 365;
    data::RowWriter& table = archived ? archive_ : documents_;
    table.Add({int64_t{entry.company}, entry.document,
               dice_.Chance(70) ? Someone() : std::string_view{}});
  }

  const Options& options_;
  const Registers& registers_;
  Dice& dice_;
  const store::RowProgress& progress_;
  const int width_;
  data::RowWriter& ledger_;
  data::RowWriter& documents_;
  data::RowWriter& archive_;
  IcuAnsiCodec codec_;
  std::vector<basic::Date> workdays_;
  std::vector<int32_t> accounts_of_[std::size(kCurrencies)];
  std::vector<int64_t> debts_;  // two a customer, see Debt
  basic::Date day_;
  std::array<int, 2> counters_{};
  int documents_today_ = 0;
  int32_t documents_written_ = 0;
  int32_t written_ = 0;
};

}  // namespace

int NumberWidth(const Options& options) {
  // A month holds at most a twelfth of a year's entries and its share of the openings.
  int64_t busiest = options.entries / (12 * options.years) * 2 + options.entries / 4;
  int width = 5;
  for (busiest /= 100000; busiest > 0; busiest /= 10) ++width;
  return width;
}

void WriteLedger(data::Transaction& transaction, const Options& options, const Registers& registers,
                 Dice& dice, const store::RowProgress& progress) {
  LedgerMaker(transaction, options, registers, dice, progress).Run();
  transaction.Within().GiveIdsAbove("tAccountDetail", options.entries);
}

}  // namespace qvzj::demo_data
