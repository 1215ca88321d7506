// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <span>

namespace rbt::demo {

/// Random numbers that are the same on every machine for a seed: the engine is fixed by the language's
/// standard, the distributions of the standard library are not, so they are written out here.
class DemoRandom {
 public:
  explicit DemoRandom(std::uint64_t seed) : engine_(seed) {}

  /// A whole number from `low` to `high`, both included.
  int Between(int low, int high) {
    const auto span = static_cast<std::uint64_t>(high - low) + 1;
    return low + static_cast<int>(engine_() % span);
  }
  /// A multiple of `step` counted from `low`, up to `high`.
  int Step(int low, int high, int step) { return low + step * Between(0, (high - low) / step); }
  bool Chance(int percent) { return Between(1, 100) <= percent; }
  template <typename T>
  const T& Pick(std::span<const T> choices) {
    return choices[static_cast<std::size_t>(Between(0, static_cast<int>(choices.size()) - 1))];
  }

 private:
  std::mt19937_64 engine_;
};

}  // namespace rbt::demo
