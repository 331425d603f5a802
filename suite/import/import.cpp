#include "suite/import/import.h"

#include "adapters/icu/chinese_text.h"
#include "platform/basic/errors.h"
#include "platform/data/store.h"
#include "suite/import/csv.h"
#include "suite/import/rows.h"

namespace qvzj::imports {
namespace {

/// Reports progress about once in a thousand rows, in bytes of the file.
constexpr int64_t kRowsBetweenReports = 1000;

class Import {
 public:
  Import(data::Transaction& transaction, std::string_view text, const Options& options,
         const std::function<void(const Refusal&)>& refused, Report& report)
      : refused_(refused), report_(report), reader_(text, options.separator) {
    CsvRecord header;
    if (!reader_.Next(header))
      throw Error("The file is empty; its first row must name the columns");
    if (!header.fault.empty()) throw Error("The first row cannot be read: " + header.fault);
    mapping_.emplace(options.kind, header.fields, options.map, options.set, options.presets);
    rows_ = MakeRows(transaction, options, *mapping_, report);
  }

  void Run(const store::RowProgress& progress, int64_t size) {
    CsvRecord record;
    while (reader_.Next(record)) {
      ++report_.rows;
      const std::string reason = TakeRow(record);
      if (!reason.empty()) {
        ++report_.refused;
        refused_({record.line, reason});
      }
      if (progress && report_.rows % kRowsBetweenReports == 0) {
        progress(static_cast<int64_t>(reader_.Position()), size);
      }
    }
  }

 private:
  /// Imports one record; answers why not, "" when it is in.
  std::string TakeRow(const CsvRecord& record) {
    if (!record.fault.empty()) return record.fault;
    if (record.fields.size() != mapping_->FieldCount()) {
      return "it has " + std::to_string(record.fields.size()) + " fields, the header has " +
             std::to_string(mapping_->FieldCount());
    }
    return rows_->Take(record.fields);
  }

  const std::function<void(const Refusal&)>& refused_;
  Report& report_;
  CsvReader reader_;
  std::optional<Mapping> mapping_;
  std::unique_ptr<Rows> rows_;
};

}  // namespace

Report ImportCsv(data::Store& store, std::string_view bytes, const Options& options,
                 const std::function<void(const Refusal&)>& refused,
                 const store::RowProgress& progress) {
  Report report;
  const ChineseText text = ReadChineseText(bytes);
  report.encoding = text.encoding;
  data::Transaction transaction(store);
  {
    Import import(transaction, text.utf8, options, refused, report);
    import.Run(progress, static_cast<int64_t>(text.utf8.size()));
  }
  // What is only tried goes to the engine as well.
  transaction.Flush();
  if (!options.dry_run) transaction.Commit();
  return report;
}

}  // namespace qvzj::imports
