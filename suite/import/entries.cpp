#include <array>
#include <unordered_map>

#include "platform/basic/errors.h"
#include "platform/basic/text.h"
#include "suite/import/rows.h"
#include "suite/import/texts.h"

namespace qvzj::imports {
namespace {

/// Places of the columns in ColumnsOf(Kind::Entries).
enum Place : size_t {
  kId,
  kCode,
  kName,
  kDate,
  kSide,
  kNumber,
  kInit,
  kMoneyA,
  kMoneyB,
  kBrief,
  kDocument,
  kOrder,
  kUser,
  kHandler,
  kChecker,
  kCurrency,
  kRate,
  kPlaces
};

/// Why a row is refused, thrown inside the check of one row.
struct Refused {
  std::string reason;
};

/// The records of one register, by id, code and name.
class Records {
 public:
  Records(data::Transaction& transaction, const std::string& table) {
    const data::Recordset rows =
        transaction.Within().Native("select fID,CompCode,compname from " + table);
    for (size_t row = 0; row < static_cast<size_t>(rows.RecordCount()); ++row) {
      const int32_t id = rows.ColumnAt(0).Integer(row);
      ids_.emplace(id, true);
      Add(codes_, rows.ColumnAt(1).Text(row), id);
      Add(names_, rows.ColumnAt(2).Text(row), id);
    }
  }

  bool Has(int32_t id) const { return ids_.contains(id); }
  int32_t ByCode(const std::string& code) const { return Find(codes_, "code", code); }
  int32_t ByName(const std::string& name) const { return Find(names_, "name", name); }

 private:
  using Index = std::unordered_map<std::string, int32_t>;
  static constexpr int32_t kSeveral = -1;

  static void Add(Index& index, const std::string& key, int32_t id) {
    const auto [place, added] = index.emplace(basic::Lower(key), id);
    if (!added) place->second = kSeveral;
  }

  static int32_t Find(const Index& index, const char* what, const std::string& text) {
    const auto found = index.find(basic::Lower(basic::Replace(text, "'", "’")));
    if (found == index.end()) throw Refused{"no record has the " + (what + (" " + text))};
    if (found->second == kSeveral) {
      throw Refused{"several records have the " + (what + (" " + text))};
    }
    return found->second;
  }

  std::unordered_map<int32_t, bool> ids_;
  Index codes_;
  Index names_;
};

struct Currency {
  std::string code;
  double rate = 1;
};

/// The currency table.
class Currencies {
 public:
  explicit Currencies(data::Transaction& transaction)
      : writer_(transaction.Into("Moneys", {"MoneyCode", "MoneyRate", "MoneyType"})) {
    const data::Recordset rows = transaction.Within().Native(
        "select MoneyCode,MoneyRate,MoneyType from Moneys order by coalesce(MoneyType,-32768) "
        "desc");
    for (size_t row = 0; row < static_cast<size_t>(rows.RecordCount()); ++row) {
      const std::string code = rows.ColumnAt(0).Text(row);
      if (row == 0) local_ = code;
      known_.emplace(basic::Lower(code), Currency{code, rows.ColumnAt(1).Number(row)});
      lowest_type_ = std::min<int64_t>(lowest_type_, rows.ColumnAt(2).Integer(row));
    }
  }

  /// The currency that entries without one are in; "" when the table is empty.
  const std::string& Local() const { return local_; }
  /// The currency of that code, ASCII case ignored; null when the table has none.
  const Currency* Find(const std::string& code) const {
    const auto found = known_.find(basic::Lower(code));
    return found == known_.end() ? nullptr : &found->second;
  }
  void Add(const std::string& code, double rate) {
    writer_.Add({code, rate, --lowest_type_});
    known_.emplace(basic::Lower(code), Currency{code, rate});
    if (local_.empty()) local_ = code;
  }

 private:
  data::RowWriter& writer_;
  std::unordered_map<std::string, Currency> known_;  // by code in lower case
  std::string local_;
  int64_t lowest_type_ = 1;
};

class EntryRows : public Rows {
 public:
  EntryRows(data::Transaction& transaction, const Options& options, const Mapping& mapping,
            Report& report)
      : options_(options),
        mapping_(mapping),
        report_(report),
        columns_(ColumnsOf(options.kind)),
        texts_(report),
        records_(transaction, options.ledger == 0 ? "cards" : "tAccounts"),
        currencies_(transaction),
        writer_(transaction.Into("tAccountDetail",
                                 {"fDate", "fCompID", "fType1", "fType2", "fAcntNo", "fInit",
                                  "fMoneyA", "fMoneyB", "fBrief", "fInvID", "fOrderID", "fUser",
                                  "fDoneman", "fChecker", "fID2", "fMoneyCode", "fMoneyRate"})) {}

