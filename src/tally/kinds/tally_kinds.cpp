// SPDX-License-Identifier: MIT
#include "tally/kinds/tally_kinds.h"

#include <algorithm>
#include <array>
#include <string>

#include "platform/fault.h"
#include "platform/numbers/number_words.h"
#include "shell/context/run_state.h"
#include "tally/groups/shape_tally.h"
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

constexpr std::array<TallyKindRow, 6> kTallyKinds{{
    {TallyKind::bulk, "bulk", "一括集計", TallyRange::whole_site, Jyuuryo_Syukei},
    {TallyKind::shape, "shape", "形状別 一括集計", TallyRange::shapes, Keijou_Jyuuryo_Syukei},
    {TallyKind::page, "page", "頁行別集計", TallyRange::positions, CountPages},
    {TallyKind::page_shape, "page-shape", "形状別 頁行別集計", TallyRange::positions, CountPageShapes},
    {TallyKind::floor, "floor", "階別集計", TallyRange::floors, nullptr},
    {TallyKind::part, "part", "部位別集計", TallyRange::floors, nullptr},
}};

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
  RowOf(kind).count();
  return {.kind = kind,
          .selection = Selection,
          .origin = RunState.AccumulateFlag != 0 ? ResultOrigin::accumulated : ResultOrigin::counted,
          .has_hoop_rows = RunState.HasHoopRows,
          .has_anchor_plate_rows = RunState.HasAnchorPlateRows,
          .tables = TallyGrid};
}

}  // namespace rbt
