// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "planning/solve/bit_row.h"
#include "planning/solve/cutting_task.h"
#include "planning/solve/pace.h"

namespace rbt::planning {

/// Which weights the pieces that are left can fill together, none of an item more often than it is left and
/// no more items than may be mixed. Once the pace says stop the sums are not complete: nothing is asked then.
class ReachableSums {
 public:
  /// `left` is parallel to the items and must outlive the object.
  ReachableSums(const CuttingTask& task, const ByIndex<std::int64_t>& left, Pace& pace);

  /// After a change of what is left of items `first` to `last`; those before are used up.
  void Renew(int first, int last);

  /// From now on the questions are of bars that hold `item` at least once and otherwise items behind it.
  void LeadWith(int item);
  /// The greatest sum up to a capacity; 0 when the item does not fit.
  int Best(int capacity) const;
  /// Pieces that make up such a sum, as many of the earlier items as can be.
  Content ContentOf(int sum) const;

 private:
  int Most(int item) const;
  /// Sums of items `item` and behind, of at most `kinds` of them; without a limit the kinds are not looked
  /// at.
  Words Row(int item, int kinds);
  ConstWords Row(int item, int kinds) const;
  /// to = the sums of `from` with 1 to `copies` pieces of the weight.
  void WithCopies(Words to, ConstWords from, int weight, int copies) const;

  const CuttingTask& task_;
  const ByIndex<std::int64_t>& left_;
  Pace& pace_;
  int items_;
  int largest_;  ///< capacity
  int kinds_;    ///< at most so many items on a bar, 0: any number
  std::size_t words_;
  std::vector<std::uint64_t> rows_;
  int lead_ = 0;
  std::vector<std::uint64_t> led_;  ///< the sums with the leading item
  std::vector<std::uint64_t> scratch_;
};

}  // namespace rbt::planning
