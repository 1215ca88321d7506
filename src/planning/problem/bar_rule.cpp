// SPDX-License-Identifier: MIT
#include "planning/problem/bar_rule.h"

#include <algorithm>

namespace rbt::planning {

int PiecesPerBar(const BarRule& rule, int bar_mm, int cut_mm) {
  const std::int64_t room = std::int64_t{bar_mm} - rule.trim + rule.plus + rule.kerf;
  const int pieces = static_cast<int>(std::max<std::int64_t>(0, room) / (std::int64_t{cut_mm} + rule.kerf));
  return pieces == 0 && cut_mm == bar_mm ? 1 : pieces;
}

std::int64_t UsedMm(const BarRule& rule, const Laid& laid) {
  return laid.mm + std::int64_t{rule.kerf} * (laid.pieces - 1);
}

std::int64_t LeftMm(const BarRule& rule, int bar_mm, const Laid& laid) {
  return std::max<std::int64_t>(0, std::int64_t{bar_mm} - rule.trim - UsedMm(rule, laid) - rule.kerf);
}

int CutsOnBar(const BarRule& rule, int bar_mm, const Laid& laid) {
  if (laid.pieces == 1 && laid.mm == bar_mm) return 0;
  const bool to_the_end = UsedMm(rule, laid) >= std::int64_t{bar_mm} - rule.trim;
  return laid.pieces - (to_the_end ? 1 : 0) + (rule.trim > 0 ? 1 : 0);
}

}  // namespace rbt::planning
