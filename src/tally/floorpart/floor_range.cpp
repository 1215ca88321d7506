// SPDX-License-Identifier: MIT
#include "tally/floorpart/floor_range.h"

#include <string>

#include "platform/numbers/number_words.h"

namespace rbt {
namespace {

struct Bounds {
  std::int16_t lowest;
  std::int16_t highest;
};

std::optional<Bounds> ReadBounds(Database& site, std::string_view where) {
  const Recordset rows = site.OpenSnapshot("SELECT MIN(階) AS 最小階, MAX(階) AS 最大階 FROM 加工テーブル " +
                                           std::string(where));
  const Value lowest = rows.Get("最小階");
  if (IsNull(lowest)) return std::nullopt;
  const auto floor = [](const Value& value) { return ToInt16(NumberOf(value, "階"), "階"); };
  return Bounds{floor(lowest), floor(rows.Get("最大階"))};
}

bool IsFloorCode(std::int16_t floor) { return floor >= kLowestFloor && floor <= kNoFloor; }

std::optional<FloorRangeRefusal> RefusedEnd(const FloorRange& range, const FloorExtent& extent) {
  const auto refused = [](std::string_view reason) { return FloorRangeRefusal{false, reason}; };
  if (!IsFloorCode(range.end)) return refused("floors are numbered -5 to 78");
  if (range.end < range.start) return refused("the last floor is below the first");
  if (range.end > extent.KaiMax && !IsSpecialFloor(range.end)) {
    return refused("the last floor is above the highest of the schedule");
  }
  if (range.start == kFoundationFloor && range.end < extent.KaiMin) {
    return refused("the last floor is below the lowest of the schedule");
  }
  return std::nullopt;
}

}  // namespace

std::optional<FloorExtent> ReadFloorExtent(Database& site) {
  std::optional<Bounds> bounds = ReadBounds(site, kAllFloorsClause);
  if (!bounds) return std::nullopt;
  if (!IsSpecialFloor(bounds->lowest)) bounds = ReadBounds(site, kNumberedFloorsClause);
  return FloorExtent{bounds->lowest, bounds->highest, site.HasRows("SELECT * FROM 加工テーブル WHERE 階 =0")};
}

FloorRange AllFloors(const FloorExtent& extent) {
  if (!extent.KaiFound()) return {extent.KaiMin, extent.KaiMax};
  const bool below_ground_alone = extent.KaiMin < 0 && extent.KaiMax <= 0;
  return {kFoundationFloor, below_ground_alone ? extent.KaiMin : extent.KaiMax};
}

std::int16_t PartStart(const FloorRange& asked, const FloorExtent& extent) {
  if (asked.start != kFoundationFloor || !extent.KaiFound()) return asked.start;
  const bool foundation_alone = asked.end == kFoundationFloor && extent.has_foundation;
  return foundation_alone ? asked.start : extent.KaiMin;
}

std::optional<FloorRangeRefusal> RefusedStart(std::int16_t start, const FloorExtent& extent) {
  if (!IsFloorCode(start)) return FloorRangeRefusal{true, "floors are numbered -5 to 78"};
  const bool outside = start < extent.KaiMin || start > extent.KaiMax;
  if (extent.KaiFound() && !IsSpecialFloor(start) && outside) {
    return FloorRangeRefusal{true, "the first floor is not among those of the schedule"};
  }
  return std::nullopt;
}

std::optional<FloorRangeRefusal> RefusedRange(const FloorRange& range, const FloorExtent& extent) {
  if (range == AllFloors(extent)) return std::nullopt;
  if (const auto refusal = RefusedStart(range.start, extent)) return refusal;
  return RefusedEnd(range, extent);
}

void TakeFloors(SelectionData& selection, const FloorRange& range, SpecialMask specials,
                const FloorExtent& extent) {
  selection.KaiStart = range.start;
  selection.KaiEnd = range.end;
  selection.KaiMin = extent.KaiMin;
  selection.BuiStart = PartStart(range, extent);
  selection.TokubetuMask = specials;
}

}  // namespace rbt
