// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <span>

namespace rbt::planning {

/// A row of bits 0 to size - 1 over words that someone else keeps.
using Words = std::span<std::uint64_t>;
using ConstWords = std::span<const std::uint64_t>;

inline std::size_t WordsFor(int bits) { return static_cast<std::size_t>(bits) / 64 + 1; }

inline bool TestBit(ConstWords row, int bit) {
  return (row[static_cast<std::size_t>(bit) / 64] >> (bit % 64) & 1) != 0;
}

/// to |= from << by; what leaves the row is lost. `from` may be `to`.
inline void OrShifted(Words to, ConstWords from, int by) {
  const std::size_t words = static_cast<std::size_t>(by) / 64;
  const int bits = by % 64;
  for (std::size_t w = to.size(); w-- > words;) {
    std::uint64_t moved = from[w - words] << bits;
    if (bits != 0 && w > words) moved |= from[w - words - 1] >> (64 - bits);
    to[w] |= moved;
  }
}

/// The highest bit that is set from `low` to `high`; -1 when there is none.
inline int HighestBit(ConstWords row, int low, int high) {
  for (int word = high / 64; word >= 0 && word * 64 + 63 >= low; --word) {
    std::uint64_t bits = row[static_cast<std::size_t>(word)];
    if (word == high / 64 && high % 64 != 63) bits &= (std::uint64_t{1} << (high % 64 + 1)) - 1;
    if (bits == 0) continue;
    const int bit = word * 64 + 63 - std::countl_zero(bits);
    return bit >= low ? bit : -1;
  }
  return -1;
}

}  // namespace rbt::planning
