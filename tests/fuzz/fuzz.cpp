#include "tests/fuzz/fuzz.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>

namespace qvzj::fuzz {
namespace {

bool telling = false;

struct Options {
  uint64_t seed = 1;
  int rounds = 0;
  std::optional<int> only;
  std::vector<std::string> files;
};

Options Parse(int argc, char** argv, int rounds) {
  Options options;
  options.rounds = rounds;
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    if (!word.starts_with("--")) {
      options.files.push_back(word);
      continue;
    }
    if (i + 1 == argc) throw std::invalid_argument("no value for " + word);
    const std::string value = argv[++i];
    if (word == "--seed") {
      options.seed = std::stoull(value);
    } else if (word == "--rounds") {
      options.rounds = std::stoi(value);
    } else if (word == "--round") {
      options.only = std::stoi(value);
    } else {
      throw std::invalid_argument("unknown option " + word);
    }
  }
  return options;
}

/// The dice of one round: rounds of one seed do not repeat those of the next.
Dice DiceOf(uint64_t seed, int round) {
  return Dice(seed * 1'000'003 + static_cast<uint64_t>(round));
}

int Run(const Fuzzer& fuzzer, const Options& options, const std::string& name) {
  const std::string mark = name + ".round";
  const int first = options.only.value_or(0);
  const int end = options.only ? first + 1 : options.rounds;
  telling = options.only.has_value();
  for (int round = first; round < end; ++round) {
    std::ofstream(mark) << round << '\n';
    Dice dice = DiceOf(options.seed, round);
    try {
      fuzzer.round(dice, options.files);
    } catch (const std::exception& fault) {
      std::printf("FAULT in round %d: %s\nagain: %s --seed %llu --round %d\n", round, fault.what(),
                  name.c_str(), static_cast<unsigned long long>(options.seed), round);
      return 1;
    }
  }
  std::filesystem::remove(mark);
  std::printf("%d rounds, nothing found\n", end - first);
  return 0;
}

}  // namespace

int Main(int argc, char** argv, const Fuzzer& fuzzer) {
  const std::string name = std::filesystem::path(argv[0]).filename().string();
  try {
    return Run(fuzzer, Parse(argc, argv, fuzzer.rounds), name);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", name.c_str(), error.what());
    return 2;
  }
}

void Tell(const std::string& what) {
  if (telling) std::fprintf(stderr, "%s\n", what.c_str());
}

}  // namespace qvzj::fuzz
