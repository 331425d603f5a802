#pragma once

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "suite/demo/dice.h"

/// What the programs share that feed the project broken input.
namespace qvzj::fuzz {

using demo_data::Dice;

/// A round found something that must not be. The text says what.
struct Fault : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// One fuzzer: how many rounds its bounded run has, and what a round does. A round that throws, or
/// that a sanitizer stops, has found a fault; it makes everything up from its dice and depends on
/// no round before it.
struct Fuzzer {
  int rounds = 0;
  /// `files` are the arguments beside the options.
  std::function<void(Dice& dice, const std::vector<std::string>& files)> round;
};

/// The main program of a fuzzer:
///
///   FUZZER [--seed N] [--rounds N] [--round N] [FILE…]
///
/// --seed (1) and --rounds choose what is tried; --round plays that round alone, with a line of
/// what it feeds on standard error. The number of the round that runs stands in the working folder
/// in FUZZER.round while it does, so that one that crashed can be played again. Ends with 1 after
/// a fault, 2 for wrong usage.
int Main(int argc, char** argv, const Fuzzer& fuzzer);

/// Tells what is fed, where a round is played alone.
void Tell(const std::string& what);

}  // namespace qvzj::fuzz
