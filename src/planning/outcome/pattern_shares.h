// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "planning/outcome/outcome.h"

namespace rbt::planning {

/// The rows that the pieces of one cut go to, on all bars of a pattern.
struct CutShares {
  int cut_mm = 0;
  std::vector<OutcomeShare> rows;  ///< in order; their pieces are those of the pattern
};

/// Of each pattern of a group, by falling cut: pieces of a length go to its rows in order, pattern by
/// pattern.
std::vector<std::vector<CutShares>> SharesOf(const OutcomeGroup& group);

/// What is cut off a bar's end before the first piece, in mm; nothing off a bar that is used whole.
int TrimOf(const BarRule& rule, const Pattern& pattern);

/// Where the pieces of a bar end, in mm from the bar's end at which the trim is cut off: longest piece first.
std::vector<std::int64_t> MarksOf(const BarRule& rule, const Pattern& pattern);

}  // namespace rbt::planning
