// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "data/diameters.h"
#include "platform/numbers/checked_array.h"
#include "platform/numbers/number_words.h"

namespace rbt {

/// The words of welds, threads, anchor plates and cuts, in the order in which every tally tells them.
inline constexpr std::array<std::string_view, 4> kCsvFittings{"圧接", "ｶﾌﾟﾗ", "ＤＢ", "切断"};

/// A fitting of all diameters together. Faults: `overflow`.
inline std::int32_t CsvFittingTotal(const CheckedArray<std::int32_t, kDiameterRows>& by_diameter) {
  std::int32_t total = 0;
  for (int r = 0; r < kDiameterRows; ++r) total = AddInt32(total, by_diameter[r], "合計");
  return total;
}

}  // namespace rbt
