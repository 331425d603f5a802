#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/basic/buffer.h"
#include "platform/basic/date.h"

namespace qvzj::basic {

/// One column of a record set or of a grid: many values of one kind, packed. Numbers are kept as
/// numbers; texts lie in one arena, and a text equal to the one before it is stored once.
///
/// The first value that is not null fixes the kind. A value of another kind widens the column:
/// integers and reals become reals, every other mixture becomes text (the same text that Text()
/// showed before). A column of nothing but nulls has the kind Empty.
class Column {
 public:
  enum class Kind : uint8_t {
    Empty,    ///< nothing but nulls
    Integer,  ///< 32 bits
    Real,     ///< doubles
    Date,     ///< days, as serials of 32 bits
    Text      ///< UTF-8
  };

  /// What the values are kept as.
  Kind GetKind() const { return kind_; }
  /// Number of values, nulls included.
  size_t Size() const { return size_; }
  /// Makes room for that many values of the present kind; nothing while the kind is Empty.
  void Reserve(size_t rows);
  /// Sets the number of values; new ones are null.
  void Resize(size_t rows);
  /// Gives back spare capacity.
  void Fit();
  /// Bytes held, spare capacity included.
  size_t MemoryBytes() const;

  /// Adds a null, which a column of any kind can hold.
  void AppendNull();
  /// An integer; one outside 32 bits is kept as a real, one a real cannot hold exactly as text.
  void AppendInteger(int64_t value);
  /// A real; what is not a number is kept as null.
  void AppendReal(double value);
  /// A day.
  void AppendDate(Date value);
  /// Throws OverflowError when the arena passes 4 GiB.
  void AppendText(std::string_view value);

  /// Replaces the value at `row` (0-based). A replaced text leaves its bytes in the arena.
  void SetNull(size_t row);
  void SetReal(size_t row, double value);
  void SetText(size_t row, std::string_view value);

  /// Makes a Real column of whatever it holds, each value as Number() tells it; nulls stay null.
  void MakeReal();

  /// True when the value at `row` (0-based) is null; "" and 0 are values.
  bool IsNull(size_t row) const;
  /// The value joined to the empty text: "" for null, dates as yyyy-mm-dd.
  std::string Text(size_t row) const;
  /// The text without a copy; only for the kind Text ("" for null). Valid until a change.
  std::string_view TextView(size_t row) const;
  /// The value as a number: null is 0, a text by its leading number, a date its serial.
  double Number(size_t row) const;
  /// The value as a whole number; throws OverflowError outside 32 bits.
  int32_t Integer(size_t row) const;
  /// True when both rows hold the same value (texts to the byte).
  bool SameValue(size_t row, size_t other) const;

  /// Raw values of a Real column (nulls are NaN), for loops over millions of rows.
  const double* Reals() const { return reals_.Data(); }
  double* Reals() { return reals_.Data(); }
  /// Raw values of an Integer column (nulls are kNullInteger).
  const int32_t* Integers() const { return integers_.Data(); }
  /// What stands for null among the values of an Integer column.
  static constexpr int32_t kNullInteger = INT32_MIN;

 private:
  void WidenTo(Kind kind);
  uint32_t StoreText(std::string_view value);

  static constexpr uint32_t kNullText = UINT32_MAX;
  Kind kind_ = Kind::Empty;
  size_t size_ = 0;
  Buffer<int32_t> integers_;  // Integer values, or Date serials
  Buffer<double> reals_;
  Buffer<uint32_t> offsets_;  // Text: place of a length-prefixed text in arena_
  Buffer<char> arena_;
};

}  // namespace qvzj::basic
