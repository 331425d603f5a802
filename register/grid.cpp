#include "register/grid.h"

#include <string>

#include "ledger/editor.h"
#include "ledger/filter.h"
#include "ledger/grid.h"
#include "ledger/query.h"
#include "platform/basic/number.h"
#include "register/detail.h"
#include "screen/current.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"

namespace qvzj {
namespace {

void SelectType(frmZj& form, double type) {
  const uint8_t code = basic::ToByte(type);
  form.optKhType(code < form.optKhType.Count() ? code : 0).Select();
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
void CarryIntoEntry(frmZj& form) {
  form.txtAcnt2(EntryBox::Record).SetText(form.lblKhName.Caption());
  form.txtAcnt2(EntryBox::Record).SetTag(CurrentRecordId(form));
  if (form.optKhType(CustomerType::Supplier).Selected() &&
      !form.optType2(Direction::Out).Selected())
    form.optType2(Direction::Out).Select();
  if (form.optKhType(CustomerType::Dealer).Selected() && !form.optType2(Direction::In).Selected())
    form.optType2(Direction::In).Select();
}

void EnterRow(frmZj& form, int32_t row, int32_t new_row) {
  if (new_row == row || new_row < 1) return;
  ShowRegisterRow(form, new_row);
  if (EntryIsKeyed(form)) CarryIntoEntry(form);
  if (form.OptSelect(Selection::Single).Selected()) LoadLedger(form, LedgerCondition(form));
}

}  // namespace

void ShowRegisterRow(frmZj& form, int32_t row) {
  const ui::Grid& grid = form.Grid1;
  for (int i = 0; i < form.txtAcnt.Count(); ++i) {
    form.txtAcnt(i).SetText(grid.CellText(i + 1, row));
  }
  const int32_t id_column = grid.ColumnCount();
  if (form.mode == kCustomers) SelectType(form, grid.CellNumber(id_column - 1, row));
  form.lblKhName.SetCaption(form.txtAcnt(RecordBox::Name).Text());
  form.lblKhName.SetTag(basic::NumberText(grid.CellNumber(id_column, row)));
  if (form.fraKhMemo.Visible()) LoadRegisterDetail(form, CurrentRecordId(form));
}

void ConnectRegisterGrid(frmZj& form) {
  form.Grid1.onClick = [&form](int32_t column, int32_t row) {
    if (row == 0) SortRegister(form, column);
  };
  form.Grid1.onDblClick = [&form](int32_t, int32_t row) {
    if (row > 0) form.SSTab1.SetTab(RegisterTab::Record);
  };
  form.Grid1.onLeaveCell = [&form](int32_t, int32_t row, int32_t, int32_t new_row, bool&) {
    EnterRow(form, row, new_row);
  };
}

}  // namespace qvzj
