// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "planning/problem/options.h"

namespace rbt::planning {

/// How many pieces of `cut_mm` a bar carries; 0 when it is too short even for one.
int PiecesPerBar(const BarRule& rule, int bar_mm, int cut_mm);

/// The pieces on a bar, laid end to end.
struct Laid {
  int pieces = 0;
  std::int64_t mm = 0;  ///< sum of the cuts
};

/// What a bar loses to its pieces: their cuts and a kerf between each two.
std::int64_t UsedMm(const BarRule& rule, const Laid& laid);
/// The rest behind the last piece, at least 0.
std::int64_t LeftMm(const BarRule& rule, int bar_mm, const Laid& laid);
/// Cuts on the bar: one a piece, but none behind the last when nothing is left there, and one for the trim;
/// none at all on a bar that is used whole.
int CutsOnBar(const BarRule& rule, int bar_mm, const Laid& laid);

}  // namespace rbt::planning
