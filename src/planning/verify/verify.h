// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "planning/problem/plan.h"
#include "planning/problem/problem.h"

namespace rbt::planning {

/// What is wrong with a plan of the problem, one line each; empty when it keeps what plans promise: every
/// piece is cut once, no bar is overfilled, no limit broken, no kind mixed; no group costs more than its
/// promises allow; the prices prove the bounds. It shares no code with what makes plans. Bounds whose check
/// would take too long are taken on trust, see `kLargestTable`.
std::vector<std::string> FindFaults(const Problem& problem, const Plan& plan);

/// The same for plans that come one after the other: a group that was found sound is looked at again when its
/// plan has changed.
class Verifier {
 public:
  /// The problem must outlive it.
  explicit Verifier(const Problem& problem);

  std::vector<std::string> FindFaults(const Plan& plan);

 private:
  using Bars = std::map<int, std::int64_t>;  ///< by length
  struct SoundGroup {
    GroupPlan plan;
    Bars bought;
    Bars rests;
  };

  /// Looks at a group; its bars are known then.
  std::vector<std::string> CheckGroup(std::size_t group, const GroupPlan& plan);

  const Problem& problem_;
  std::vector<SoundGroup> groups_;
  std::vector<bool> sound_;
};

/// Cells of the table by which prices are checked.
inline constexpr long long kLargestTable = 100'000'000;

}  // namespace rbt::planning
