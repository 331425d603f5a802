#include "ledger/fields.h"

#include <string>

#include "screen/keys.h"
#include "services/query.h"

namespace qvzj {
namespace {

bool InNumber(char c) { return (c >= '0' && c <= '9') || c == '.' || c == '-'; }

void FitInserted(const ui::EditBox& box, std::string& inserted) {
  FitInsertion(box.Text(), box.SelText(), inserted, box.MaxLength());
}

}  // namespace

void ConnectKeys(ui::TextBox& box, bool numeric) {
  box.onKeyPress = [&box, numeric](int& key) {
    if (!EnterToTab(box.GetForm(), key)) LimitKeys(box, key, box.MaxLength(), numeric);
  };
  // No key press announces what an input method commits.
  box.onEdit = [&box, numeric](std::string& inserted) {
    if (numeric) std::erase_if(inserted, [](char c) { return !InNumber(c); });
    FitInserted(box, inserted);
  };
}

void ConnectKeys(ui::ComboBox& box) {
  EnterWalksOn(box);
  box.onEdit = [&box](std::string& inserted) { FitInserted(box, inserted); };
}

void RefuseQuotes(ui::EditBox& box) {
  box.onValidate = [&box](bool& cancel) { cancel = !MayLeaveText(box); };
}

bool MayLeaveText(const ui::EditBox& box) { return !box.Pending() || NoQuote(box.Text()); }

}  // namespace qvzj
