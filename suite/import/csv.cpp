#include "suite/import/csv.h"

namespace qvzj::imports {

bool CsvReader::AtLineEnd() const {
  if (at_ >= text_.size() || text_[at_] == '\n') return true;
  return text_[at_] == '\r' && (at_ + 1 == text_.size() || text_[at_ + 1] == '\n');
}

void CsvReader::TakeLineEnd() {
  if (at_ < text_.size() && text_[at_] == '\r') ++at_;
  if (at_ < text_.size() && text_[at_] == '\n') {
    ++at_;
    ++line_;
  }
}

void CsvReader::SkipEmptyLines() {
  while (at_ < text_.size() && AtLineEnd()) TakeLineEnd();
}

void CsvReader::SkipLine() {
  const size_t end = text_.find('\n', at_);
  at_ = end == std::string_view::npos ? text_.size() : end;
  TakeLineEnd();
}

void CsvReader::ReadPlain(std::string& field, std::string& fault) {
  const size_t start = at_;
  while (!AtLineEnd() && text_[at_] != separator_) {
    if (text_[at_] == '"') fault = "a double quote inside a field that does not begin with one";
    ++at_;
  }
  field.assign(text_.substr(start, at_ - start));
}

void CsvReader::ReadQuoted(std::string& field, std::string& fault) {
  const size_t opened_at = at_;
  const int64_t opened_on = line_;
  field.clear();
  ++at_;
  for (;;) {
    const size_t quote = text_.find('"', at_);
    if (quote == std::string_view::npos) {
      // Nothing after it can be told apart any more but by taking the quote for a stray one.
      fault = "a double quote is opened and never closed";
      at_ = opened_at;
      line_ = opened_on;
      return;
    }
    for (size_t i = at_; i < quote; ++i) line_ += text_[i] == '\n';
    field.append(text_.substr(at_, quote - at_));
    at_ = quote + 1;
    if (at_ >= text_.size() || text_[at_] != '"') break;
    field += '"';
    ++at_;
  }
  if (!AtLineEnd() && text_[at_] != separator_) fault = "text after a closing double quote";
}

bool CsvReader::Next(CsvRecord& record) {
  SkipEmptyLines();
  if (at_ >= text_.size()) return false;
  record.line = line_;
  record.fault.clear();
  size_t count = 0;
  for (;;) {
    if (record.fields.size() <= count) record.fields.emplace_back();
    std::string& field = record.fields[count++];
    if (at_ < text_.size() && text_[at_] == '"') {
      ReadQuoted(field, record.fault);
    } else {
      ReadPlain(field, record.fault);
    }
    if (!record.fault.empty()) {
      SkipLine();
      break;
    }
    if (AtLineEnd()) {
      TakeLineEnd();
      break;
    }
    ++at_;  // the separator
  }
  record.fields.resize(count);
  return true;
}

}  // namespace qvzj::imports
