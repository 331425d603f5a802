#include "register/grid.h"

#include <optional>
#include <string>
#include <utility>

#include "ledger/editor.h"
#include "ledger/filter.h"
#include "ledger/grid.h"
#include "ledger/query.h"
#include "ledger/unsaved.h"
#include "platform/basic/errors.h"
#include "platform/basic/number.h"
#include "register/detail.h"
#include "register/unsaved.h"
#include "screen/current.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"
#include "screen/loading.h"

namespace qvzj {
namespace {

// The option of the type code in a row; the first one for codes that none stands for, and in money
// accounts. Throws Error that names the record for what is no byte.
int TypeInRow(const frmZj& form, int32_t row) {
  if (form.mode != kCustomers) return CustomerType::Both;
  const double stored = form.Grid1.CellNumber(form.Grid1.ColumnCount() - 1, row);
  if (stored < 0 || stored > UINT8_MAX) {
    throw Error("数据有误：" + form.Grid1.CellText(RecordBox::Name + 1, row) + " 的类别代码 " +
                basic::NumberText(stored) + " 不在 0 至 255 之间。请检查数据！");
  }
  const uint8_t code = basic::ToByte(stored);
  return code < form.optKhType.Count() ? int{code} : int{CustomerType::Both};
}

std::string IdInRow(const frmZj& form, int32_t row) {
  return basic::NumberText(form.Grid1.CellNumber(form.Grid1.ColumnCount(), row));
}

// The row as the database answered it, the id left out.
data::RowTexts RecordInRow(const frmZj& form, int32_t row) {
  const ui::Grid& grid = form.Grid1;
  const size_t stored = grid.StoredRow(row);
  data::RowTexts texts;
  for (int32_t column = 1; column < grid.ColumnCount(); ++column) {
    const basic::Column& values = grid.Stored(column);
    texts.push_back(values.IsNull(stored) ? std::nullopt : std::optional(values.Text(stored)));
  }
  return texts;
}

// The detail of a record that is about to become the current one; nothing while the frame is shut,
// or while the text of the same record is unsaved there.
std::optional<data::RowTexts> DetailToShow(const frmZj& form, const std::string& id) {
  if (!form.fraKhMemo.Visible()) return std::nullopt;
  if (id == CurrentRecordId(form) && DetailUnsaved(form)) return std::nullopt;
  return ReadRegisterDetail(form, id);
}

// The record of a row in the boxes of the record page.
void ShowBoxes(frmZj& form, int32_t row) {
  const int type = TypeInRow(form, row);
  for (int i = 0; i < form.txtAcnt.Count(); ++i) {
    form.txtAcnt(i).SetText(form.Grid1.CellText(i + 1, row));
  }
  if (form.mode == kCustomers) form.optKhType(type).Select();
  RecordAtRest(form);
}

// A new record that is being keyed keeps the boxes, whatever record becomes the current one.
void ShowRecord(frmZj& form, int32_t row, std::optional<data::RowTexts>&& detail) {
  if (!KeyingNewRecord(form)) ShowBoxes(form, row);
  form.lblKhName.SetCaption(form.Grid1.CellText(RecordBox::Name + 1, row));
  form.lblKhName.SetTag(IdInRow(form, row));
  form.recordRow = RecordInRow(form, row);
  if (detail) ShowRegisterDetail(form, std::move(*detail));
}

// The header that was clicked bears an arrow, every other one its plain caption.
void SortRegister(frmZj& form, int32_t column) {
  ui::Grid& grid = form.Grid1;
  SortByHeader(grid, column);
  for (int32_t k = 1; k <= form.lblAcnt.Count(); ++k) {
    std::string header = form.lblAcnt(k - 1).Caption();
    if (k == column) header += grid.GetSortOrder() == ui::SortOrder::Ascending ? "↑" : "↓";
    grid.SetHeader(k, std::move(header));
  }
}

bool EntryIsKeyed(const frmZj& form) {
  const int action = ArmedAction(form);
  return action == kActionNew || action == kActionChange;
}

// The entry that is being keyed follows the register: it moves to the new record, and its
// direction to what the record is for (a supplier is paid, a sales dealer pays).
void CarryIntoEntry(frmZj& form, int type) {
  form.txtAcnt2(EntryBox::Record).SetText(form.lblKhName.Caption());
  form.txtAcnt2(EntryBox::Record).SetTag(CurrentRecordId(form));
  if (type == CustomerType::Supplier) form.optType2(Direction::Out).Select();
  if (type == CustomerType::Dealer) form.optType2(Direction::In).Select();
  RecordOfEntryAtRest(form);
}

// Whatever can fail comes first: a record whose detail or ledger cannot be read does not become the
// current one, and everything on the screen goes on naming the one before.
void EnterRow(frmZj& form, int32_t row, int32_t new_row, bool& cancel) {
  if (new_row == row || new_row < 1) return;
  cancel = !MayLeaveRecord(form);
  if (cancel) return;
  const std::string id = IdInRow(form, new_row);
  std::optional<data::RowTexts> detail;
  std::optional<ReadyLedger> ledger;
  {
    const Hourglass hourglass(form);
    detail = DetailToShow(form, id);
    if (form.OptSelect(Selection::Single).Selected()) {
      ledger = ReadLedger(form, LedgerCondition(form), id);
    }
  }
  ShowRecord(form, new_row, std::move(detail));
  if (EntryIsKeyed(form)) CarryIntoEntry(form, TypeInRow(form, new_row));
  if (ledger) ShowLedger(form, std::move(*ledger));
}

}  // namespace

void ShowRegisterRow(frmZj& form, int32_t row) {
  ShowRecord(form, row, DetailToShow(form, IdInRow(form, row)));
}

void ConnectRegisterGrid(frmZj& form) {
  form.Grid1.onClick = [&form](int32_t column, int32_t row) {
    if (row == 0) SortRegister(form, column);
  };
  form.Grid1.onDblClick = [&form](int32_t, int32_t row) {
    if (row > 0) form.SSTab1.SetTab(RegisterTab::Record);
  };
  form.Grid1.onLeaveCell = [&form](int32_t, int32_t row, int32_t, int32_t new_row, bool& cancel) {
    EnterRow(form, row, new_row, cancel);
  };
}

}  // namespace qvzj
