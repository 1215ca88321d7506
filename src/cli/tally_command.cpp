// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/session.h"
#include "data/grade_names.h"
#include "data/run_state.h"
#include "data/site_context.h"
#include "platform/numbers/number_words.h"
#include "platform/system/message.h"
#include "platform/text/characters.h"
#include "tally/bulk_tally.h"
#include "tally/grid_text.h"
#include "tally/page_tally.h"
#include "tally/result_grid.h"
#include "tally/schedule_positions.h"
#include "tally/selection.h"
#include "tally/shape_tally.h"
#include "tally/tally_grid.h"
#include "tally/tally_json.h"

namespace rbt {

namespace {

struct TallyOptions {
  std::string kind;
  CommonOptions common;
  SelectionOptions selection;
  std::string format = "table";
};

/// `TallyGrid` in the asked form, for the kinds that fill it.
std::string TallyGridText(const TallyOptions& options) {
  if (options.format == "json") {
    return TallyJson(TallyGrid, options.kind, RunState.HasHoopRows, RunState.HasAnchorPlateRows);
  }
  GridView view;
  view.grade_names = DiameterGradeNames();
  const GridRows rows = ShowTally(TallyGrid, Selection, view);
  return options.format == "csv" ? GridCsv(kResultCaptions, rows) : GridTable(rows);
}

/// The screen warns beside the grid of the last row without a stock length.
void ShowStockWarning() {
  if (!TallyGrid.StockWarningText.empty()) MsgBox(Trim(TallyGrid.StockWarningText));
}

std::string TallyBulk(const TallyOptions& options) {
  Jyuuryo_Syukei();
  ShowStockWarning();
  return TallyGridText(options);
}

std::string TallyShapes(const TallyOptions& options) {
  const ShapeRange shapes = options.selection.shapes.value_or(WholeShapeRange(*SiteContext.WorkDatabase));
  Selection.ShapeStart = shapes.first;
  Selection.ShapeEnd = shapes.last;
  Keijou_Jyuuryo_Syukei();
  return TallyGridText(options);
}

/// The positions asked for; a bound that is not given is that of the schedule.
PositionRange PositionsOf(const SelectionOptions& selection) {
  const PositionRange whole = WholePositionRange(*SiteContext.WorkDatabase).value_or(PositionRange());
  return {selection.from.value_or(whole.first), selection.to.value_or(whole.last)};
}

std::string TallyPages(const TallyOptions& options) {
  const PositionRange range = PositionsOf(options.selection);
  PG_Jyuuryo_Syukei(ToInt16(range.first.page, "first 頁"), ToInt16(range.first.line, "first 行"),
                    ToInt16(range.last.page, "last 頁"), ToInt16(range.last.line, "last 行"));
  ShowStockWarning();
  return TallyGridText(options);
}

std::string TallyPageShapes(const TallyOptions& options) {
  const PositionRange range = PositionsOf(options.selection);
  PKeijou_Jyuuryo_Syukei(range.first.page, range.first.line, range.last.page, range.last.line);
  return TallyGridText(options);
}

/// One kind of tally: its word on the command line, its number, and what runs it and gives its text.
struct TallyKindRow {
  std::string_view name;
  std::int32_t number;   ///< TallyKind
  bool thin_bars_alone;  ///< `--kinds 0` is legal
  std::string (*run)(const TallyOptions& options);
};

constexpr std::array kTallyKinds = {
    TallyKindRow{"bulk", 0, false, TallyBulk},
    TallyKindRow{"shape", 1, false, TallyShapes},
    TallyKindRow{"page", 2, false, TallyPages},
    TallyKindRow{"page-shape", 3, false, TallyPageShapes},
};

std::vector<std::string> TallyKindNames() {
  std::vector<std::string> names;
  names.reserve(kTallyKinds.size());
  for (const TallyKindRow& kind : kTallyKinds) names.emplace_back(kind.name);
  return names;
}

void RunTally(const TallyOptions& options) {
  const TallyKindRow& kind = *std::find_if(kTallyKinds.begin(), kTallyKinds.end(),
                                           [&](const TallyKindRow& row) { return row.name == options.kind; });
  if (options.selection.kinds == 0 && !kind.thin_bars_alone) {
    throw UsageError("--kinds: 0 is for the floor and part tallies");
  }
  OpenSite(options.common);
  Selection.TallyKind = kind.number;
  ApplySelection(options.selection, Selection);
  WriteResult(kind.run(options));
}

}  // namespace

Action DefineTally(CLI::App& line) {
  auto options = std::make_shared<TallyOptions>();
  line.add_option("KIND", options->kind, "the kind of tally")
      ->required()
      ->check(CLI::IsMember(TallyKindNames()));
  AddCommonOptions(line, options->common);
  AddSelectionOptions(line, options->selection);
  AddFormatOption(line, options->format);
  return [options] { RunTally(*options); };
}

}  // namespace rbt
