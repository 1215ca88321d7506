// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "demo/demo_random.h"
#include "demo/members.h"
#include "demo/schedule_row.h"

namespace rbt::demo {

/// Draws up the bar schedule of one building, line by line: exactly `rows` lines, storey by storey and part
/// by part in the order of the work, the same for the same seed. Reads and writes nothing.
class ScheduleGenerator {
 public:
  /// `registered_names` is the number of registered names that the lines may carry, 0 for none.
  ScheduleGenerator(std::int32_t rows, std::int32_t registered_names, std::uint64_t seed);

  bool Done() const { return number_ == rows_; }
  /// The next line; must not be called when `Done`.
  ScheduleRow Next();

 private:
  /// The lines of one part on one storey.
  struct Block {
    const Storey* storey;
    std::vector<const BarPattern*> patterns;
    std::int32_t pattern_weight;  ///< sum over the patterns
    std::int32_t last_row;        ///< 行No of its last line
  };

  void PlanBlocks();
  void TurnPage();
  const BarPattern& PickPattern(const Block& block);
  std::int32_t PickDiameter(const BarPattern& pattern, double height);
  void Cut(ScheduleRow& row, const BarPattern& pattern);
  void Join(ScheduleRow& row, const BarPattern& pattern, double height);
  void MarkKind(ScheduleRow& row, const BarPattern& pattern, double height);
  void Place(ScheduleRow& row, const Block& block, const BarPattern& pattern);

  DemoRandom random_;
  std::int32_t rows_;
  std::int32_t registered_names_;
  std::vector<Block> blocks_;
  std::size_t block_ = 0;
  std::int32_t number_ = 0;
  std::int32_t page_ = 0;
  std::int32_t line_ = 0;
};

}  // namespace rbt::demo
