#include "platform/basic/sort_rows.h"

#include <algorithm>
#include <array>
#include <bit>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Every kind of value is first turned into an unsigned key of the same order, 0 for empty; the
/// rows are then distributed by the digits of their keys, which takes the same few passes however
/// the values lie and keeps equal ones in order. Texts get as key the rank of their text among the
/// distinct texts of the column.
namespace qvzj::basic {
namespace {

template <class Key>
struct Item {
  Key key;
  uint32_t row;
};

constexpr int kDigitBits = 11;
constexpr size_t kDigits = size_t{1} << kDigitBits;
constexpr size_t kFewRows = 4096;  // below this, comparing beats counting digits

template <class Key>
size_t Digit(Key key, int pass) {
  return static_cast<size_t>(key >> (pass * kDigitBits)) & (kDigits - 1);
}

/// Orders `items` by their keys and keeps the order of equal ones. `spare` is room that calls
/// share.
template <class Key>
void SortItems(std::span<Item<Key>> items, std::vector<Item<Key>>& spare) {
  if (items.size() < kFewRows) {
    std::stable_sort(items.begin(), items.end(),
                     [](const Item<Key>& a, const Item<Key>& b) { return a.key < b.key; });
    return;
  }
  constexpr int kPasses = (static_cast<int>(sizeof(Key)) * 8 + kDigitBits - 1) / kDigitBits;
  std::vector<std::array<uint32_t, kDigits>> counts(kPasses);
  for (const Item<Key>& item : items) {
    for (int pass = 0; pass < kPasses; ++pass) {
      ++counts[static_cast<size_t>(pass)][Digit(item.key, pass)];
    }
  }
  if (spare.size() < items.size()) spare.resize(items.size());
  std::span<Item<Key>> from = items;
  std::span<Item<Key>> to = std::span(spare).first(items.size());
  for (int pass = 0; pass < kPasses; ++pass) {
    std::array<uint32_t, kDigits>& place = counts[static_cast<size_t>(pass)];
    if (place[Digit(from[0].key, pass)] == items.size()) continue;  // one digit everywhere
    uint32_t start = 0;
    for (uint32_t& count : place) start += std::exchange(count, start);
    for (const Item<Key>& item : from) to[place[Digit(item.key, pass)]++] = item;
    std::swap(from, to);
  }
  if (from.data() != items.data()) std::copy(from.begin(), from.end(), items.begin());
}

/// `key_of` answers the ascending key of a row, 0 for an empty one, which comes out as the greatest
/// key in either order.
template <class Key, class KeyOf>
void SortByKey(Buffer<uint32_t>& rows, bool descending, KeyOf key_of) {
  std::vector<Item<Key>> items(rows.Size());
  for (size_t i = 0; i < rows.Size(); ++i) {
    const Key key = key_of(rows[i]);
    items[i] = {descending ? static_cast<Key>(~key) : static_cast<Key>(key - 1), rows[i]};
  }
  std::vector<Item<Key>> spare;
  SortItems(std::span(items), spare);
  for (size_t i = 0; i < rows.Size(); ++i) rows[i] = items[i].row;
}

/// Integers and dates; the null value is the least one and becomes 0.
uint32_t IntegerKey(int32_t value) { return static_cast<uint32_t>(value) ^ 0x80000000u; }

uint64_t RealKey(double value) {
  if (value != value) return 0;                            // null
  const auto bits = std::bit_cast<uint64_t>(value + 0.0);  // -0 orders as 0
  return bits >> 63 ? ~bits : bits | (uint64_t{1} << 63);
}

/// The distinct texts of a column by number from 1 on, and the number of each row's text; 0 is the
/// empty text and null. Found by hashing, so that a text that occurs often is looked at once.
struct DistinctTexts {
  std::vector<std::string_view> texts{std::string_view()};
  std::vector<uint32_t> number_of_row;

  explicit DistinctTexts(const Column& column) : number_of_row(column.Size()) {
    slots_.resize(1024);
    for (size_t row = 0; row < column.Size(); ++row) {
      const std::string_view text = column.TextView(row);
      const bool repeated = row > 0 && text.data() == previous_.data();
      number_of_row[row] = repeated ? number_of_row[row - 1] : Number(text);
      previous_ = text;
    }
    slots_ = {};
  }

 private:
  struct Slot {
    uint32_t hash = 0;
    uint32_t number = 0;
  };

  uint32_t Number(std::string_view text) {
    if (text.empty()) return 0;
    if (texts.size() * 2 > slots_.size()) Grow();
    const auto hash = static_cast<uint32_t>(std::hash<std::string_view>{}(text));
    for (size_t at = hash & (slots_.size() - 1);; at = (at + 1) & (slots_.size() - 1)) {
      Slot& slot = slots_[at];
      if (slot.number == 0) {
        slot = {hash, static_cast<uint32_t>(texts.size())};
        texts.push_back(text);
        return slot.number;
      }
      if (slot.hash == hash && texts[slot.number] == text) return slot.number;
    }
  }

  void Grow() {
    std::vector<Slot> old(slots_.size() * 4);
    old.swap(slots_);
    for (const Slot& slot : old) {
      if (slot.number == 0) continue;
      size_t at = slot.hash & (slots_.size() - 1);
      while (slots_[at].number != 0) at = (at + 1) & (slots_.size() - 1);
      slots_[at] = slot;
    }
  }

