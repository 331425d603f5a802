#include <string_view>

#include "platform/basic/text.h"
#include "platform/surroundings.h"
#include "platform/ui/key.h"
#include "services/messages.h"
#include "services/query.h"
#include "services/strings.h"
#include "services/text_ids.h"

// Length limits of text fields, counted in bytes of the Chinese code page as the tables count.
namespace qvzj {
namespace {

// The longest leading part of `text` that fits into `room` bytes of the code page.
std::string LeadingBytes(const std::string& text, int32_t room) {
  std::string fitting;
  for (char32_t character : basic::CodePoints(text)) {
    room -= Around().ansi->BytesOf(character);
    if (room < 0) break;
    fitting += basic::FromCodePoint(character);
  }
  return fitting;
}

// Could `text` be on its way to a number: a leading minus, digits, one point?
bool LooksNumeric(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  bool point = false;
  for (char c : text) {
    if (c == '.' && !point) {
      point = true;
    } else if (c < '0' || c > '9') {
      return false;
    }
  }
  return true;
}

}  // namespace

std::string FitLength(const std::string& text, int16_t max, const std::string& label) {
  if (ByteLen(text) <= max) return text;
  if (!label.empty()) {
    Message("[" + label + "] over max length (" + std::to_string(max) + ") !", box::kInformation);
  }
  return LeadingBytes(text, max);
}

int32_t ByteLen(const std::string& text) {
  return static_cast<int32_t>(Around().ansi->Encode(text).size());
}

void LimitKeys(const ui::EditBox& box, int& key, int16_t max, bool numeric) {
  const bool pasting = key == ui::kKeyCtrlV;
  if (max == 0 || (key < ' ' && !pasting)) return;
  const std::string inserted =
      pasting ? Around().clipboard->Text() : basic::FromCodePoint(static_cast<char32_t>(key));
  const std::string kept = basic::Left(box.Text(), box.SelStart()) + inserted +
                           basic::Mid(box.Text(), box.SelStart() + box.SelLength() + 1);
  if (numeric && !LooksNumeric(kept)) {
    if (pasting) Message(LoadText(text_id::kDigitsOnly), box::kInformation);
    key = 0;
  } else if (ByteLen(kept) > max) {
    Message(LoadText(text_id::kTooLong), box::kInformation);
    key = 0;
  }
}

void FitInsertion(const std::string& text, const std::string& selected, std::string& inserted,
                  int16_t max) {
  if (max == 0) return;
  const int32_t room = max - (ByteLen(text) - ByteLen(selected));
  if (ByteLen(inserted) <= room) return;
  inserted = LeadingBytes(inserted, room);
  Message(LoadText(text_id::kTooLong), box::kInformation);
}

}  // namespace qvzj
