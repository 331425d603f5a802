#include "platform/basic/column.h"

#include <bit>
#include <cmath>
#include <limits>

#include "platform/basic/errors.h"
#include "platform/basic/number.h"

namespace qvzj::basic {
namespace {

constexpr double kNullReal = std::numeric_limits<double>::quiet_NaN();
constexpr int64_t kExactReal = int64_t{1} << 53;

}  // namespace

void Column::Reserve(size_t rows) {
  switch (kind_) {
    case Kind::Integer:
    case Kind::Date:
      integers_.Reserve(rows);
      break;
    case Kind::Real:
      reals_.Reserve(rows);
      break;
    case Kind::Text:
      offsets_.Reserve(rows);
      break;
    case Kind::Empty:
      break;
  }
}

void Column::Resize(size_t rows) {
  switch (kind_) {
    case Kind::Integer:
    case Kind::Date:
      integers_.Resize(rows, kNullInteger);
      break;
    case Kind::Real:
      reals_.Resize(rows, kNullReal);
      break;
    case Kind::Text:
      offsets_.Resize(rows, kNullText);
      break;
    case Kind::Empty:
      break;
  }
  size_ = rows;
}

void Column::Fit() {
  integers_.Fit();
  reals_.Fit();
  offsets_.Fit();
  arena_.Fit();
}

size_t Column::MemoryBytes() const {
  return integers_.MemoryBytes() + reals_.MemoryBytes() + offsets_.MemoryBytes() +
         arena_.MemoryBytes();
}

void Column::AppendNull() { Resize(size_ + 1); }

void Column::AppendInteger(int64_t value) {
  const bool small = value > kNullInteger && value <= INT32_MAX;
  if (kind_ == Kind::Integer && small) {
    integers_.Append(static_cast<int32_t>(value));
    ++size_;
    return;
  }
  if (kind_ == Kind::Empty && small) {
    WidenTo(Kind::Integer);
    return AppendInteger(value);
  }
  const bool exact = value >= -kExactReal && value <= kExactReal;
  if (exact && (kind_ == Kind::Empty || kind_ == Kind::Integer || kind_ == Kind::Real)) {
    return AppendReal(static_cast<double>(value));
  }
  AppendText(std::to_string(value));
}

void Column::AppendReal(double value) {
  if (std::isnan(value)) return AppendNull();
  if (kind_ == Kind::Empty || kind_ == Kind::Integer) WidenTo(Kind::Real);
  if (kind_ != Kind::Real) return AppendText(NumberText(value));
  reals_.Append(value);
  ++size_;
}

void Column::AppendDate(Date value) {
  if (kind_ == Kind::Empty) WidenTo(Kind::Date);
  if (kind_ != Kind::Date) return AppendText(FormatIso(value));
  integers_.Append(value.serial);
  ++size_;
}

void Column::AppendText(std::string_view value) {
  if (kind_ != Kind::Text) WidenTo(Kind::Text);
  const uint32_t last = size_ > 0 ? offsets_[size_ - 1] : kNullText;
  const bool repeats = last != kNullText && TextView(size_ - 1) == value;
  offsets_.Append(repeats ? last : StoreText(value));
  ++size_;
}

void Column::SetNull(size_t row) {
  switch (kind_) {
    case Kind::Integer:
    case Kind::Date:
      integers_[row] = kNullInteger;
      break;
    case Kind::Real:
      reals_[row] = kNullReal;
      break;
    case Kind::Text:
      offsets_[row] = kNullText;
      break;
    case Kind::Empty:
      break;
  }
}

void Column::SetReal(size_t row, double value) {
  if (std::isnan(value)) return SetNull(row);
  if (kind_ == Kind::Empty || kind_ == Kind::Integer) WidenTo(Kind::Real);
  if (kind_ != Kind::Real) return SetText(row, NumberText(value));
  reals_[row] = value;
}

void Column::SetText(size_t row, std::string_view value) {
  if (kind_ != Kind::Text) WidenTo(Kind::Text);
  offsets_[row] = StoreText(value);
}

void Column::MakeReal() {
  if (kind_ != Kind::Real) WidenTo(Kind::Real);
}

bool Column::IsNull(size_t row) const {
  switch (kind_) {
    case Kind::Integer:
    case Kind::Date:
      return integers_[row] == kNullInteger;
    case Kind::Real:
      return std::isnan(reals_[row]);
    case Kind::Text:
      return offsets_[row] == kNullText;
    case Kind::Empty:
      break;
  }
  return true;
}

std::string Column::Text(size_t row) const {
  if (IsNull(row)) return {};
  switch (kind_) {
    case Kind::Integer:
      return std::to_string(integers_[row]);
    case Kind::Date:
      return FormatIso(Date{integers_[row]});
    case Kind::Real:
      return NumberText(reals_[row]);
    default:
      return std::string(TextView(row));
  }
}

std::string_view Column::TextView(size_t row) const {
  const uint32_t offset = offsets_[row];
  if (offset == kNullText) return {};
  const char* at = arena_.Data() + offset;
  uint32_t length = 0;
  for (int shift = 0;; shift += 7) {
    const auto byte = static_cast<unsigned char>(*at++);
    length |= static_cast<uint32_t>(byte & 0x7F) << shift;
    if (byte < 0x80) break;
  }
  return {at, length};
}

double Column::Number(size_t row) const {
  if (IsNull(row)) return 0;
  switch (kind_) {
    case Kind::Integer:
    case Kind::Date:
      return integers_[row];
    case Kind::Real:
      return reals_[row];
    default:
      return Val(TextView(row));
  }
}

int32_t Column::Integer(size_t row) const {
  if (kind_ == Kind::Integer && !IsNull(row)) return integers_[row];
  return ToInt32(Number(row));
}

bool Column::SameValue(size_t row, size_t other) const {
  switch (kind_) {
    case Kind::Integer:
    case Kind::Date:
      return integers_[row] == integers_[other];
    case Kind::Real:
      return std::bit_cast<uint64_t>(reals_[row]) == std::bit_cast<uint64_t>(reals_[other]);
    case Kind::Text:
      return offsets_[row] == offsets_[other] ||
             (!IsNull(row) && !IsNull(other) && TextView(row) == TextView(other));
    case Kind::Empty:
      break;
  }
  return true;
}

void Column::WidenTo(Kind kind) {
  Column wide;
  wide.kind_ = kind;
  if (kind_ == Kind::Empty) {
    wide.Resize(size_);
  } else {
    wide.Reserve(size_);
    for (size_t row = 0; row < size_; ++row) {
      if (IsNull(row)) {
        wide.AppendNull();
      } else if (kind == Kind::Real) {
        wide.AppendReal(Number(row));
      } else {
        wide.AppendText(Text(row));
      }
    }
  }
  *this = std::move(wide);
}

uint32_t Column::StoreText(std::string_view value) {
  const size_t offset = arena_.Size();
  if (offset + value.size() + 5 >= kNullText) throw OverflowError("texts of one column");
  size_t length = value.size();
  while (length >= 0x80) {
    arena_.Append(static_cast<char>(0x80 | (length & 0x7F)));
    length >>= 7;
  }
  arena_.Append(static_cast<char>(length));
  arena_.Append(value.data(), value.size());
  return static_cast<uint32_t>(offset);
}

}  // namespace qvzj::basic
