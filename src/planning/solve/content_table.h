// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>

#include "planning/solve/by_index.h"
#include "planning/solve/cutting_task.h"
#include "planning/solve/pace.h"

namespace rbt::planning {

/// What the dearest content of a bar is worth by a price for each item: one table answers for every capacity.
class ContentTable {
 public:
  virtual ~ContentTable() = default;

  /// `prices`, at least 0, and `left`, how often an item may be taken, are parallel to the items. False where
  /// it was stopped: the table is none then until it is filled again.
  virtual bool Fill(ViewByIndex<const double> prices, ViewByIndex<const std::int64_t> left, Pace& pace) = 0;
  /// Of the last fill, by a capacity from 0 to the task's largest: the worth, up to rounding, and a content
  /// that has it.
  virtual double Worth(int capacity) const = 0;
  virtual Content ContentAt(int capacity) const = 0;
  /// What a fill takes, in steps of about a nanosecond.
  virtual std::int64_t Steps() const = 0;
};

/// A table of contents with at most `kinds` items; -1: any number.
std::unique_ptr<ContentTable> MakeContentTable(const CuttingTask& task, int kinds);

}  // namespace rbt::planning
