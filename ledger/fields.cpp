#include "ledger/fields.h"

#include <string>

#include "platform/basic/text.h"
#include "screen/keys.h"
#include "services/query.h"

namespace qvzj {
namespace {

bool InNumber(char c) { return (c >= '0' && c <= '9') || c == '.' || c == '-'; }

void FitInserted(const ui::EditBox& box, std::string& inserted) {
  FitInsertion(box.Text(), box.SelText(), inserted, box.MaxLength());
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Exactly three digits behind `comma`?
bool GroupFollows(const std::string& text, size_t comma) {
  const size_t end = comma + 4;
  for (size_t i = comma + 1; i < end; ++i) {
    if (i >= text.size() || !IsDigit(text[i])) return false;
  }
  return end == text.size() || !IsDigit(text[end]);
}

std::string HalfWidth(const std::string& text) {
  constexpr char32_t kFirst = U'！';
  constexpr char32_t kLast = U'～';
  constexpr char32_t kDistance = kFirst - U'!';
  std::string plain;
  for (const char32_t code : basic::CodePoints(text)) {
    plain += basic::FromCodePoint(code >= kFirst && code <= kLast ? code - kDistance : code);
  }
  return plain;
}

}  // namespace

std::string PlainNumber(const std::string& text) {
  const std::string grouped = HalfWidth(text);
  std::string plain;
  for (size_t i = 0; i < grouped.size(); ++i) {
    const bool behind_digit = i > 0 && IsDigit(grouped[i - 1]);
    if (grouped[i] == ',' && behind_digit && GroupFollows(grouped, i)) continue;
    plain += grouped[i];
  }
  return plain;
}

void ConnectKeys(ui::TextBox& box, bool numeric) {
  box.onKeyPress = [&box, numeric](int& key) {
    if (!EnterToTab(box.GetForm(), key)) LimitKeys(box, key, box.MaxLength(), numeric);
  };
  // No key press announces what an input method commits.
  box.onEdit = [&box, numeric](std::string& inserted) {
    if (numeric) {
      inserted = HalfWidth(inserted);
      std::erase_if(inserted, [](char c) { return !InNumber(c); });
    }
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
