// SPDX-License-Identifier: MIT
#include <memory>
#include <string>

#include "cli/command_line.h"
#include "cli/options.h"
#include "cli/output.h"
#include "cli/tally_kinds.h"
#include "shell/context/reference_names.h"
#include "shell/context/run_state.h"
#include "tally/selection.h"
#include "tally/tally_grid.h"
#include "tally/views/grid_text.h"
#include "tally/views/result_grid.h"
#include "tally/views/tally_json.h"

namespace rbt {

namespace {

struct TallyOptions {
  std::string kind;
  CommonOptions common;
  SelectionOptions selection;
  std::string format = "table";
};

/// `TallyGrid` in the asked form.
std::string TallyGridText(const TallyOptions& options) {
  if (options.format == "json") {
    return TallyJson(TallyGrid, options.kind, RunState.HasHoopRows, RunState.HasAnchorPlateRows);
  }
  GridView view;
  view.grade_names = DiameterGradeNames();
  const GridRows rows = ShowTally(TallyGrid, Selection, view);
  return options.format == "csv" ? GridCsv(kResultCaptions, rows) : GridTable(rows);
}

void RunTally(const TallyOptions& options) {
  FillTallyGrid(options.kind, options.common, options.selection);
  WriteResult(TallyGridText(options));
}

}  // namespace

Action DefineTally(CommandLine& line) {
  auto options = std::make_shared<TallyOptions>();
  line.WordArgument("KIND", options->kind, GridTallyNames(), "the kind of tally");
  AddCommonOptions(line, options->common);
  AddSelectionOptions(line, options->selection);
  AddFormatOption(line, options->format);
  return [options] { RunTally(*options); };
}

}  // namespace rbt
