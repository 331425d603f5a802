#pragma once

#include <cstdint>
#include <random>
#include <span>

namespace qvzj::demo_data {

/// Random choices that come out the same for the same seed on every machine, which the standard
/// library's distributions do not promise.
class Dice {
 public:
  explicit Dice(uint64_t seed) : engine_(seed) {}

  /// A whole number from 0 to `count` - 1; `count` must be positive.
  uint32_t Below(uint32_t count) {
    return static_cast<uint32_t>(((engine_() >> 32) * count) >> 32);
  }
  /// A whole number from `low` to `high`, both included.
  int Between(int low, int high) {
    return low + static_cast<int>(Below(static_cast<uint32_t>(high - low + 1)));
  }
  /// True in `percent` of 100 cases.
  bool Chance(uint32_t percent) { return Below(100) < percent; }
  /// One of `items`, which must not be empty.
  template <class T>
  const T& Pick(std::span<const T> items) {
    return items[Below(static_cast<uint32_t>(items.size()))];
  }
  template <class T, size_t N>
  const T& Pick(const T (&items)[N]) {
    return Pick(std::span<const T>(items));
  }

 private:
  std::mt19937_64 engine_;
};

}  // namespace qvzj::demo_data
