// SPDX-License-Identifier: MIT
#include "cli/tally_kinds.h"

#include <algorithm>
#include <array>

#include "cli/command.h"
#include "cli/session.h"
#include "platform/numbers/number_words.h"
#include "platform/system/message.h"
#include "platform/text/characters.h"
#include "shell/context/site_context.h"
#include "tally/groups/shape_tally.h"
#include "tally/rows/bulk_tally.h"
#include "tally/rows/page_tally.h"
#include "tally/schedule_positions.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"

namespace rbt {

namespace {

/// The screen warns beside the grid of the last row without a stock length.
void ShowStockWarning() {
  if (!TallyGrid.StockWarningText.empty()) MsgBox(Trim(TallyGrid.StockWarningText));
}

void FillBulk(const SelectionOptions& /*selection*/) {
  Jyuuryo_Syukei();
  ShowStockWarning();
}

void FillShapes(const SelectionOptions& selection) {
  const ShapeRange shapes = selection.shapes.value_or(WholeShapeRange(*SiteContext.WorkDatabase));
  Selection.ShapeStart = shapes.first;
  Selection.ShapeEnd = shapes.last;
  Keijou_Jyuuryo_Syukei();
}

/// The positions asked for; a bound that is not given is that of the schedule.
PositionRange PositionsOf(const SelectionOptions& selection) {
  // Two bounds ask for no default: a first or last row without a position then stands in nobody's way.
  if (selection.from && selection.to) return {*selection.from, *selection.to};
  const PositionRange whole = WholePositionRange(*SiteContext.WorkDatabase).value_or(PositionRange());
  return {selection.from.value_or(whole.first), selection.to.value_or(whole.last)};
}

void FillPages(const SelectionOptions& selection) {
  const PositionRange range = PositionsOf(selection);
  PG_Jyuuryo_Syukei(ToInt16(range.first.page, "first 頁"), ToInt16(range.first.line, "first 行"),
                    ToInt16(range.last.page, "last 頁"), ToInt16(range.last.line, "last 行"));
  ShowStockWarning();
}

void FillPageShapes(const SelectionOptions& selection) {
  const PositionRange range = PositionsOf(selection);
  PKeijou_Jyuuryo_Syukei(range.first.page, range.first.line, range.last.page, range.last.line);
}

constexpr std::array kGridTallies = {
    GridTally{"bulk", 0, FillBulk},
    GridTally{"shape", 1, FillShapes},
    GridTally{"page", 2, FillPages},
    GridTally{"page-shape", 3, FillPageShapes},
};

const GridTally& FindGridTally(const std::string& kind) {
  const auto* found = std::find_if(kGridTallies.begin(), kGridTallies.end(),
                                   [&](const GridTally& tally) { return tally.name == kind; });
  if (found == kGridTallies.end()) throw UsageError("unknown tally " + kind);
  return *found;
}

}  // namespace

std::span<const GridTally> GridTallies() { return kGridTallies; }

std::vector<std::string> GridTallyNames() {
  std::vector<std::string> names;
  names.reserve(kGridTallies.size());
  for (const GridTally& tally : kGridTallies) names.emplace_back(tally.name);
  return names;
}

void FillTallyGrid(const std::string& kind, const CommonOptions& common, const SelectionOptions& selection) {
  const GridTally& tally = FindGridTally(kind);
  if (selection.kinds == 0) throw UsageError("--kinds: 0 is for the floor and part tallies");
  OpenSite(common);
  Selection.TallyKind = tally.number;
  ApplySelection(selection, Selection);
  tally.fill(selection);
}

}  // namespace rbt
