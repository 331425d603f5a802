#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "screen/frmZj.h"

namespace qvzj::endurance {

/// Dice that fall alike on every machine for a seed.
class Dice {
 public:
  explicit Dice(uint64_t seed) : engine_(seed) {}
  /// 0 to `sides` - 1.
  int Roll(int sides) { return static_cast<int>(engine_() % static_cast<uint64_t>(sides)); }
  /// True once in `sides` times on average.
  bool OneIn(int sides) { return Roll(sides) == 0; }
  template <class T>
  const T& Pick(const std::vector<T>& from) {
    return from[static_cast<size_t>(Roll(static_cast<int>(from.size())))];
  }

 private:
  std::mt19937_64 engine_;
};

/// Lines of script for the monkey's next moves, whether the screen allows them or not: a single
/// wild act, or a short piece of sensible work so that entries are really saved, approved and
/// deleted. `form` is null while no form is open.
std::vector<std::string> NextMoves(Dice& dice, frmZj* form);

}  // namespace qvzj::endurance
