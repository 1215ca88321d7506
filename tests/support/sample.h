// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

namespace rbt::test {

// Tests that kill a program or damage a file try many moments and copies: all of them, but a fixed sample
// where RBTALLY_SAMPLE is set, as the presets do for trees without sanitizers.

/// Of how many moments or copies one is tried: of 1, or of `many` where a sample is enough. Of random copies
/// these are the first of all.
int SampleStep(int many);

/// Tries the moments 1, 2, 3, ... until `is_there` says that the action came to its end before. Of a sample
/// every eighth up to the end and each of the last eight.
void TryMoments(const std::function<bool(int)>& is_there);

/// How many random problems a law of answers is held against that takes long: all, but a fourth of them under
/// sanitizers, which look at what the code does and not at what it answers.
std::uint64_t ProblemsOf(std::uint64_t all);

/// Whether a thing is tried with another one, of so many: each with each, but under sanitizers each with one
/// of the others, which take turns.
bool IsTriedWith(std::size_t thing, std::size_t other, std::size_t others);

}  // namespace rbt::test
