#include "suite/visits/task_form.h"

#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "platform/surroundings.h"
#include "suite/dialogues/form_wiring.h"
#include "suite/dialogues/texts.h"

namespace qvzj::visits {
namespace {

enum Column : int32_t { kId = 1, kDate, kUser, kText, kColumns = kText };

}  // namespace

frmTask::frmTask(const TaskCall& call)
    : ui::Form("frmTask"), language_(call.language), today_(call.date), records_(call) {
  WriteCaptions(call);
  Place();
  Connect();
  Refill(0);
  // Without a visit there is nothing to do but to write one.
  if (Grid1.RowCount() > 0) {
    SetFocus(Grid1);
  } else {
    SetFocus(txtBrief);
  }
}

void frmTask::WriteCaptions(const TaskCall& call) {
  SetCaption(dialogues::InLanguage(language_, "联系记录", "聯繫記錄") + " - " + call.customer_name);
  Grid1.SetColumnCount(kColumns);
  Grid1.SetHeader(kDate, "日期");
  Grid1.SetHeader(kUser, dialogues::InLanguage(language_, "登录人", "登錄人"));
  Grid1.SetHeader(kText, dialogues::InLanguage(language_, "联系内容", "聯繫內容"));
  lblDate.SetCaption("日期(&T):");
  lblBrief.SetCaption(dialogues::InLanguage(language_, "联系内容(&B):", "聯繫內容(&B):"));
  cmdNew.SetCaption("新增(&N)");
  cmdSave.SetCaption(dialogues::InLanguage(language_, "存盘(&S)", "保存(&S)"));
  cmdDelete.SetCaption(dialogues::InLanguage(language_, "删除(&D)", "刪除(&D)"));
  cmdExit.SetCaption("退出(&X)");
  Grid1.SetAccessibleName(Caption());
  dtpDate.SetAccessibleName(ui::ShownCaption(lblDate.Caption()));
  txtBrief.SetAccessibleName(ui::ShownCaption(lblBrief.Caption()));
}

void frmTask::Place() {
  SetSize(9000, 6600);
  Grid1.SetBounds({120, 120, 8760, 3600});
  Grid1.SetColumnHidden(kId, true);
  Grid1.SetColumnWidth(kDate, 1350);
  Grid1.SetColumnWidth(kUser, 1350);
  Grid1.SetColumnWidth(kText, 5700);
  lblDate.SetBounds({120, 3877, 1350, 300});
  dtpDate.SetBounds({1560, 3855, 1950, 345});
  lblBrief.SetBounds({120, 4357, 1350, 300});
  txtBrief.SetBounds({1560, 4335, 7320, 1560});
  txtBrief.SetMultiLine(true);
  int32_t left = 2940;
  for (ui::Button* button : {&cmdNew, &cmdSave, &cmdDelete, &cmdExit}) {
    button->SetBounds({left, 6045, 1395, 420});
    left += 1515;
  }
}

void frmTask::Connect() {
  dialogues::WireForm(*this, language_);
  const auto unload = onUnload;
  onUnload = [this, unload] {
    // The window's close button cannot be refused any more: the text is saved or given up here.
    if (changed_ && Asks("联系内容已修改，存盘吗?", "聯繫內容已修改，保存嗎?")) Save();
    unload();
  };
  dialogues::MoveOnByEnter(*this, dtpDate);
  Grid1.onLeaveCell = [this](int32_t, int32_t, int32_t, int32_t row, bool& cancel) {
    cancel = !MayLeave();
    if (!cancel) ShowRow(row);
  };
  dtpDate.onChange = [this] { changed_ = true; };
  txtBrief.onChange = [this] { changed_ = true; };
  cmdNew.onClick = [this] {
    if (!MayLeave()) return;
    ShowRow(0);
    SetFocus(txtBrief);
  };
  cmdSave.onClick = [this] { Save(); };
  cmdDelete.onClick = [this] { Delete(); };
  cmdExit.onClick = [this] {
    if (!MayLeave()) return;
    changed_ = false;
    Unload();
  };
}

bool frmTask::Asks(const char* simplified, const char* traditional) const {
  return Around().boxes->Show(dialogues::InLanguage(language_, simplified, traditional),
                              box::kQuestionOkCancel, Caption()) == Answer::Ok;
}

bool frmTask::MayLeave() {
  return !changed_ || Asks("联系内容已修改，放弃修改吗?", "聯繫內容已修改，放棄修改嗎?");
}

void frmTask::Refill(int32_t id) {
  const std::vector<Visit> visits = records_.List();
  int32_t wanted = visits.empty() ? 0 : 1;
  Grid1.SetVisible(false);
  Grid1.SetRowCount(static_cast<int32_t>(visits.size()));
  for (size_t i = 0; i < visits.size(); ++i) {
    const auto row = static_cast<int32_t>(i + 1);
    if (visits[i].id == id) wanted = row;
    Grid1.SetCellNumber(kId, row, visits[i].id);
    Grid1.SetCellText(kDate, row, basic::FormatIso(visits[i].date));
    Grid1.SetCellText(kUser, row, visits[i].user);
    Grid1.SetCellText(kText, row, visits[i].text);
  }
  if (wanted > 0) Grid1.SetActive(kDate, wanted);
  Grid1.SetVisible(true);
  ShowRow(wanted);
}

void frmTask::ShowRow(int32_t row) {
  shown_ = row == 0 ? 0 : basic::ToInt32(Grid1.CellNumber(kId, row));
  const auto date = basic::ParseIso(row == 0 ? "" : Grid1.CellText(kDate, row));
  dtpDate.SetValue(date.value_or(today_));
  txtBrief.SetText(row == 0 ? "" : Grid1.CellText(kText, row));
  cmdDelete.SetEnabled(shown_ != 0);
  changed_ = false;
}

void frmTask::Save() {
  const std::string text = basic::Trim(txtBrief.Text());
  if (text.empty()) {
    Around().boxes->Show(dialogues::InLanguage(language_, "请输入联系内容!", "請輸入聯繫內容!"),
                         box::kExclamation, Caption());
    SetFocus(txtBrief);
    return;
  }
  if (shown_ == 0) {
    shown_ = records_.Add(dtpDate.Value(), text);
  } else {
    records_.Change(shown_, dtpDate.Value(), text);
  }
  Refill(shown_);
}

void frmTask::Delete() {
  if (shown_ == 0 || !Asks("删除该联系记录吗?", "刪除該聯繫記錄嗎?")) return;
  records_.Remove(shown_);
  Refill(0);
}

}  // namespace qvzj::visits
