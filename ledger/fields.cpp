#include "ledger/fields.h"

#include "platform/basic/text.h"
#include "screen/keys.h"
#include "services/query.h"

namespace qvzj {
namespace {

bool InNumber(char c) { return (c >= '0' && c <= '9') || c == '.' || c == '-'; }

template <class Field>
void FitInserted(const Field& field, std::string& inserted) {
  const std::string selected = basic::Mid(field.Text(), field.SelStart() + 1, field.SelLength());
  FitInsertion(field.Text(), selected, inserted, field.MaxLength());
}

template <class Field>
void RefuseQuotesIn(Field& field) {
  field.onValidate = [&field](bool& cancel) { cancel = !NoQuote(field.Text()); };
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

void RefuseQuotes(ui::TextBox& box) { RefuseQuotesIn(box); }
void RefuseQuotes(ui::ComboBox& box) { RefuseQuotesIn(box); }

}  // namespace qvzj
