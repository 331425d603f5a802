#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "suite/import/columns.h"

namespace qvzj::imports {

/// A column's name and where its value comes from, as given on a command line.
using ColumnOption = std::pair<std::string, std::string>;

/// What the fields of a record become: for every column of the import a template of fixed text and
/// of fields of the file.
class Mapping {
 public:
  /// `header` is the first record of the file. A header that is called like a column fills it;
  /// `map` (column, header) names another header; `set` (column, text with {header} in it) makes
  /// the value up; `presets` (column, such a text) is taken where the value is empty. Throws Error
  /// for an unknown column or header, a column named twice, and a required column without a source.
  Mapping(Kind kind, const std::vector<std::string>& header, const std::vector<ColumnOption>& map,
          const std::vector<ColumnOption>& set, const std::vector<ColumnOption>& presets);

  size_t FieldCount() const { return header_.size(); }
  /// True when anything fills the column.
  bool Fills(size_t column) const { return !values_[column].empty() || !presets_[column].empty(); }
  /// The column's text for one record's `fields`, without blanks around it.
  std::string Value(size_t column, const std::vector<std::string>& fields) const;

 private:
  /// Fixed text (field -1) or a field of the file.
  struct Part {
    int field = -1;
    std::string text;
  };
  using Template = std::vector<Part>;

  void SetTemplate(std::vector<Template>& templates, const std::string& column, Template value);
  Template Parse(const std::string& text) const;
  int HeaderIndex(const std::string& name) const;
  static std::string Fill(const Template& value, const std::vector<std::string>& fields);

  std::span<const Column> columns_;
  std::vector<std::string> header_;
  std::vector<Template> values_;
  std::vector<Template> presets_;
};

}  // namespace qvzj::imports
