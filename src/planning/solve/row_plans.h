// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "planning/problem/plan.h"
#include "planning/problem/problem.h"
#include "planning/solve/cutting_task.h"

namespace rbt::planning {

/// Equal pieces cut alone from bars of one length: full bars, then one with what is left over.
struct BarsOfOneCut {
  int stock_mm = 0;
  int cut_mm = 0;
  int per_bar = 1;
  std::int64_t full_bars = 0;
  int on_last_bar = 0;  ///< 0: there is none

  std::int64_t Bars() const { return full_bars + (on_last_bar > 0 ? 1 : 0); }
};

/// Pieces from bars of a length. Where not even one fits, one a bar all the same: the schedule has it so.
BarsOfOneCut CutAlone(const BarRule& rule, int stock_mm, int cut_mm, std::int64_t pieces);

/// All pieces of a cut from the one length of least cost, the longer of equals; nothing where none of the
/// lengths (indices into the supply's) holds a piece.
std::optional<BarsOfOneCut> CutFromBestLength(const BarRule& rule, const Supply& supply, const Cut& cut,
                                              const LengthSet& lengths);
std::optional<BarsOfOneCut> CutFromBestLength(const BarRule& rule, const Supply& supply, const Cut& cut);

/// The length of that many mm among those that may be bought; null when it is not there.
const StockLength* FindLength(const Supply& supply, int mm);

/// The bars as patterns, at the end of a list.
void AppendPatterns(std::vector<Pattern>& patterns, const BarsOfOneCut& bars);

}  // namespace rbt::planning
