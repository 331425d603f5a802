#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace qvzj {

struct frmZj;

/// One ledger entry as the texts of a statement: what stands between the commas of an insert.

/// Columns of an entry in the order in which they are written.
enum class EntryColumn : size_t {
  Date,
  CompID,
  Type1,
  Type2,
  AcntNo,
  Init,
  MoneyA,
  MoneyB,
  Brief,
  InvID,
  OrderID,
  User,
  Doneman,
  Checker,
  ID2,
  MoneyCode,
  MoneyRate
};
inline constexpr size_t kEntryColumns = 17;

struct EntryTexts {
  std::array<std::string, kEntryColumns> texts;

  std::string& operator[](EntryColumn column) { return texts[static_cast<size_t>(column)]; }
  const std::string& operator[](EntryColumn column) const {
    return texts[static_cast<size_t>(column)];
  }
};

/// A text between single quotes, as it stands.
std::string Quoted(const std::string& text);
/// What the editor's fields hold.
EntryTexts EntryInEditor(const frmZj& form);
/// What the editor's fields hold, but each field that still shows what it showed when the entry
/// was loaded as the entry's row holds it.
EntryTexts EntryToWrite(const frmZj& form);
/// Remembers the entry of a ledger grid row, just copied into the editor, and its currency (empty:
/// no value) for EntryToWrite and EntryUnchanged.
void RememberEntry(frmZj& form, int32_t row, const std::optional<std::string>& currency);
/// Forgets the remembered entry: what follows is a new one.
void ForgetEntry(frmZj& form);
/// The amount as it is, with the grid's sign (mode, direction, tab in front) undone. `column` is
/// one of the ledger grid's two amount columns.
double UnsignedAmount(const frmZj& form, int32_t column, int32_t row);

/// The statement that adds an entry; a new entry is never checked.
std::string InsertStatement(const EntryTexts& entry);
/// The statement that writes every column of the entry of that id. The names of the four free
/// texts' columns come from their labels.
std::string UpdateStatement(const frmZj& form, const EntryTexts& entry, const std::string& id);

}  // namespace qvzj
