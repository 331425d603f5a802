#include "ledger/unchanged.h"

#include <array>

#include "ledger/columns.h"
#include "ledger/entry.h"
#include "platform/basic/number.h"
#include "screen/current.h"
#include "screen/frmZj.h"
#include "services/connect.h"
#include "services/form_texts.h"
#include "services/messages.h"
#include "services/strings.h"

namespace qvzj {
namespace {

namespace col = ledger_column;

constexpr int32_t kNotInGrid = 0;

// The columns of an entry that the editor shows, and where the ledger grid has them.
struct Loaded {
  const char* name;
  int32_t column;
};
constexpr std::array<Loaded, 16> kLoaded = {{{"fDate", col::kDate},
                                             {"fCompID", col::kCompID},
                                             {"fType2", col::kType2},
                                             {"fAcntNo", col::kNumber},
                                             {"fInit", col::kInit},
                                             {"fMoneyA", col::kMoneyA},
                                             {"fMoneyB", col::kMoneyB},
                                             {"fBrief", col::kBrief},
                                             {"fInvID", col::kInvID},
                                             {"fOrderID", col::kOrderID},
                                             {"fUser", col::kUser},
                                             {"fDoneman", col::kDoneman},
                                             {"fChecker", col::kChecker},
                                             {"fID2", col::kID2},
                                             {"fMoneyCode", kNotInGrid},
                                             {"fMoneyRate", col::kRate}}};

bool IsAmount(int32_t column) { return column == col::kMoneyA || column == col::kMoneyB; }

std::string EntryStatement(const std::string& id) {
  std::string names;
  for (const Loaded& loaded : kLoaded)
    names += (names.empty() ? "" : ",") + std::string(loaded.name);
  return "Select " + names + " from tAccountDetail where fID=" + id;
}

// The grid keeps amounts as numbers: as such they compare, however the engine answers them.
data::RowTexts TextsOfEntry(const data::Recordset& entry) {
  data::RowTexts texts = data::TextsOfRow(entry);
  for (size_t i = 0; i < texts.size(); ++i) {
    if (IsAmount(kLoaded[i].column) && texts[i]) {
      texts[i] = basic::NumberText(entry.ColumnAt(static_cast<int>(i)).Number(0));
    }
  }
  return texts;
}

}  // namespace

data::RowTexts EntryRow(const frmZj& form, int32_t row,
                        const std::optional<std::string>& currency) {
  const size_t stored = form.Grid2.StoredRow(row);
  data::RowTexts texts;
  for (const Loaded& loaded : kLoaded) {
    if (loaded.column == kNotInGrid) {
      texts.push_back(currency);
    } else if (IsAmount(loaded.column)) {
      texts.push_back(basic::NumberText(UnsignedAmount(form, loaded.column, row)));
    } else {
      const basic::Column& column = form.Grid2.Stored(loaded.column);
      texts.push_back(column.IsNull(stored) ? std::nullopt : std::optional(column.Text(stored)));
    }
  }
  return texts;
}

bool EntryUnchanged(const frmZj& form) {
  return TextsOfEntry(Data().Open(EntryStatement(ShownEntryId(form)))) == form.entryRow;
}

void ReportChangedMeanwhile() {
  Message(LoadText(form_text::kChangedMeanwhile), box::kExclamation);
}

}  // namespace qvzj
