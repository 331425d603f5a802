#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/ui/widgets.h"

/// Query helpers and input checks that every screen uses, on the shared connection.
namespace qvzj {

/// Rows of `table` under `condition` ("" = all). -1 on any failure, a count above 32767 included.
int16_t CountRows(const std::string& table, const std::string& condition);
/// Largest value of `column`; 0 when there is none. `table` may carry a condition of its own.
int32_t MaxOf(const std::string& column, const std::string& table);
/// First field of the first row as text; "" when there is no row or it is null.
std::string FirstValue(const std::string& sql);
/// A user's search text as a LIKE pattern: "*" and "#" at either end become "%" and "_", a text
/// without wildcards matches anywhere.
std::string LikePattern(const std::string& text);
/// False, after a warning, when the text holds a single quote.
bool NoQuote(const std::string& text);
/// The text cut to `max` bytes of the Chinese code page; says so under `label` when it cuts and
/// the label is not empty.
std::string FitLength(const std::string& text, int16_t max, const std::string& label);
/// Bytes of the text in the Chinese code page.
int32_t ByteLen(const std::string& text);
/// Keeps a text field within `max` bytes on a key press: sets `key` to 0 after a message when the
/// character typed, or the clipboard's text for Ctrl+V, does not fit any more. `numeric` also
/// drops every key that cannot belong to a number (digits, one point, a leading minus). With `max`
/// 0, and for control keys other than Ctrl+V, it does nothing.
void LimitKeys(const ui::EditBox& box, int& key, int16_t max, bool numeric = false);
/// Cuts `inserted` so that a field of `max` bytes (0 = no limit) whose text is `text` with
/// `selected` being replaced holds it; says so when it had to cut. For what no key press announces
/// (input methods).
void FitInsertion(const std::string& text, const std::string& selected, std::string& inserted,
                  int16_t max);

}  // namespace qvzj
