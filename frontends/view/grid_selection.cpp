#include "frontends/view/grid_selection.h"

#include <algorithm>
#include <string_view>

#include "platform/basic/number.h"

namespace qvzj::view {
namespace {

/// Bytes of the white space that begins at `at`, 0 when there is none.
size_t SpaceAt(std::string_view text, size_t at) {
  constexpr std::string_view kSpaces[] = {" ",      "\t",     "\n",     "\r",     "\v",
                                          "\f",     "\u00a0", "\u2028", "\u2029", "\u202f",
                                          "\u205f", "\u3000", "\u0085", "\u1680"};
  for (const std::string_view space : kSpaces) {
    if (text.substr(at).starts_with(space)) return space.size();
  }
  const bool wide = text.substr(at).starts_with("\xe2\x80") && at + 2 < text.size();  // U+2000 …
  return wide && static_cast<unsigned char>(text[at + 2]) <= 0x8a ? 3 : 0;
}

/// The text in one piece: a tab or a line end inside a cell would be taken for the next cell.
std::string Simplified(std::string_view text) {
  std::string simple;
  for (size_t i = 0; i < text.size();) {
    if (const size_t space = SpaceAt(text, i); space > 0) {
      if (!simple.empty() && simple.back() != ' ') simple += ' ';
      i += space;
    } else {
      simple += text[i++];
    }
  }
  if (simple.ends_with(' ')) simple.pop_back();
  return simple;
}

}  // namespace

RowRange SelectionAnchor::To(int32_t row) const {
  const int32_t from = row_ > 0 ? row_ : row;
  return {std::min(from, row), std::max(from, row)};
}

int32_t ExtensionTarget(const ui::Grid& grid, ui::Key::Name key) {
  int32_t to = grid.ActiveRow();
  switch (key) {
    case ui::Key::Name::Up:
      --to;
      break;
    case ui::Key::Name::Down:
      ++to;
      break;
    case ui::Key::Name::PageUp:
      to -= grid.PageRows();
      break;
    case ui::Key::Name::PageDown:
      to += grid.PageRows();
      break;
    case ui::Key::Name::Home:
      to = 1;
      break;
    case ui::Key::Name::End:
      to = grid.RowCount();
      break;
    default:
      break;
  }
  return std::clamp(to, std::min(1, grid.RowCount()), grid.RowCount());
}

std::vector<int32_t> RowsOf(const std::vector<RowRange>& ranges) {
  std::vector<int32_t> rows;
  for (const RowRange& range : ranges) {
    for (int32_t row = range.first; row <= range.last; ++row) rows.push_back(row);
  }
  std::sort(rows.begin(), rows.end());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  return rows;
}

std::string CopiedText(const ui::Grid& grid, const std::vector<int32_t>& columns,
                       const std::vector<int32_t>& rows) {
  std::string text;
  const auto add_line = [&](const auto& cell) {
    for (size_t i = 0; i < columns.size(); ++i) {
      if (i > 0) text += '\t';
      text += Simplified(cell(columns[i]));
    }
    text += '\n';
  };
  add_line([&](int32_t column) { return grid.PlainHeader(column); });
  for (int32_t row : rows) {
    add_line([&](int32_t column) { return grid.CellText(column, row); });
  }
  return text;
}

std::string SelectionSummary(const ui::Grid& grid, const std::vector<int32_t>& columns,
                             const std::vector<int32_t>& rows, const Texts& texts) {
  if (rows.size() < 2) return {};
  std::string summary = Fill(texts.selected, {std::to_string(rows.size())});
  for (int32_t column : columns) {
    if (!grid.ColumnSummed(column)) continue;
    basic::Sum sum;
    for (int32_t row : rows) sum.Add(grid.CellNumber(column, row));
    const int decimals = std::max(grid.ColumnDecimals(column), 0);
    summary += "    " + Fill(texts.sum,
                             {grid.PlainHeader(column), basic::FormatFixed(sum.Value(), decimals)});
  }
  return summary;
}

}  // namespace qvzj::view
