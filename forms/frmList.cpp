#include "forms/frmList.h"

#include <string>
#include <utility>
#include <vector>

#include "platform/surroundings.h"
#include "services/connect.h"
#include "services/context.h"
#include "services/messages.h"
#include "services/strings.h"
#include "services/text_ids.h"

namespace qvzj {
namespace {

// An item is the staff code, a tab and the staff name.
std::string NameOf(const std::string& item) {
  const size_t tab = item.find('\t');
  return tab == std::string::npos ? item : item.substr(tab + 1);
}

void PlaceControls(frmList& dialog) {
  dialog.lblList.SetBounds({120, 120, 3360, 300});
  dialog.List1.SetBounds({120, 450, 3360, 3300});
  dialog.cmdLogOK.SetBounds({600, 3870, 1380, 390});
  dialog.cmdCancel.SetBounds({2100, 3870, 1380, 390});
}

}  // namespace

frmList::frmList() : ui::Form("frmList") {
  PlaceControls(*this);
  SetSize(3600, 4380);
  cmdLogOK.onClick = [this] {
    Shared().myName = NameOf(List1.Text());
    Unload();
  };
  List1.onDblClick = cmdLogOK.onClick;
  List1.onKeyPress = [this](int& key) {
    const bool accepts = key == ui::kKeyEnter;
    if (!accepts && key != ui::kKeyEscape) return;
    key = 0;
    (accepts ? cmdLogOK : cmdCancel).onClick();
  };
  cmdCancel.onClick = [this] {
    // These callers read the result even after a cancel.
    if (kind_ > 3) Shared().myName.clear();
    Unload();
  };
  onError = ReportError;
  onUnload = [this] { Around().presenter->Closed(*this); };
}

void frmList::Load() {
  SetCaption(LoadText(text_id::kHandler) + LoadText(text_id::kList));
  lblList.SetCaption(LoadText(text_id::kHandler) + LoadText(text_id::kList) + ":");
  cmdLogOK.SetCaption(LoadText(text_id::kConfirm) + "(&S)");
  cmdCancel.SetCaption(LoadText(text_id::kExit) + ">>");
  OpenData();
  data::Recordset rows = Data().Open("select * from employees order by employcode");
  std::vector<std::string> items;
  for (; !rows.Eof(); rows.MoveNext()) {
    items.push_back(rows.Text("employCode") + "\t" + rows.Text("employee"));
  }
  List1.SetItems(std::move(items));
  List1.SetAccessibleName(ui::ShownCaption(lblList.Caption()));
  SetLoaded(true);
  SetFocus(List1);
}

}  // namespace qvzj