  std::string Take(const std::vector<std::string>& fields) override {
    texts_.BeginRow();
    try {
      Write(fields);
    } catch (const Refused& refused) {
      return refused.reason;
    }
    return {};
  }

 private:
  void Write(const std::vector<std::string>& fields) {
    for (size_t i = 0; i < kPlaces; ++i) values_[i] = mapping_.Value(i, fields);
    for (size_t i = 0; i < kPlaces; ++i) {
      if (columns_[i].required && values_[i].empty()) Refuse(i, "is empty");
    }
    const int32_t company = Company();
    const basic::Date date = Date();
    const int64_t side = Side();
    const int64_t init = Init();
    if (values_[kMoneyA].empty() && values_[kMoneyB].empty()) throw Refused{"it has no amount"};
    const double money_a = Amount(kMoneyA);
    const double money_b = Amount(kMoneyB);
    if (options_.ledger == 1 && init == 0 && money_a != 0) {
      Refuse(kMoneyA, "of a money account belongs to opening balances alone");
    }
    FitTexts();
    const double rate = CurrencyAndRate();
    writer_.Add({date, int64_t{company}, int64_t{options_.ledger}, side, values_[kNumber], init,
                 money_a, money_b, values_[kBrief], values_[kDocument], values_[kOrder],
                 values_[kUser], values_[kHandler], values_[kChecker], int64_t{0},
                 values_[kCurrency], rate});
    texts_.Keep();
    ++report_.written;
  }

  [[noreturn]] void Refuse(size_t place, const std::string& why) const {
    throw Refused{std::string(columns_[place].name) + " " + why};
  }

  int32_t Company() const {
    if (!values_[kId].empty()) {
      const auto id = ReadWholeNumber(values_[kId]);
      if (!id) Refuse(kId, "is no whole number: " + values_[kId]);
      if (!records_.Has(*id)) throw Refused{"no record has the id " + values_[kId]};
      return *id;
    }
    if (!values_[kCode].empty()) return records_.ByCode(values_[kCode]);
    if (!values_[kName].empty()) return records_.ByName(values_[kName]);
    throw Refused{"nothing says whose entry it is"};
  }

  basic::Date Date() const {
    std::string why;
    const auto date = ReadDate(values_[kDate], options_.dates, why);
    if (!date) Refuse(kDate, "is refused, " + why + ": " + values_[kDate]);
    return *date;
  }

  int64_t Side() const {
    for (const char* in : {"1", "应收", "实收", "收", "进帐", "进"}) {
      if (values_[kSide] == in) return 1;
    }
    for (const char* out : {"2", "应付", "实付", "付", "出帐", "出"}) {
      if (values_[kSide] == out) return 2;
    }
    Refuse(kSide, "is neither 1 nor 2: " + values_[kSide]);
  }

  int64_t Init() const {
    if (values_[kInit].empty() || values_[kInit] == "0") return 0;
    if (values_[kInit] == "1") return 1;
    Refuse(kInit, "is neither 0 nor 1: " + values_[kInit]);
  }

  double Amount(size_t place) const {
    if (values_[place].empty()) return 0;
    const auto amount = ReadNumber(values_[place]);
    if (!amount) Refuse(place, "is no amount: " + values_[place]);
    return *amount;
  }

  void FitTexts() {
    for (const size_t place :
         {kNumber, kBrief, kDocument, kOrder, kUser, kHandler, kChecker, kCurrency}) {
      const std::string reason = texts_.Fit(columns_[place], values_[place]);
      if (!reason.empty()) throw Refused{reason};
    }
  }

  /// Fills in the currency and answers the rate: the row's own, else the table's.
  double CurrencyAndRate() {
    std::string& code = values_[kCurrency];
    if (code.empty()) code = currencies_.Local();
    if (code.empty()) Refuse(kCurrency, "is empty, and there is no currency to fall back on");
    const Currency* known = currencies_.Find(code);
    if (!known && !options_.add_currencies) {
      Refuse(kCurrency, "is not in the currency table: " + code);
    }
    double rate = 1;
    if (known) {
      code = known->code;
      rate = known->rate;
    }
    if (!values_[kRate].empty()) rate = Amount(kRate);
    if (rate <= 0) Refuse(kRate, "must be above zero: " + values_[kRate]);
    if (!known) {
      currencies_.Add(code, rate);
      report_.currencies.push_back(code);
    }
    return rate;
  }

  const Options& options_;
  const Mapping& mapping_;
  Report& report_;
  std::span<const Column> columns_;
  Texts texts_;
  Records records_;
  Currencies currencies_;
  data::RowWriter& writer_;
  std::array<std::string, kPlaces> values_;
};

}  // namespace

std::unique_ptr<Rows> MakeEntryRows(data::Transaction& transaction, const Options& options,
                                    const Mapping& mapping, Report& report) {
  return std::make_unique<EntryRows>(transaction, options, mapping, report);
}

}  // namespace qvzj::imports
