// SPDX-License-Identifier: MIT
#include "tally/kinds/tally_kinds.h"

#include <algorithm>
#include <array>
#include <string>

#include "platform/fault.h"
#include "platform/numbers/number_words.h"
#include "platform/or_as_before.h"
#include "shell/context/run_state.h"
#include "tally/engine/stock_engine.h"
#include "tally/floorpart/floor_tally.h"
#include "tally/floorpart/part_tally.h"
#include "tally/groups/shape_tally.h"
#include "tally/names/name_tally.h"
#include "tally/rows/bulk_tally.h"
#include "tally/rows/page_tally.h"

namespace rbt {

namespace {

void CountPages() {
  PG_Jyuuryo_Syukei(ToInt16(Selection.StartPage, "first 頁"), ToInt16(Selection.StartLine, "first 行"),
                    ToInt16(Selection.EndPage, "last 頁"), ToInt16(Selection.EndLine, "last 行"));
}

void CountPageShapes() {
  PKeijou_Jyuuryo_Syukei(Selection.StartPage, Selection.StartLine, Selection.EndPage, Selection.EndLine);
}

void CountParts() {
  const auto taken = [](int floor) { return static_cast<std::int16_t>(Selection.TokubetuMask.Has(floor)); };
  Bui_Jyuuryo_Syukei(Selection.BuiStart, Selection.KaiEnd, taken(kPenthouseFloor), taken(kRoofFloor),
                     taken(kNoFloor));
}

TallyTables CurrentGrid() { return TallyGrid; }
TallyTables CurrentFloors() { return FloorTally; }
TallyTables CurrentParts() { return PartTally; }

constexpr std::array<TallyKindRow, 7> kTallyKinds{{
    {TallyKind::bulk, "bulk", "一括集計", TallyRange::whole_site, Jyuuryo_Syukei, CurrentGrid},
    {TallyKind::shape, "shape", "形状別 一括集計", TallyRange::shapes, Keijou_Jyuuryo_Syukei, CurrentGrid},
    {TallyKind::page, "page", "頁行別集計", TallyRange::positions, CountPages, CurrentGrid},
    {TallyKind::page_shape, "page-shape", "形状別 頁行別集計", TallyRange::positions, CountPageShapes,
     CurrentGrid},
    {TallyKind::floor, "floor", "階別集計", TallyRange::floors, Kai_Jyuuryo_Syukei, CurrentFloors},
    {TallyKind::part, "part", "部位別集計", TallyRange::floors, CountParts, CurrentParts},
    {TallyKind::names, "names", "登録名集計", TallyRange::names, Touroku_Jyuuryo_Syukei, CurrentGrid},
}};

/// What the probes of the tally found: those of floors and parts leave it in their tables.
struct Presence {
  bool hoops;
  bool anchor_plates;
};
Presence PresenceOf(const TallyTable& /*tables*/) {
  return {RunState.HasHoopRows, RunState.HasAnchorPlateRows};
}
Presence PresenceOf(const FloorTables& tables) { return {tables.HoopAri, tables.TeiAri}; }
Presence PresenceOf(const PartTables& tables) { return {tables.HoopAri, tables.TeiAri}; }

/// Ulbon rows are raised, and sites added up, once a table by diameter and length is counted.
ResultOrigin OriginOf(const TallyTable& /*tables*/) { return ResultOrigin::counted; }
ResultOrigin OriginOf(const FloorTables& /*tables*/) {
  return Selection.UwanoseRitu != 0.0 ? ResultOrigin::raised : ResultOrigin::counted;
}
ResultOrigin OriginOf(const PartTables& /*tables*/) {
  return Selection.BuiUwanoseRitu != 0.0 ? ResultOrigin::raised : ResultOrigin::counted;
}

}  // namespace

std::span<const TallyKindRow> TallyKinds() { return kTallyKinds; }

const TallyKindRow& RowOf(TallyKind kind) {
  const auto* row = std::find_if(kTallyKinds.begin(), kTallyKinds.end(),
                                 [&](const TallyKindRow& each) { return each.kind == kind; });
  if (row == kTallyKinds.end()) {
    throw Fault(FaultKind::subscript_out_of_range, "tally kind " + std::to_string(static_cast<int>(kind)));
  }
  return *row;
}

const TallyKindRow* FindTallyKind(std::string_view word) {
  const auto* row = std::find_if(kTallyKinds.begin(), kTallyKinds.end(), [&](const TallyKindRow& each) {
    return each.word == word && each.count != nullptr;
  });
  return row == kTallyKinds.end() ? nullptr : row;
}

TallyResult CountTally(TallyKind kind) {
  const TallyKindRow& row = RowOf(kind);
  OrAsBefore(row.count, TallyGrid, FloorTally, PartTally, EngineState, RunState.HasHoopRows,
             RunState.HasAnchorPlateRows);
  TallyResult result{.kind = kind, .selection = Selection, .tables = row.current()};
  const Presence presence = std::visit([](const auto& tables) { return PresenceOf(tables); }, result.tables);
  result.has_hoop_rows = presence.hoops;
  result.has_anchor_plate_rows = presence.anchor_plates;
  result.origin = std::visit([](const auto& tables) { return OriginOf(tables); }, result.tables);
  return result;
}

}  // namespace rbt
