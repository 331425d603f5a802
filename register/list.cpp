#include "register/list.h"

#include <utility>

#include "ledger/editor.h"
#include "ledger/filter.h"
#include "ledger/query.h"
#include "platform/basic/errors.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "register/grid.h"
#include "register/table.h"
#include "register/unsaved.h"
#include "screen/current.h"
#include "screen/frmZj.h"
#include "screen/indexes.h"
#include "screen/keys.h"
#include "screen/loading.h"
#include "services/connect.h"
#include "services/ids.h"
#include "services/query.h"

namespace qvzj {
namespace {

constexpr int32_t kItemName = 40;  // characters of a list item that the name fills; its id follows

std::string OrderColumn(const frmZj& form) {
  return form.cboKhOrder.ListIndex() == 0 ? "CompCode" : "compname";
}

std::string RegisterStatement(const frmZj& form, const std::string& condition) {
  std::string sql =
      "select distinct a.CompCode,a.compname,a.name,a.fBank,a.fAcntID,a.others"
      ",a.province,a.cityname,a.postcode,a.telphone,a.fax,a.fType0,a.fID from " +
      RegisterTable(form) + " a";
  if (form.chkSeek2.Ticked()) {
    sql += " Right Join tAccountDetail b On a.fID=b.fCompID Where " + LedgerCondition(form);
    if (!condition.empty()) sql += " And " + condition;
  } else if (!condition.empty()) {
    sql += " Where " + condition;
  }
  return sql + " Order By a." + OrderColumn(form);
}

// A suite that never used money accounts starts with a cash box and one bank account.
void SeedAccounts() {
  const int32_t id = NewRecordId("tAccounts");
  const std::string insert = "Insert Into tAccounts (CompCode,name,compname,fBank,fAcntID,fID) ";
  Data().Execute(insert + "Values ('0001','总经理','现金','现金','000001'," + std::to_string(id) +
                 ")");
  Data().Execute(insert + "Values ('0002','总经理','招商银行','招商银行深圳分行','075500000001'," +
                 std::to_string(basic::ToInt32(id + 1.0)) + ")");
}

data::Recordset OpenRegister(const frmZj& form, const std::string& condition) {
  const std::string sql = RegisterStatement(form, condition);
  data::Recordset rows = Data().Open(sql);
  if (rows.RecordCount() > 0 || form.mode != kAccounts) return rows;
  SeedAccounts();
  return Data().Open(sql);
}

// Grid row (1-based) of the record whose id is `tag`. Row 1 answers for itself and for a record
// that is not there any more.
int32_t RowOfRecord(const basic::Column& ids, const std::string& tag) {
  if (ids.Size() == 0) return 1;
  if (!basic::IsNumeric(tag)) throw TypeMismatchError("record id \"" + tag + "\"");
  if (basic::Val(tag) <= 0) return 1;
  const size_t count = ids.Size();
  if (ids.GetKind() == basic::Column::Kind::Integer) {
    const int32_t id = basic::ToInt32(basic::Val(tag));
    if (std::to_string(id) != tag) return 1;
    for (size_t i = 1; i < count; ++i) {
      if (ids.Integers()[i] == id) return static_cast<int32_t>(i) + 1;
    }
    return 1;
  }
  for (size_t i = 1; i < count; ++i) {
    if (ids.Text(i) == tag) return static_cast<int32_t>(i) + 1;
  }
  return 1;
}

// Moves the records into the grid, whole columns at a time. Answers the row to select.
int32_t FillRegister(frmZj& form, data::Recordset rows, const std::string& record) {
  ui::Grid& grid = form.Grid1;
  const int id_field = rows.FieldCount() - 1;
  RequireIds(rows.ColumnAt(id_field), RegisterTable(form) + ".fID");
  grid.SetRowCount(rows.RecordCount());
  const int32_t selected = RowOfRecord(rows.ColumnAt(id_field), record);
  for (int32_t column = 1; column <= grid.ColumnCount(); ++column) {
    grid.TakeColumn(column, rows.TakeColumn(column - 1));
  }
  return selected;
}

// A reload lists by `cboKhOrder` again: no header claims an order any more.
void ClearSortArrows(frmZj& form) {
  for (int i = 0; i < form.lblAcnt.Count(); ++i) {
    form.Grid1.SetHeader(i + 1, form.lblAcnt(i).Caption());
  }
}

}  // namespace

void LoadRegister(frmZj& form, const std::string& condition) {
  LoadRegister(form, condition, CurrentRecordId(form));
}

void LoadRegister(frmZj& form, const std::string& condition, const std::string& record) {
  const Hourglass hourglass(form);
  ui::Grid& grid = form.Grid1;
  GridFilling filling(grid);
  ClearSortArrows(form);
  const int32_t selected = FillRegister(form, OpenRegister(form, condition), record);
  if (grid.RowCount() > 0) {
    grid.SetActive(2, selected);
    ShowRegisterRow(form, selected);
  }
  filling.Show();
  form.lblKhTotal.SetCaption("(共" + std::to_string(grid.RowCount()) + "个)");
  if (grid.RowCount() > 0) {
    form.SSTab1.SetTab(RegisterTab::List);
    form.SetFocus(grid);
  }
  LoadLedger(form, LedgerCondition(form));
}

void LoadAccountNames(frmZj& form) {
  data::Recordset rows =
      Data().Open("select compname,fID from tAccounts Order By " + OrderColumn(form));
  std::vector<std::string> items;
  items.reserve(static_cast<size_t>(rows.RecordCount()));
  for (; !rows.Eof(); rows.MoveNext()) {
    items.push_back(basic::Pad(rows.Text(0), kItemName) + rows.Text(1));
  }
  form.cboAcntName.SetItems(std::move(items));
}

namespace {

// Whoever chooses another order expects to see it at once, in every list that it orders.
void ReorderLists(frmZj& form) {
  if (form.mode == kCustomers) {
    LoadAccountNames(form);
    SelectAccountById(form, basic::ToInt32(basic::Val(LinkedAccountId(form))));
  }
  LoadRegister(form, form.registerCondition);
}

}  // namespace

void ConnectRegisterList(frmZj& form) {
  form.cmdAcntRefresh.onClick = [&form] {
    if (MayLeaveRecord(form)) LoadRegister(form, form.registerCondition);
  };
  for (ui::ComboBox* list : {&form.cboHb2, &form.cboKhOrder}) {
    list->onChoosing = [&form](int32_t, bool& cancel) { cancel = !MayLeaveRecord(form); };
  }
  form.cboHb2.onClick = [&form] {
    // A code that would break the statement is no filter.
    if (!NoQuote(form.cboHb2.Text())) form.cboHb2.SetListIndex(-1);
    if (form.cboHb2.Enabled()) LoadRegister(form, form.registerCondition);
  };
  form.cboKhOrder.onClick = [&form] { ReorderLists(form); };
  EnterWalksOn(form.cboKhOrder);
}

}  // namespace qvzj
