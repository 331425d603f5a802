#include "suite/import/mapping.h"

#include "platform/basic/errors.h"
#include "platform/basic/text.h"

namespace qvzj::imports {
namespace {

std::string_view TrimSpace(std::string_view text) {
  constexpr std::string_view kSpace = " \t\r\n";
  const size_t first = text.find_first_not_of(kSpace);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kSpace) - first + 1);
}

}  // namespace

Mapping::Mapping(Kind kind, const std::vector<std::string>& header,
                 const std::vector<ColumnOption>& map, const std::vector<ColumnOption>& set,
                 const std::vector<ColumnOption>& presets)
    : columns_(ColumnsOf(kind)), values_(columns_.size()), presets_(columns_.size()) {
  for (const std::string& name : header) header_.emplace_back(TrimSpace(name));
  for (const auto& [column, name] : map) {
    SetTemplate(values_, column, {Part{HeaderIndex(name), {}}});
  }
  for (const auto& [column, text] : set) SetTemplate(values_, column, Parse(text));
  for (const auto& [column, text] : presets) SetTemplate(presets_, column, Parse(text));
  for (size_t i = 0; i < header_.size(); ++i) {
    const int column = FindColumn(columns_, header_[i]);
    if (column < 0 || !values_[static_cast<size_t>(column)].empty()) continue;
    values_[static_cast<size_t>(column)] = {Part{static_cast<int>(i), {}}};
  }
  if (kind == Kind::Entries && !Fills(0) && !Fills(1) && !Fills(2)) {
    throw Error(
        "Nothing says whose entries these are: one of fCompID, CompCode and compname must "
        "be filled; map one with --map CompCode=HEADER");
  }
  for (size_t i = 0; i < columns_.size(); ++i) {
    if (columns_[i].required && !Fills(i)) {
      throw Error("Nothing fills the column " + std::string(columns_[i].name) +
                  ": the file has no header of that name; map one with --map " +
                  std::string(columns_[i].name) + "=HEADER");
    }
  }
}

void Mapping::SetTemplate(std::vector<Template>& templates, const std::string& column,
                          Template value) {
  const int index = FindColumn(columns_, column);
  if (index < 0) {
    std::string known;
    for (const Column& c : columns_) known += " " + std::string(c.name);
    throw Error("There is no column " + column + "; the columns are" + known);
  }
  Template& target = templates[static_cast<size_t>(index)];
  if (!target.empty()) throw Error("The column " + column + " is given twice");
  target = std::move(value);
}

int Mapping::HeaderIndex(const std::string& name) const {
  int found = -1;
  for (size_t i = 0; i < header_.size(); ++i) {
    if (header_[i] != name) continue;
    if (found >= 0) throw Error("The file has the header " + name + " twice");
    found = static_cast<int>(i);
  }
  if (found < 0) {
    std::string known;
    for (const std::string& header : header_) known += " " + header;
    throw Error("The file has no header " + name + "; its headers are" + known);
  }
  return found;
}

Mapping::Template Mapping::Parse(const std::string& text) const {
  Template parts;
  size_t at = 0;
  while (at < text.size()) {
    const size_t open = text.find('{', at);
    const size_t close = open == std::string::npos ? open : text.find('}', open);
    if (close == std::string::npos) break;
    if (open > at) parts.push_back({-1, text.substr(at, open - at)});
    parts.push_back({HeaderIndex(text.substr(open + 1, close - open - 1)), {}});
    at = close + 1;
  }
  if (at < text.size() || parts.empty()) parts.push_back({-1, text.substr(at)});
  return parts;
}

std::string Mapping::Fill(const Template& value, const std::vector<std::string>& fields) {
  if (value.size() == 1 && value[0].field >= 0) {
    return std::string(TrimSpace(fields[static_cast<size_t>(value[0].field)]));
  }
  std::string text;
  for (const Part& part : value) {
    text += part.field < 0 ? std::string_view(part.text)
                           : TrimSpace(fields[static_cast<size_t>(part.field)]);
  }
  return std::string(TrimSpace(text));
}

std::string Mapping::Value(size_t column, const std::vector<std::string>& fields) const {
  std::string value = Fill(values_[column], fields);
  if (value.empty() && !presets_[column].empty()) value = Fill(presets_[column], fields);
  return value;
}

}  // namespace qvzj::imports
