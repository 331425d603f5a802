#include <array>
#include <unordered_set>

#include "platform/basic/text.h"
#include "suite/import/rows.h"
#include "suite/import/texts.h"

namespace qvzj::imports {
namespace {

constexpr size_t kCode = 0;
constexpr size_t kColumns = 13;
constexpr const char* kTypes[] = {"供销商", "供应商", "销售商", "代销商"};

const char* TableOf(Kind kind) { return kind == Kind::Accounts ? "tAccounts" : "cards"; }

class RegisterRows : public Rows {
 public:
  RegisterRows(data::Transaction& transaction, const Options& options, const Mapping& mapping,
               Report& report)
      : options_(options),
        mapping_(mapping),
        report_(report),
        columns_(ColumnsOf(options.kind)),
        texts_(report),
        writer_(transaction.Into(
            TableOf(options.kind),
            {"CompCode", "compname", "name", "fBank", "fAcntID", "others", "province", "cityname",
             "postcode", "telphone", "fax", "fType0", "detail", "fID"})) {
    const std::string table = TableOf(options.kind);
    const data::Recordset codes = transaction.Within().Native("SELECT CompCode, fID FROM " + table);
    for (size_t row = 0; row < static_cast<size_t>(codes.RecordCount()); ++row) {
      codes_.insert(basic::Lower(codes.ColumnAt(0).Text(row)));
      last_id_ = std::max(last_id_, codes.ColumnAt(1).Integer(row));
    }
  }

  std::string Take(const std::vector<std::string>& fields) override {
    texts_.BeginRow();
    for (size_t i = 0; i < columns_.size(); ++i) {
      values_[i] = mapping_.Value(i, fields);
      const Column& column = columns_[i];
      if (column.required && values_[i].empty()) return std::string(column.name) + " is empty";
    }
    const std::string code = basic::Lower(basic::Replace(values_[kCode], "'", "’"));
    if (codes_.contains(code)) {
      if (!options_.once) return "the code " + values_[kCode] + " is there already";
      ++report_.passed_over;
      return {};
    }
    return Write(code);
  }

 private:
  std::string Write(const std::string& code) {
    int64_t type = 0;
    for (size_t i = 0; i < columns_.size(); ++i) {
      if (columns_[i].kind == FieldKind::Type) {
        type = TypeOf(values_[i]);
        if (type < 0) return "fType0 is no customer type: " + values_[i];
      } else if (std::string reason = texts_.Fit(columns_[i], values_[i]); !reason.empty()) {
        return reason;
      }
    }
    codes_.insert(code);
    writer_.Add({values_[0], values_[1], values_[2], values_[3], values_[4], values_[5], values_[6],
                 values_[7], values_[8], values_[9], values_[10], type, values_[12],
                 int64_t{++last_id_}});
    texts_.Keep();
    ++report_.written;
    return {};
  }

  /// Customer type of a text: its digit or its name; empty is 0, anything else -1.
  static int64_t TypeOf(const std::string& text) {
    if (text.empty()) return 0;
    for (int64_t type = 0; type < 4; ++type) {
      if (text == kTypes[type] || text == std::to_string(type)) return type;
    }
    return -1;
  }

  const Options& options_;
  const Mapping& mapping_;
  Report& report_;
  std::span<const Column> columns_;
  Texts texts_;
  data::RowWriter& writer_;
  std::unordered_set<std::string> codes_;
  int32_t last_id_ = 0;
  std::array<std::string, kColumns> values_;
};

}  // namespace

std::unique_ptr<Rows> MakeRegisterRows(data::Transaction& transaction, const Options& options,
                                       const Mapping& mapping, Report& report) {
  return std::make_unique<RegisterRows>(transaction, options, mapping, report);
}

std::unique_ptr<Rows> MakeRows(data::Transaction& transaction, const Options& options,
                               const Mapping& mapping, Report& report) {
  return options.kind == Kind::Entries ? MakeEntryRows(transaction, options, mapping, report)
                                       : MakeRegisterRows(transaction, options, mapping, report);
}

}  // namespace qvzj::imports
