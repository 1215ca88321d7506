// SPDX-License-Identifier: MIT
#include "tally/floorpart/share_walk.h"

#include <vector>

#include "platform/fault.h"
#include "platform/system/process.h"
#include "tally/rows/bar_row_reader.h"

namespace rbt {
namespace {

constexpr std::string_view kFloorColumn = "階";

std::vector<std::string_view> ColumnsWith(ReadFloors floors) {
  const auto bar_columns = BarRowReader::Columns();
  std::vector<std::string_view> columns(bar_columns.begin(), bar_columns.end());
  if (floors == ReadFloors::yes) columns.push_back(kFloorColumn);
  return columns;
}

}  // namespace

void TakeShare(const BarRow& row, const std::optional<std::int32_t>& floor, const ShareRules& rules,
               const ShareTaker& take) {
  At([&] { return PlaceOf(row); },
     [&] {
       const std::optional<RowShare> share = ShareOf(row, rules);
       if (share) take(*share, floor);
     });
}

void WalkShares(Database& site, std::string_view statement, const ShareRules& rules, ReadFloors floors,
                const ShareTaker& take) {
  RunPendingEvents();
  RowWalk rows(site, statement, ColumnsWith(floors));
  const BarRowReader reader(rows);
  std::optional<FieldHandle> floor;
  if (floors == ReadFloors::yes) floor = rows.Field(kFloorColumn);
  rows.Run([&](const WalkedRow& found) {
    const BarRow row = reader.Read(found);
    std::optional<std::int32_t> stands_on;
    if (floor) stands_on = At([&] { return PlaceOf(row); }, [&] { return found.Int32(*floor); });
    TakeShare(row, stands_on, rules, take);
  });
  RunPendingEvents();
}

}  // namespace rbt
