#include "platform/ui/sort_rows.h"

#include <algorithm>
#include <array>
#include <bit>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ui/grid.h"

/// Every kind of value is first turned into an unsigned key of the same order, 0 for empty; the
/// rows are then distributed by the digits of their keys, which takes the same few passes however
/// the values lie and keeps equal ones in order. Texts get as key the rank of their text among the
/// distinct texts of the column.
namespace qvzj::ui {
namespace {

using basic::Buffer;
using basic::Column;

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

template <class Key>
void SortItems(std::vector<Item<Key>>& items) {
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
  std::vector<Item<Key>> sorted(items.size());
  for (int pass = 0; pass < kPasses; ++pass) {
    std::array<uint32_t, kDigits>& place = counts[static_cast<size_t>(pass)];
    if (place[Digit(items[0].key, pass)] == items.size()) continue;  // one digit everywhere
    uint32_t start = 0;
    for (uint32_t& count : place) start += std::exchange(count, start);
    for (const Item<Key>& item : items) sorted[place[Digit(item.key, pass)]++] = item;
    items.swap(sorted);
  }
}

/// `key_of` answers the ascending key of a row, 0 for an empty one.
template <class Key, class KeyOf>
void SortByKey(Buffer<uint32_t>& rows, bool descending, KeyOf key_of) {
  std::vector<Item<Key>> items(rows.Size());
  for (size_t i = 0; i < rows.Size(); ++i) {
    const Key key = key_of(rows[i]);
    items[i] = {descending ? static_cast<Key>(Key{0} - key) : key, rows[i]};  // 0 stays first
  }
  SortItems(items);
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

/// A run of texts that agree in their first `depth` bytes.
struct Run {
  size_t begin;
  size_t end;
  size_t depth;
};

/// Numbers from 1 on of `keys` in the order of their bytes (key 0 is left out).
std::vector<uint32_t> OrderOfTexts(const std::vector<std::string_view>& keys) {
  std::vector<Item<uint64_t>> items(keys.size() - 1);
  for (size_t i = 0; i < items.size(); ++i) items[i] = {0, static_cast<uint32_t>(i + 1)};
  std::vector<Run> runs{{0, items.size(), 0}};
  while (!runs.empty()) {
    const Run run = runs.back();
    runs.pop_back();
    const auto begin = items.begin() + static_cast<std::ptrdiff_t>(run.begin);
    const auto end = items.begin() + static_cast<std::ptrdiff_t>(run.end);
    if (run.end - run.begin < kFewTexts) {
      std::sort(begin, end, [&](const auto& a, const auto& b) {
        return keys[a.row].substr(run.depth) < keys[b.row].substr(run.depth);
      });
      continue;
    }
    for (auto item = begin; item != end; ++item) item->key = Chunk(keys[item->row], run.depth);
    std::sort(begin, end, [](const auto& a, const auto& b) { return a.key < b.key; });
    for (size_t i = run.begin; i < run.end;) {
      size_t next = i + 1;
      while (next < run.end && items[next].key == items[i].key) ++next;
      if (next - i > 1 && (items[i].key & 0xFF) == kMoreFollows) {
        runs.push_back({i, next, run.depth + kChunkBytes});
      }
      i = next;
    }
  }
  std::vector<uint32_t> numbers(items.size());
  for (size_t i = 0; i < items.size(); ++i) numbers[i] = items[i].row;
  return numbers;
}

/// Rank from 1 on of every key by number; equal keys share a rank, number 0 has rank 0.
std::vector<uint32_t> Ranks(const std::vector<std::string_view>& keys) {
  const std::vector<uint32_t> numbers = OrderOfTexts(keys);
  std::vector<uint32_t> ranks(keys.size());
  uint32_t rank = 0;
  for (size_t i = 0; i < numbers.size(); ++i) {
    if (i == 0 || keys[numbers[i]] != keys[numbers[i - 1]]) ++rank;
    ranks[numbers[i]] = rank;
  }
  return ranks;
}

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
  return Ranks(keys);
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
          order ? OrderedRanks(distinct.texts, *order) : Ranks(distinct.texts);
      return SortByKey<uint32_t>(rows, descending,
                                 [&](uint32_t row) { return ranks[distinct.number_of_row[row]]; });
    }
    case Column::Kind::Empty:
      return;
  }
}

}  // namespace qvzj::ui
