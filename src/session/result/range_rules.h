// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "data/shapes.h"
#include "store/database.h"
#include "tally/schedule_positions.h"

namespace rbt {

/// Why an entered range is refused, and where the input goes on.
struct RangeRefusal {
  std::string text;
  std::string_view title;               ///< empty: that of the screen
  std::size_t box = 0;                  ///< takes the focus; boxes count from the left
  std::optional<std::int32_t> back_to;  ///< what the box is set back to; without one it keeps its number
};

/// Boxes of a range of positions, from the left.
enum class PositionBox : std::size_t { start_page, start_line, end_page, end_line };

/// What the schedule holds, as far as a range of positions has to know.
struct ScheduleRows {
  std::function<bool(std::int32_t page)> has_page;
  std::function<bool(const SchedulePosition& position)> has_position;
};

/// The test that Enter in one box makes. Nothing when the box passes.
std::optional<RangeRefusal> PositionRefusal(PositionBox box, const PositionRange& entered,
                                            const ScheduleRows& rows);

/// Those of a schedule, which must outlive them.
ScheduleRows RowsOf(Database& schedule);
/// The same over some boxes and a schedule: of the first that does not pass.
std::optional<RangeRefusal> PositionsRefusal(Database& schedule, const PositionRange& entered,
                                             std::span<const PositionBox> boxes);

/// The tests that Enter in the right box makes: the smallest shape first, then the largest, then the order.
std::optional<RangeRefusal> ShapeRangeRefusal(const ShapeRange& entered, const ShapeRange& whole);

/// The rows of a page; of a line of it; of the high-strength bars among shapes.
std::string RowsOfPage(std::int32_t page);
std::string RowsOfPosition(const SchedulePosition& position);
std::string HighStrengthRowsOf(const ShapeRange& shapes);

}  // namespace rbt
