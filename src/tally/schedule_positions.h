// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/shapes.h"
#include "store/database.h"
#include "tally/selection.h"
#include "tally/tally_kind.h"

namespace rbt {

/// A line of the schedule as it is written: 頁 and 行.
struct SchedulePosition {
  std::int32_t page = 0;
  std::int32_t line = 0;

  friend bool operator==(const SchedulePosition&, const SchedulePosition&) = default;
};

struct PositionRange {
  SchedulePosition first;
  SchedulePosition last;

  friend bool operator==(const PositionRange&, const PositionRange&) = default;
};

/// Running line numbers, column 行No, both included; crossed ones hold nothing.
struct LineRange {
  std::int32_t first = 0;
  std::int32_t last = 0;
};

/// 行No of the last row at a position; 0 when there is none, and for null.
std::int32_t LineNumberAt(Database& site, SchedulePosition position);
/// The running line numbers between two positions.
LineRange LinesBetween(Database& site, const PositionRange& positions);

/// Positions of the first and the last row by 行No, for the page tally by page and line too: the range that a
/// tally by positions begins with. A null 頁 or 行 is 0. Nothing for an empty schedule.
std::optional<PositionRange> WholePositionRange(Database& site, TallyKind kind);

/// The fields of the first row of "SELECT expression From 加工テーブル where_clause"; none when there is no
/// row.
std::vector<Value> GetKeijouNoSQL(Database& site, std::string_view expression, std::string_view where_clause);

/// Smallest and largest 形状No of the schedule, within a range of lines when one is given; 0 and 0 when no
/// row has a shape.
ShapeRange WholeShapeRange(Database& site, const std::optional<LineRange>& lines = std::nullopt);

/// Puts a range into the selection.
void TakeShapes(SelectionData& selection, const ShapeRange& shapes);
void TakePositions(SelectionData& selection, const PositionRange& positions);

}  // namespace rbt
