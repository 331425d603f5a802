#include "ledger/grid.h"

#include "ledger/columns.h"
#include "ledger/editor.h"
#include "ledger/unsaved.h"
#include "platform/basic/number.h"
#include "platform/surroundings.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"
#include "services/context.h"
#include "services/strings.h"
#include "services/text_ids.h"

namespace qvzj {
namespace {

namespace col = ledger_column;

using namespace text_id;

// The two directions' words as one header: "进帐(+)/出帐(-)".
std::string BothDirections(int16_t plus, int16_t minus) {
  return LoadText(plus) + "(+)/" + LoadText(minus) + "(-)";
}

// Null where the program gives no order for the language: texts then order by their bytes.
const basic::TextOrder* OrderOfLanguage() {
  return Around().text_order[static_cast<size_t>(CurrentLanguage())];
}

void TabClicked(frmZj& form, int previous) {
  WriteAmountHeaders(form);
  // The payable tab shows its side positive; leaving it undoes that.
  if (form.SSTab2.Tab() != LedgerTab::Out && previous != LedgerTab::Out) return;
  NegateAmounts(form.Grid2);
  ui::TextBox& balance = form.txtAcnt2(EntryBox::Balance);
  if (!balance.Text().empty()) {
    balance.SetText(basic::FormatFixed(-basic::Val(balance.Text()), 2));
  }
}

// A new entry that is being keyed stays in the editor: the row is only marked, and its actions are
// offered. Loading the row over it would lose what was typed and book an old entry once more.
void RowEntered(frmZj& form, int32_t row, int32_t new_row, bool& cancel) {
  if (new_row < 1 || new_row == row) return;
  if (KeyingNewEntry(form)) return OfferActions(form, new_row);
  cancel = !MayGiveUpEntry(form);
  if (cancel) return;
  ShowLedgerRow(form, new_row);
  OfferSave(form);
  form.SetFocus(form.Grid2);
}

}  // namespace

void ConnectLedgerGrid(frmZj& form) {
  form.Grid2.onClick = [&form](int32_t column, int32_t row) {
    if (row == 0) SortByHeader(form.Grid2, column);
  };
  form.Grid2.onDblClick = [&form](int32_t, int32_t row) {
    if (row >= 1) PressAction(form, kActionView);
  };
  form.Grid2.onLeaveCell = [&form](int32_t, int32_t row, int32_t, int32_t new_row, bool& cancel) {
    RowEntered(form, row, new_row, cancel);
  };
  form.Grid2.onRowHeight = [&form](int32_t, int32_t, int32_t height) {
    form.Grid2.SetRowHeight(height);
  };
  form.SSTab2.onClick = [&form](int previous) { TabClicked(form, previous); };
}

void NegateAmounts(ui::Grid& ledger) {
  for (int32_t column : {col::kMoneyA, col::kMoneyB, col::kBalance}) ledger.NegateColumn(column);
}

void WriteAmountHeaders(frmZj& form) {
  const int tab = form.SSTab2.Tab();
  std::string money_a = LoadText(kOpening);
  std::string money_b = tab == LedgerTab::Both ? BothDirections(kIn, kOut)
                                               : LoadText(tab == LedgerTab::In ? kIn : kOut);
  std::string balance = LoadText(kBalance);
  if (form.mode == kCustomers) {
    money_a = tab == LedgerTab::Both ? BothDirections(kReceivable, kPayable)
                                     : LoadText(tab == LedgerTab::In ? kReceivable : kPayable);
    money_b = tab == LedgerTab::Both ? BothDirections(kReceived, kPaid)
                                     : LoadText(tab == LedgerTab::In ? kReceived : kPaid);
    balance = LoadText(tab == LedgerTab::Out ? kPayable : kReceivable) + LoadText(kBalance);
  }
  form.Grid2.SetHeader(col::kMoneyA, money_a);
  form.Grid2.SetHeader(col::kMoneyB, money_b);
  form.Grid2.SetHeader(col::kBalance, balance);
}

void SortByHeader(ui::Grid& grid, int32_t column) {
  const bool ascending = grid.GetSortOrder() == ui::SortOrder::Ascending;
  const bool flip = grid.SortColumn() == column;
  grid.SetSortKey(column, ascending != flip ? ui::SortOrder::Ascending : ui::SortOrder::Descending);
  grid.Sort(OrderOfLanguage());
}

}  // namespace qvzj