  std::vector<Slot> slots_;
  std::string_view previous_;
};

constexpr size_t kChunkBytes = 7;
constexpr size_t kFewTexts = 24;
constexpr uint64_t kMoreFollows = kChunkBytes + 1;

/// Seven bytes of a text from `depth` on as a number of their order; the low byte says how many
/// there were, so that a text comes before a longer one that begins with it.
uint64_t Chunk(std::string_view text, size_t depth) {
  uint64_t chunk = 0;
  const size_t rest = text.size() > depth ? text.size() - depth : 0;
  const size_t bytes = std::min(rest, kChunkBytes);
  for (size_t i = 0; i < kChunkBytes; ++i) {
    chunk = (chunk << 8) | (i < bytes ? static_cast<unsigned char>(text[depth + i]) : 0u);
  }
  return (chunk << 8) | (rest > kChunkBytes ? kMoreFollows : bytes);
}

/// Ranks texts by their bytes: chunk by chunk, and directly where few agree so far.
class TextRanker {
 public:
  explicit TextRanker(const std::vector<std::string_view>& keys)
      : keys_(keys), items_(keys.size() - 1), repeats_(items_.size()) {}

  /// Rank from 1 on of every key by number; equal keys share a rank, number 0 has rank 0.
  std::vector<uint32_t> Ranks() {
    for (size_t i = 0; i < items_.size(); ++i) items_[i].row = static_cast<uint32_t>(i + 1);
    runs_.push_back({0, items_.size(), 0});
    while (!runs_.empty()) {
      const Run run = runs_.back();
      runs_.pop_back();
      run.end - run.begin < kFewTexts ? Compare(run) : Distribute(run);
    }
    std::vector<uint32_t> ranks(keys_.size());
    uint32_t rank = 0;
    for (size_t i = 0; i < items_.size(); ++i) ranks[items_[i].row] = rank += repeats_[i] ? 0 : 1;
    return ranks;
  }

 private:
  /// Items that agree in their first `depth` bytes.
  struct Run {
    size_t begin;
    size_t end;
    size_t depth;
  };

  std::string_view Rest(size_t item, size_t depth) const {
    return keys_[items_[item].row].substr(depth);
  }

  void Compare(const Run& run) {
    const auto begin = items_.begin() + static_cast<std::ptrdiff_t>(run.begin);
    const auto end = items_.begin() + static_cast<std::ptrdiff_t>(run.end);
    std::sort(begin, end, [&](const auto& a, const auto& b) {
      return keys_[a.row].substr(run.depth) < keys_[b.row].substr(run.depth);
    });
    for (size_t i = run.begin + 1; i < run.end; ++i) {
      repeats_[i] = Rest(i, run.depth) == Rest(i - 1, run.depth);
    }
  }

  void Distribute(const Run& run) {
    for (size_t i = run.begin; i < run.end; ++i) {
      items_[i].key = Chunk(keys_[items_[i].row], run.depth);
    }
    SortItems(std::span(items_).subspan(run.begin, run.end - run.begin), spare_);
    for (size_t i = run.begin; i < run.end;) {
      size_t next = i + 1;
      while (next < run.end && items_[next].key == items_[i].key) ++next;
      if ((items_[i].key & 0xFF) != kMoreFollows) {
        std::fill(repeats_.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                  repeats_.begin() + static_cast<std::ptrdiff_t>(next), uint8_t{1});
      } else if (next - i > 1) {
        runs_.push_back({i, next, run.depth + kChunkBytes});
      }
      i = next;
    }
  }

  const std::vector<std::string_view>& keys_;
  std::vector<Item<uint64_t>> items_;
  std::vector<Item<uint64_t>> spare_;
  std::vector<uint8_t> repeats_;  ///< by item: the same text as the one before
  std::vector<Run> runs_;
};

/// Ranks of the texts by the sort keys that `order` makes of them.
std::vector<uint32_t> OrderedRanks(const std::vector<std::string_view>& texts,
                                   const TextOrder& order) {
  std::string arena;
  std::vector<size_t> ends(texts.size());
  for (size_t i = 1; i < texts.size(); ++i) {
    arena += order.SortKey(texts[i]);
    ends[i] = arena.size();
  }
  std::vector<std::string_view> keys(texts.size());
  for (size_t i = 1; i < texts.size(); ++i) {
    keys[i] = std::string_view(arena).substr(ends[i - 1], ends[i] - ends[i - 1]);
  }
  return TextRanker(keys).Ranks();
}

}  // namespace

void SortRows(const Column& column, bool descending, const TextOrder* order,
              Buffer<uint32_t>& rows) {
  switch (column.GetKind()) {
    case Column::Kind::Integer:
    case Column::Kind::Date:
      return SortByKey<uint32_t>(rows, descending, [values = column.Integers()](uint32_t row) {
        return IntegerKey(values[row]);
      });
    case Column::Kind::Real:
      return SortByKey<uint64_t>(rows, descending, [values = column.Reals()](uint32_t row) {
        return RealKey(values[row]);
      });
    case Column::Kind::Text: {
      const DistinctTexts distinct(column);
      const std::vector<uint32_t> ranks =
          order ? OrderedRanks(distinct.texts, *order) : TextRanker(distinct.texts).Ranks();
      return SortByKey<uint32_t>(rows, descending,
                                 [&](uint32_t row) { return ranks[distinct.number_of_row[row]]; });
    }
    case Column::Kind::Empty:
      return;
  }
}

}  // namespace qvzj::basic
