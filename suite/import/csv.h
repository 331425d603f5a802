#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qvzj::imports {

/// One record of a CSV text.
struct CsvRecord {
  int64_t line = 0;                 ///< line of the text on which the record begins, from 1
  std::vector<std::string> fields;  ///< without their quotes
  std::string fault;                ///< why the record cannot be read; "" when it can
};

/// Reads CSV as RFC 4180 has it, record by record: fields parted by one character, a field between
/// double quotes may hold separators, line ends and doubled quotes; lines end in CR LF or LF. Empty
/// lines are passed over. After a faulty record reading goes on with the next line.
class CsvReader {
 public:
  /// `text` (UTF-8) must outlive the reader.
  explicit CsvReader(std::string_view text, char separator = ',')
      : text_(text), separator_(separator) {}

  /// Reads the next record into `record`, whose storage is used again. False at the end.
  bool Next(CsvRecord& record);
  /// Bytes read so far.
  size_t Position() const { return at_; }

 private:
  void SkipEmptyLines();
  bool AtLineEnd() const;
  void TakeLineEnd();
  void SkipLine();
  void ReadPlain(std::string& field, std::string& fault);
  void ReadQuoted(std::string& field, std::string& fault);

  std::string_view text_;
  char separator_;
  size_t at_ = 0;
  int64_t line_ = 1;
};

}  // namespace qvzj::imports
